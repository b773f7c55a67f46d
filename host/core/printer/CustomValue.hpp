/// Custom values, for options whose PPD accepts other values than its choices.
#ifndef IMAGEPOSITION_CORE_PRINTER_CUSTOMVALUE_HPP
#define IMAGEPOSITION_CORE_PRINTER_CUSTOMVALUE_HPP

#include "LengthUnit.hpp"
#include "PrintSettingsStore.hpp"

#include <cups/ppd.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// A parameter of a custom value: a "ParamCustom" of the PPD.
struct CustomParameter {
  enum class Kind { Integer, Real, Length, Text, Password, Passcode };

  std::string name; ///< As CUPS accepts it in "{name=value}".
  std::string text; ///< The name to show; never empty.
  Kind kind = Kind::Text;
  /// The range of a number, of a length in points, or of a string's size in UTF-8 bytes, which is
  /// what a printer limits. Sorted, even if the PPD has them reversed.
  double minimum = 0;
  double maximum = 0;
  bool isOneOfSeveral = false; ///< Is part of "{...}", which cannot express every string.

  bool isText() const noexcept { return kind >= Kind::Text; }
  bool isHidden() const noexcept { return kind >= Kind::Password; }
};

/// How to enter a custom value of an option.
struct CustomOption {
  std::string keyword;
  bool isPageSize = false; ///< Its value is "Custom.WIDTHxHEIGHT".
  /// In the PPD's order; never empty. A page size has only width and height, because CUPS chooses
  /// the orientation and the offset across the feed, whatever the job says.
  std::vector<CustomParameter> parameters;

  bool hasHidden() const noexcept;
  bool hasLength() const noexcept;
};

/// None if the option has no custom value, or one that cannot be entered: without a parameter, with
/// one of a type that libcups does not support, or with several of which one has no usable name.
/// `ppdLocalize` determines the language of the names.
std::optional<CustomOption> customOption(ppd_file_t *ppd, const std::string &keyword);

/// One string for each parameter, as CUPS accepts it: "7", "0.5", "100mm" or "30" (points),
/// "words".
using CustomEntries = std::vector<std::string>;

/// The choice that CUPS marks for a custom value.
constexpr const char *kCustomChoice = "Custom";

/// Returns "Custom.VALUE".
std::string withCustomPrefix(const std::string &value);
/// Whether the value begins with "Custom.", in any case, like CUPS.
bool hasCustomPrefix(std::string_view value) noexcept;
/// Removes "Custom.", if present.
std::string withoutCustomPrefix(const std::string &value);

/// Whether the value has the form of a custom value: "Custom.VALUE" or "{name=value ...}".
bool isEnteredValue(const std::string &value);

/// Shown in place of a secret value or part of one.
extern const char *const kHiddenValue;

/// Reads "Custom.VALUE", "Custom.WIDTHxHEIGHTUNIT", "{name=value ...}" and a plain number, which
/// some clients send. A parameter that "{...}" omits is empty. None for anything else.
std::optional<CustomEntries> readCustomValue(const CustomOption &option, const std::string &value);

/// The inverse of `readCustomValue`. `entries` has one for each parameter. Converts width and
/// height to points if their units differ.
std::string writeCustomValue(const CustomOption &option, const CustomEntries &entries);

/// The form of the value on a command line: "Custom.VALUE", "Custom.WIDTHxHEIGHT" or "{name=VALUE
/// ...}".
std::string customValueForm(const CustomOption &option);

/// The value for display, without its hidden parts: "100 × 200 mm", "12", "User: me, Code: ••••".
/// The value itself if it cannot be parsed, unless the option has a hidden part.
std::string customValueText(const CustomOption &option, const std::string &value);

/// Whether the value is secret: `isSecretName` is true for the option, or it is a custom value with
/// a part that the PPD declares as a password. `ppd` may be null.
bool isHiddenValue(ppd_file_t *ppd, const std::string &keyword, const std::string &value);

/// Replaces an option's "Custom.VALUE" by the plain number, which filters accept, too, and which
/// panels read and write. Keeps other values and locked settings.
void makePlainNumber(ppd_file_t *ppd, const std::string &keyword, PrintSettingsStore &settings);

/// The names of the settings with such values.
std::vector<std::string> hiddenSettings(ppd_file_t *ppd, const PrintSettingsStore &settings);

/// The options whose custom values have several parameters.
std::vector<std::string> compoundOptions(ppd_file_t *ppd);

} // namespace imageposition

#endif
