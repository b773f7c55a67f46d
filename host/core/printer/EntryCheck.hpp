/// What a person types for a value of one's own: what may be entered, and what is wrong with it.
#ifndef IMAGEPOSITION_HOST_ENTRYCHECK_HPP
#define IMAGEPOSITION_HOST_ENTRYCHECK_HPP

#include "CustomValue.hpp"

#include <string>

namespace imageposition {

/// What a person typed for one parameter.
struct CheckedEntry {
  std::string entry;   ///< As CUPS takes it; meaningful without a problem.
  std::string problem; ///< In a sentence; empty when the printer takes it.
};

/// Numbers can have a comma or a point, and lengths a unit of their own; without one they are in
/// `unit`. Nothing is changed silently, but that a length is rounded to the unit's decimals. It may
/// be beyond an end of its range by half a point: the PPD's whole points are rounded, too.
CheckedEntry checkEntry(const CustomParameter &parameter, const std::string &typed,
                        LengthUnit unit);

/// Why the printer does not take the value; empty when it does.
std::string customValueProblem(const CustomOption &option, const std::string &value);

/// What may be entered, in a few words: "70.56 to 246.94 mm". Rounded inwards, so that each end can
/// be entered.
std::string rangeText(const CustomParameter &parameter, LengthUnit unit);

/// Where a field starts when nothing has been entered: the range's lower end; nothing for a text.
std::string initialEntry(const CustomParameter &parameter, LengthUnit unit);

} // namespace imageposition

#endif
