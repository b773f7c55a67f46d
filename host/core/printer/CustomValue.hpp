/// Values of a person's own, for options whose PPD lets one be entered besides its choices.
#ifndef IMAGEPOSITION_HOST_CUSTOMVALUE_HPP
#define IMAGEPOSITION_HOST_CUSTOMVALUE_HPP

#include "LengthUnit.hpp"
#include "PrintSettingsStore.hpp"

#include <cups/ppd.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// One thing to enter: a "ParamCustom" of the PPD.
struct CustomParameter {
  enum class Kind { Integer, Real, Length, Text, Password, Passcode };

  std::string name; ///< As CUPS takes it in "{name=value}".
  std::string text; ///< What the person reads; never empty.
  Kind kind = Kind::Text;
  /// Of the number, which a length has in points; of a text, how many bytes it has in UTF-8, since
  /// that is what a printer has room for. The smaller one first, however the PPD has them.
  double minimum = 0;
  double maximum = 0;
  bool isOneOfSeveral = false; ///< Goes into "{...}", in which not every text can be said.

  bool isText() const noexcept { return kind >= Kind::Text; }
  bool isHidden() const noexcept { return kind >= Kind::Password; }
};

/// What is entered for one option.
struct CustomOption {
  std::string keyword;
  bool isPageSize = false; ///< Its value is "Custom.WIDTHxHEIGHT".
  /// In the PPD's order; never empty. Of a page size the width and the height: its orientation and
  /// its place across the feed are CUPS's to choose, whatever the job says.
  std::vector<CustomParameter> parameters;

  bool hasHidden() const noexcept;
  bool hasLength() const noexcept;
};

/// None for an option that has no value to enter, or one that nobody knows how to: without a
/// parameter, with one of a type that libcups does not know, or with several that have no names.
/// `ppdLocalize` decides on the texts' language.
std::optional<CustomOption> customOption(ppd_file_t *ppd, const std::string &keyword);

/// A text for each parameter, as CUPS takes it: "7", "0.5", "100mm" or "30" (points), "words".
using CustomEntries = std::vector<std::string>;

/// What CUPS marks while a value that was entered holds.
constexpr const char *kCustomChoice = "Custom";

/// "Custom.VALUE", the form of a value that was entered.
std::string withCustomPrefix(const std::string &value);
/// Whether "Custom." stands before the value, in any case as CUPS reads it.
bool hasCustomPrefix(std::string_view value) noexcept;
/// The value itself where nothing stands before it.
std::string withoutCustomPrefix(const std::string &value);

/// Whether the value has a form that only entered ones have: "Custom.VALUE" or "{name=value ...}".
bool isEnteredValue(const std::string &value);

/// What stands for a value, or a part of it, that is nobody else's to read.
extern const char *const kHiddenValue;

/// Reads "Custom.VALUE", "Custom.WIDTHxHEIGHTUNIT" and "{name=value ...}"; also a number alone,
/// which some clients send. A parameter that a "{...}" leaves out is empty. None for anything else.
std::optional<CustomEntries> readCustomValue(const CustomOption &option, const std::string &value);

/// The option's value in the form that fits it. `entries` has one for each parameter. Width and
/// height in different units become points.
std::string writeCustomValue(const CustomOption &option, const CustomEntries &entries);

/// How the value stands on a command line: "Custom.VALUE", "Custom.WIDTHxHEIGHT" or
/// "{name=VALUE ...}".
std::string customValueForm(const CustomOption &option);

/// The value in words, without its hidden parts: "100 × 200 mm", "12", "User: me, Code: ••••". The
/// value itself where it cannot be read, unless the option hides something.
std::string customValueText(const CustomOption &option, const std::string &value);

/// Whether nobody else may read the value: the option is one of `isSecretName`, or the value was
/// entered and has a part that the PPD calls a password. `ppd` may be null.
bool isHiddenValue(ppd_file_t *ppd, const std::string &keyword, const std::string &value);

/// Makes "Custom.VALUE" of an option into the number alone, which filters take, too, and panels
/// write and read. Settings with other values, and locked ones, stay.
void makePlainNumber(ppd_file_t *ppd, const std::string &keyword, PrintSettingsStore &settings);

/// Of the settings the names of those with such values.
std::vector<std::string> hiddenSettings(ppd_file_t *ppd, const PrintSettingsStore &settings);

/// The options whose values have several parts.
std::vector<std::string> compoundOptions(ppd_file_t *ppd);

} // namespace imageposition

#endif
