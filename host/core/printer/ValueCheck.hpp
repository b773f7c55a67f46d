/// Whether a printer takes a value for one of its options, and why not.
#ifndef IMAGEPOSITION_HOST_VALUECHECK_HPP
#define IMAGEPOSITION_HOST_VALUECHECK_HPP

#include "CustomValue.hpp"

#include <cups/ppd.h>

#include <optional>
#include <string>

namespace imageposition {

/// What a user typed for one parameter of a custom value.
struct CheckedEntry {
  std::string entry;   ///< As CUPS takes it; meaningful without a problem.
  std::string problem; ///< In a sentence; empty when the printer takes it.
};

/// Numbers can have a comma or a point, and lengths a unit; a length without one is in `unit`.
/// Nothing is changed silently, but that a length is rounded to the unit's decimals. It may be
/// beyond an end of its range by half a point: the PPD's whole points are rounded, too.
CheckedEntry checkEntry(const CustomParameter &parameter, const std::string &typed,
                        LengthUnit unit);

/// Why the printer does not take the custom value; empty when it does.
std::string customValueProblem(const CustomOption &option, const std::string &value);

/// What may be entered, in a few words: "70.56 to 246.94 mm". Rounded inwards, so that each end can
/// be entered.
std::string rangeText(const CustomParameter &parameter, LengthUnit unit);

/// Where a field starts when nothing has been entered: the range's lower end; nothing for a text.
std::string initialEntry(const CustomParameter &parameter, LengthUnit unit);

/// The value as a job carries it: a choice as the PPD spells it, a list of choices in the PPD's
/// order, a custom value as it is. None when the option does not take it.
std::optional<std::string> acceptedValue(ppd_file_t *ppd, const ppd_option_t &option,
                                         const std::string &value);

/// What a printer makes of a setting of another job or printer.
struct FittedSetting {
  std::optional<std::string> value; ///< None: the setting is left out.
  std::string change;               ///< In a sentence; empty when the value stays as it is.
};

/// A value that the printer takes stays, and a number out of its range becomes the nearest in it,
/// unless nobody else may read it; any other is left out. Names that the PPD does not have stay
/// when `isKept`. Two kinds of them always stay: CUPS's own ("copies", "number-up", ...), which
/// have no capital letter, and those with a dot ("com.example.Shift"), which only panels have: the
/// panel decides on its values.
FittedSetting fitSetting(ppd_file_t *ppd, const std::string &name, const std::string &value,
                         bool isKept);

} // namespace imageposition

#endif
