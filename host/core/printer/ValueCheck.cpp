#include "ValueCheck.hpp"

#include "ChoiceList.hpp"
#include "ForeignText.hpp"
#include "NumberText.hpp"
#include "PrinterTexts.hpp"
#include "Strings.hpp"

#include <algorithm>
#include <cmath>

namespace imageposition {

namespace {

using Kind = CustomParameter::Kind;

constexpr double kRounding = 0.5; // points
constexpr int kRangeDecimals = 4;
constexpr int kRealDecimals = 6;

/// An end of a range, rounded towards its inside.
std::string endText(const CustomParameter &parameter, double end, bool isLower, LengthUnit unit) {
  if (parameter.kind != Kind::Length)
    return plainNumber(end, kRangeDecimals);
  const int decimals = decimalsOf(unit);
  const double scale = std::pow(10, decimals);
  constexpr double kFloatingPoint = 1e-6;
  const double scaled = convert({end, LengthUnit::Point}, unit).number * scale;
  return plainNumber(
      (isLower ? std::ceil(scaled - kFloatingPoint) : std::floor(scaled + kFloatingPoint)) / scale,
      decimals);
}

std::string rangeInWords(const CustomParameter &parameter, LengthUnit unit) {
  const std::string low = numberInWords(endText(parameter, parameter.minimum, true, unit));
  const std::string high = numberInWords(endText(parameter, parameter.maximum, false, unit));
  return low == high ? low : messages::fromTo(low, high);
}

/// Users count letters, printers count bytes. The message mentions bytes only if the counts differ.
std::string lengthProblem(const CustomParameter &parameter, const std::string &typed) {
  const std::string range = rangeInWords(parameter, LengthUnit::Point);
  const bool isAscii = std::all_of(typed.begin(), typed.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  const auto say = isAscii ? messages::entryLength : messages::entryLengthInBytes;
  return say(parameter.text, std::to_string(typed.size()), range);
}

CheckedEntry checkText(const CustomParameter &parameter, const std::string &typed) {
  const bool isControl = std::any_of(typed.begin(), typed.end(), [](char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
  });
  if (isControl || !PrintSettingsStore::isUsableValue(typed))
    return {"", messages::entryUnusable(parameter.text)};
  if (parameter.kind == Kind::Passcode && typed.find_first_not_of("0123456789") != typed.npos)
    return {"", messages::entryNoDigits(parameter.text)};
  if (parameter.isOneOfSeveral && typed.find_first_of("{}") != std::string::npos)
    return {"", messages::entryHasBrackets(parameter.text)};
  const auto bytes = static_cast<double>(typed.size());
  if (bytes < parameter.minimum || bytes > parameter.maximum)
    return {"", lengthProblem(parameter, typed)};
  return {typed, ""};
}

CheckedEntry checkLength(const CustomParameter &parameter, const std::string &typed,
                         LengthUnit unit) {
  const auto length = readLength(typed, unit);
  if (!length)
    return {"", messages::entryNoNumber(parameter.text, rangeText(parameter, unit))};
  const double points = toPoints(*length).count;
  if (points < parameter.minimum - kRounding || points > parameter.maximum + kRounding)
    return {"", messages::entryOutOfRange(parameter.text, rangeText(parameter, unit))};
  return {writeLength(*length), ""};
}

/// libcups stores a real number's range as floats: 0.1 must not count as below 0.1f.
bool isWithin(const CustomParameter &parameter, double number) {
  if (parameter.kind == Kind::Integer)
    return number >= parameter.minimum && number <= parameter.maximum;
  const auto rounded = static_cast<float>(number);
  return rounded >= static_cast<float>(parameter.minimum) &&
         rounded <= static_cast<float>(parameter.maximum);
}

/// Checks the digits, like CUPS, rather than the rounded number.
bool isWhole(const std::string &number) {
  const std::size_t point = number.find_first_of(".,");
  return point == std::string::npos ||
         number.find_first_not_of("0 \t", point + 1) == std::string::npos;
}

CheckedEntry checkNumber(const CustomParameter &parameter, const std::string &typed) {
  const auto number = readNumber(typed);
  const std::string range = rangeText(parameter, LengthUnit::Point);
  if (!number)
    return {"", messages::entryNoNumber(parameter.text, range)};
  if (parameter.kind == Kind::Integer && !isWhole(typed))
    return {"", messages::entryNotWhole(parameter.text, range)};
  if (!isWithin(parameter, *number))
    return {"", messages::entryOutOfRange(parameter.text, range)};
  return {plainNumber(*number, parameter.kind == Kind::Integer ? 0 : kRealDecimals), ""};
}

/// Whether a name that the PPD lacks looks like a PPD option.
bool looksLikeOption(const std::string &name) {
  const bool hasCapital =
      std::any_of(name.begin(), name.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
  return hasCapital && name.find('.') == std::string::npos;
}

/// A choice that a job can name. "Custom" is only CUPS's mark for custom values, not a choice.
std::optional<std::string> acceptedChoice(const ppd_option_t &option, const std::string &value,
                                          bool takesCustomValue) {
  if (value.empty() || (takesCustomValue && isSame(value, kCustomChoice)))
    return std::nullopt;
  for (int i = 0; i < option.num_choices; i++)
    if (isSame(option.choices[i].choice, value))
      return option.choices[i].choice;
  return std::nullopt;
}

/// The nearest number in the range, in the value's form; none if the problem is not the range.
std::optional<std::string> nearestValue(const CustomOption &option, const std::string &value) {
  const CustomParameter &parameter = option.parameters.front();
  const auto entries = readCustomValue(option, value);
  const auto number = entries && option.parameters.size() == 1 && !parameter.isText() &&
                              parameter.kind != Kind::Length
                          ? readNumber(entries->front())
                          : std::nullopt;
  if (!number || isWithin(parameter, *number))
    return std::nullopt;
  const bool isBelow = *number < parameter.minimum;
  const std::string end = endText(parameter, isBelow ? parameter.minimum : parameter.maximum,
                                  isBelow, LengthUnit::Point);
  if (!checkEntry(parameter, end, LengthUnit::Point).problem.empty())
    return std::nullopt;
  return hasCustomPrefix(value) ? withCustomPrefix(end) : end;
}

/// For a value that the option rejects.
FittedSetting fitOther(ppd_file_t *ppd, const ppd_option_t &option, const std::string &value) {
  const std::string text = textOrKeyword(option.text, option.keyword);
  const bool isHidden = isHiddenValue(ppd, option.keyword, value);
  const auto custom = customOption(ppd, option.keyword);
  if (!custom || !readCustomValue(*custom, value))
    return {std::nullopt, messages::misfitChoice(text, isHidden ? kHiddenValue : value)};
  // A PIN or password must not be adjusted.
  const auto nearest = isHidden ? std::nullopt : nearestValue(*custom, value);
  if (nearest)
    return {nearest, messages::broughtIntoRange(
                         text, withoutCustomPrefix(value), withoutCustomPrefix(*nearest),
                         rangeText(custom->parameters.front(), LengthUnit::Point))};
  return {std::nullopt, messages::misfitEntered(text, customValueProblem(*custom, value))};
}

} // namespace

CheckedEntry checkEntry(const CustomParameter &parameter, const std::string &typed,
                        LengthUnit unit) {
  if (parameter.isText())
    return checkText(parameter, typed);
  const std::string number = asciiNumber(typed);
  return parameter.kind == Kind::Length ? checkLength(parameter, number, unit)
                                        : checkNumber(parameter, number);
}

std::string wholeNumberProblem(const std::string &name, const std::string &typed, double low,
                               double high) {
  CustomParameter parameter;
  parameter.text = name;
  parameter.kind = Kind::Integer;
  parameter.minimum = low;
  parameter.maximum = high;
  if (!readNumber(typed))
    return messages::notANumber(name, typed);
  if (typed.find_first_of(".,") != std::string::npos) // a panel would drop the point of "5.0"
    return messages::entryNotWhole(name, rangeText(parameter, LengthUnit::Point));
  return checkEntry(parameter, typed, LengthUnit::Point).problem;
}

std::string wholeNumberProblem(ppd_file_t *ppd, const std::string &keyword,
                               const std::string &value) {
  const auto option = customOption(ppd, keyword);
  if (!option || option->parameters.size() != 1 ||
      option->parameters.front().kind != Kind::Integer ||
      acceptedValue(ppd, *ppdFindOption(ppd, keyword.c_str()), value))
    return {};
  const CustomParameter &parameter = option->parameters.front();
  return wholeNumberProblem(keyword, withoutCustomPrefix(value), parameter.minimum,
                            parameter.maximum);
}

std::string customValueProblem(const CustomOption &option, const std::string &value) {
  const auto entries = readCustomValue(option, value);
  if (!entries)
    return messages::entryUnusable(option.keyword);
  for (std::size_t i = 0; i < entries->size(); i++) {
    const CheckedEntry checked = checkEntry(option.parameters[i], (*entries)[i], LengthUnit::Point);
    if (!checked.problem.empty())
      return checked.problem;
  }
  return {};
}

std::string rangeText(const CustomParameter &parameter, LengthUnit unit) {
  const std::string range = rangeInWords(parameter, unit);
  if (parameter.kind == Kind::Length)
    return inUnit(range, unit);
  if (parameter.kind == Kind::Passcode)
    return messages::digits(range);
  return parameter.isText() ? messages::letters(range) : range;
}

std::string initialEntry(const CustomParameter &parameter, LengthUnit unit) {
  return parameter.isText() ? "" : numberInWords(endText(parameter, parameter.minimum, true, unit));
}

std::optional<std::string> acceptedValue(ppd_file_t *ppd, const ppd_option_t &option,
                                         const std::string &value) {
  if (option.ui == PPD_UI_PICKMANY) {
    const ChoiceList wanted = splitChoices(value);
    return areChoices(option, wanted) ? std::optional(joinChoices(inOrder(option, wanted)))
                                      : std::nullopt;
  }
  const bool takesCustomValue = ppdFindCustomOption(ppd, option.keyword) != nullptr;
  if (auto choice = acceptedChoice(option, value, takesCustomValue))
    return choice;
  const auto custom = takesCustomValue ? customOption(ppd, option.keyword) : std::nullopt;
  if (!custom || !customValueProblem(*custom, value).empty())
    return std::nullopt;
  return value;
}

FittedSetting fitSetting(ppd_file_t *ppd, const std::string &name, const std::string &value,
                         bool isKept) {
  const ppd_option_t *const option = ppdFindOption(ppd, name.c_str());
  if (option == nullptr) {
    if (isKept || !looksLikeOption(name))
      return {value, ""};
    const bool isHidden = isHiddenValue(ppd, name, value);
    return {std::nullopt, messages::misfitOption(name, isHidden ? kHiddenValue : value)};
  }
  if (acceptedValue(ppd, *option, value))
    return {value, ""};
  return fitOther(ppd, *option, value);
}

} // namespace imageposition
