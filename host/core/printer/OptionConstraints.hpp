/// Which combinations of options a PPD forbids.
#ifndef IMAGEPOSITION_HOST_OPTIONCONSTRAINTS_HPP
#define IMAGEPOSITION_HOST_OPTIONCONSTRAINTS_HPP

#include <cups/ppd.h>

#include <vector>

namespace imageposition {

/// One side of a constraint. Both pointers are the PPD's.
struct ConstrainedOption {
  const ppd_option_t *option = nullptr;
  const ppd_choice_t *choice = nullptr; ///< Null means any but "None", "Off" and "False".
};

using OptionConstraint = std::vector<ConstrainedOption>;

/// The constraints of "UIConstraints", "NonUIConstraints" and "cupsUIConstraints" that CUPS heeds:
/// without those of unknown options, and with one for a pair that is written both ways in a row.
/// Time grows with their number and that of the choices, times the logarithm.
std::vector<OptionConstraint> constraintsOf(ppd_file_t *ppd);

/// Of the constraints those that the marked choices violate, in their order. A side that names no
/// choice has the marked one; of several the first that is not "None", "Off" or "False".
std::vector<OptionConstraint> violated(const std::vector<OptionConstraint> &constraints,
                                       ppd_file_t *ppd);

} // namespace imageposition

#endif
