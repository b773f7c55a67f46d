/// Which combinations of options a PPD forbids.
#ifndef IMAGEPOSITION_CORE_PRINTER_OPTIONCONSTRAINTS_HPP
#define IMAGEPOSITION_CORE_PRINTER_OPTIONCONSTRAINTS_HPP

#include <cups/ppd.h>

#include <vector>

namespace imageposition {

/// One side of a constraint. The PPD owns both pointees.
struct ConstrainedOption {
  const ppd_option_t *option = nullptr;
  const ppd_choice_t *choice = nullptr; ///< Null is any choice but "None", "Off" and "False".
};

using OptionConstraint = std::vector<ConstrainedOption>;

/// The constraints from "UIConstraints", "NonUIConstraints" and "cupsUIConstraints". Like CUPS,
/// omits those with unknown options, and merges two in a row with the same pair in both orders.
/// Takes O(n log n) time for n constraints and choices.
std::vector<OptionConstraint> constraintsOf(ppd_file_t *ppd);

/// The constraints that the marked choices violate, in order. A side without a choice gets the
/// marked one; if there are several, the first that is not "None", "Off" or "False".
std::vector<OptionConstraint> violated(const std::vector<OptionConstraint> &constraints,
                                       ppd_file_t *ppd);

} // namespace imageposition

#endif
