/// Checking whether a printer accepts a value for an option, and why not.
#ifndef IMAGEPOSITION_CORE_PRINTER_VALUECHECK_HPP
#define IMAGEPOSITION_CORE_PRINTER_VALUECHECK_HPP

#include "CustomValue.hpp"

#include <cups/ppd.h>

#include <optional>
#include <string>

namespace imageposition {

/// What a user typed for one parameter of a custom value.
struct CheckedEntry {
  std::string entry;   ///< As CUPS accepts it; valid only if `problem` is empty.
  std::string problem; ///< A sentence; empty if the printer accepts the entry.
};

/// Numbers can have a decimal comma or point, and lengths a unit; a length without one is in
/// `unit`. Rounds a length to the unit's decimals and changes nothing else. A length may be outside
/// its range by half a point, because the PPD's whole points are rounded, too.
CheckedEntry checkEntry(const CustomParameter &parameter, const std::string &typed,
                        LengthUnit unit);

/// Why `typed` is not a whole number from `low` to `high`: a sentence that begins with `name`.
/// Empty if it is one.
std::string wholeNumberProblem(const std::string &name, const std::string &typed, double low,
                               double high);

/// The same for a value of an option whose custom value is a whole number. Empty for a choice of
/// the option, and for any other option.
std::string wholeNumberProblem(ppd_file_t *ppd, const std::string &keyword,
                               const std::string &value);

/// Why the printer rejects the custom value; empty if it accepts it.
std::string customValueProblem(const CustomOption &option, const std::string &value);

/// The range of accepted values: "70.56 to 246.94 mm". Rounded inwards, because users may enter
/// either end.
std::string rangeText(const CustomParameter &parameter, LengthUnit unit);

/// A field's initial value: the range's lower end; empty for a string.
std::string initialEntry(const CustomParameter &parameter, LengthUnit unit);

/// The value for the job: a choice in the PPD's spelling, a list of choices in the PPD's order, or
/// a custom value unchanged. None if the option rejects it.
std::optional<std::string> acceptedValue(ppd_file_t *ppd, const ppd_option_t &option,
                                         const std::string &value);

/// A setting of another job or printer, adapted to a printer.
struct FittedSetting {
  std::optional<std::string> value; ///< None if the setting is dropped.
  std::string change;               ///< A sentence; empty if the value is unchanged.
};

/// Keeps a value that the printer accepts, replaces a number outside its range by the nearest one
/// (unless it is secret), and drops any other. Keeps a name that the PPD lacks if `isKept` is true,
/// or if the name belongs to CUPS ("copies", "number-up", ...; no capital letter) or to a panel
/// ("com.example.Shift"; a dot), which checks its own values.
FittedSetting fitSetting(ppd_file_t *ppd, const std::string &name, const std::string &value,
                         bool isKept);

} // namespace imageposition

#endif
