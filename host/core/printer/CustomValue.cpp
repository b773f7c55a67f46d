#include "CustomValue.hpp"

#include "ForeignText.hpp"
#include "OptionText.hpp"
#include "Phrases.hpp"
#include "PrinterTexts.hpp"
#include "SecretOptions.hpp"
#include "Strings.hpp"

#include <algorithm>
#include <utility>

namespace imageposition {

namespace {

using Kind = CustomParameter::Kind;

constexpr std::string_view kPrefix = "Custom.";

std::optional<Kind> kindOf(ppd_cptype_t type) {
  switch (type) {
  case PPD_CUSTOM_INT:
    return Kind::Integer;
  case PPD_CUSTOM_REAL:
  case PPD_CUSTOM_CURVE:
  case PPD_CUSTOM_INVCURVE:
    return Kind::Real;
  case PPD_CUSTOM_POINTS:
    return Kind::Length;
  case PPD_CUSTOM_STRING:
    return Kind::Text;
  case PPD_CUSTOM_PASSWORD:
    return Kind::Password;
  case PPD_CUSTOM_PASSCODE:
    return Kind::Passcode;
  default:
    return std::nullopt;
  }
}

/// The limit from the union's member for this type.
double limit(const ppd_cplimit_t &limit, ppd_cptype_t type) {
  switch (type) {
  case PPD_CUSTOM_REAL:
  case PPD_CUSTOM_CURVE:
  case PPD_CUSTOM_INVCURVE:
  case PPD_CUSTOM_POINTS:
    return limit.custom_real;
  default:
    return limit.custom_int;
  }
}

std::optional<CustomParameter> parameterOf(const ppd_cparam_t &source) {
  const auto kind = kindOf(source.type);
  if (!kind)
    return std::nullopt;
  CustomParameter parameter;
  parameter.name = source.name;
  parameter.text = textOrKeyword(source.text, source.name);
  parameter.kind = *kind;
  const double one = limit(source.minimum, source.type), other = limit(source.maximum, source.type);
  parameter.minimum = std::min(one, other);
  parameter.maximum = std::max(one, other);
  return parameter;
}

/// A PPD can declare custom page sizes without giving their limits.
bool hasPageSizes(const ppd_file_t &ppd) {
  return ppd.variable_sizes != 0 && ppd.custom_max[0] > 0 && ppd.custom_max[1] > 0;
}

CustomOption pageSizeOption(const ppd_file_t &ppd) {
  const auto parameter = [&](const char *name, const Text &text, int side) {
    CustomParameter result;
    result.name = name;
    result.text = text;
    result.kind = Kind::Length;
    result.minimum = std::min(ppd.custom_min[side], ppd.custom_max[side]);
    result.maximum = std::max(ppd.custom_min[side], ppd.custom_max[side]);
    return result;
  };
  return {
      "PageSize",
      true,
      {parameter("Width", messages::kPageWidth, 0), parameter("Height", messages::kPageHeight, 1)}};
}

std::optional<CustomEntries> readPageSize(const std::string &size) {
  const std::size_t by = size.find('x');
  if (by == std::string::npos || size.find_first_of(", \t") != std::string::npos)
    return std::nullopt;
  const std::size_t end = size.find_last_of("0123456789.");
  const std::string unit = end == std::string::npos ? "" : size.substr(end + 1);
  const auto width = readLength(size.substr(0, by) + unit);
  const auto height = readLength(size.substr(by + 1));
  if (!width || !height)
    return std::nullopt;
  return CustomEntries{writeLength(*width), writeLength(*height)};
}

/// `checkEntry` accepts blanks and a decimal comma, but CUPS would stop reading at them.
bool isInForm(const CustomParameter &parameter, const std::string &entry) {
  return parameter.isText() || entry.find_first_of(", \t") == std::string::npos;
}

CustomEntries readSeveral(const CustomOption &option, const std::string &value) {
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(value.c_str(), 0, &options);
  CustomEntries entries;
  for (const CustomParameter &parameter : option.parameters) {
    const char *const entry = cupsGetOption(parameter.name.c_str(), count, options);
    entries.emplace_back(entry != nullptr ? entry : "");
  }
  cupsFreeOptions(count, options);
  return entries;
}

std::string entryText(const CustomParameter &parameter, const std::string &entry) {
  if (parameter.isHidden())
    return kHiddenValue;
  if (parameter.isText())
    return entry;
  if (parameter.kind != Kind::Length)
    return numberInWords(entry);
  const auto length = readLength(entry);
  return length ? inUnit(numberInWords(plainNumber(length->number, decimalsOf(length->unit))),
                         length->unit)
                : entry;
}

std::string pageSizeText(const CustomEntries &entries) {
  const auto width = readLength(entries[0]), height = readLength(entries[1]);
  if (!width || !height)
    return {};
  const auto number = [](const Length &length) {
    return numberInWords(plainNumber(length.number, decimalsOf(length.unit)));
  };
  return inUnit(messages::widthByHeight(number(*width), number(convert(*height, width->unit))),
                width->unit);
}

/// Splits the value without checking its parts.
std::optional<CustomEntries> entriesOf(const CustomOption &option, const std::string &value) {
  if (hasCustomPrefix(value)) {
    std::string entry = withoutCustomPrefix(value);
    if (option.isPageSize) // CUPS is case-sensitive here
      return startsWith(value, kPrefix) ? readPageSize(entry) : std::nullopt;
    CustomEntries entries(option.parameters.size());
    entries.front() = std::move(entry); // like CUPS
    return entries;
  }
  if (!option.isPageSize && !value.empty() && value.front() == '{')
    return readSeveral(option, value);
  const bool isOneNumber = option.parameters.size() == 1 && !option.parameters.front().isText();
  return isOneNumber && readNumber(value) ? std::optional(CustomEntries{value}) : std::nullopt;
}

} // namespace

const char *const kHiddenValue = "••••"; // does not reveal the length, either

bool CustomOption::hasHidden() const noexcept {
  return std::any_of(parameters.begin(), parameters.end(),
                     [](const CustomParameter &parameter) { return parameter.isHidden(); });
}

bool CustomOption::hasLength() const noexcept {
  return std::any_of(parameters.begin(), parameters.end(), [](const CustomParameter &parameter) {
    return parameter.kind == Kind::Length;
  });
}

std::optional<CustomOption> customOption(ppd_file_t *ppd, const std::string &keyword) {
  ppd_coption_t *const source = ppdFindCustomOption(ppd, keyword.c_str());
  if (source == nullptr)
    return std::nullopt;
  if (isSame(keyword, "PageSize"))
    return hasPageSizes(*ppd) ? std::optional(pageSizeOption(*ppd)) : std::nullopt;
  CustomOption option{source->keyword, false, {}};
  std::vector<const ppd_cparam_t *> parameters;
  for (ppd_cparam_t *parameter = ppdFirstCustomParam(source); parameter != nullptr;
       parameter = ppdNextCustomParam(source))
    parameters.push_back(parameter);
  std::stable_sort(parameters.begin(), parameters.end(),
                   [](const auto *left, const auto *right) { return left->order < right->order; });
  for (const ppd_cparam_t *known : parameters) {
    auto parameter = parameterOf(*known);
    if (!parameter)
      return std::nullopt;
    parameter->isOneOfSeveral = parameters.size() > 1;
    if (parameter->isOneOfSeveral && !PrintSettingsStore::isUsableName(parameter->name))
      return std::nullopt; // "{name=value}" cannot express it
    option.parameters.push_back(std::move(*parameter));
  }
  return option.parameters.empty() ? std::nullopt : std::optional(option);
}

std::string withCustomPrefix(const std::string &value) { return std::string(kPrefix) + value; }

bool hasCustomPrefix(std::string_view value) noexcept {
  return isSame(value.substr(0, kPrefix.size()), kPrefix);
}

std::string withoutCustomPrefix(const std::string &value) {
  return hasCustomPrefix(value) ? value.substr(kPrefix.size()) : value;
}

bool isEnteredValue(const std::string &value) {
  return hasCustomPrefix(value) || (!value.empty() && value.front() == '{');
}

std::optional<CustomEntries> readCustomValue(const CustomOption &option, const std::string &value) {
  auto entries = entriesOf(option, value);
  for (std::size_t i = 0; entries && i < entries->size(); i++)
    if (!isInForm(option.parameters[i], (*entries)[i]))
      return std::nullopt;
  return entries;
}

std::string writeCustomValue(const CustomOption &option, const CustomEntries &entries) {
  if (option.isPageSize) {
    Length width = readLength(entries[0]).value_or(Length());
    Length height = readLength(entries[1]).value_or(Length());
    if (width.unit != height.unit) {
      width = convert(width, LengthUnit::Point);
      height = convert(height, LengthUnit::Point);
    }
    return withCustomPrefix(plainNumber(width.number, decimalsOf(width.unit)) + "x" +
                            writeLength(height));
  }
  if (entries.size() == 1)
    return withCustomPrefix(entries.front());
  std::string value;
  for (std::size_t i = 0; i < entries.size(); i++)
    value += (i == 0 ? "{" : " ") + writeOptionArgument(option.parameters[i].name, entries[i]);
  return value + "}";
}

std::string customValueForm(const CustomOption &option) {
  if (option.isPageSize)
    return withCustomPrefix("WIDTHxHEIGHT");
  if (option.parameters.size() == 1)
    return withCustomPrefix("VALUE");
  std::string form;
  for (const CustomParameter &parameter : option.parameters)
    form += (form.empty() ? "{" : " ") + parameter.name + "=VALUE";
  return form + "}";
}

std::string customValueText(const CustomOption &option, const std::string &value) {
  const auto entries = readCustomValue(option, value);
  if (!entries)
    return option.hasHidden() ? kHiddenValue : value;
  if (option.isPageSize) {
    const std::string size = pageSizeText(*entries);
    return size.empty() ? value : size;
  }
  if (entries->size() == 1)
    return entryText(option.parameters.front(), entries->front());
  std::vector<std::string> parts;
  for (std::size_t i = 0; i < entries->size(); i++)
    parts.push_back(
        messages::named(option.parameters[i].text, entryText(option.parameters[i], (*entries)[i])));
  return messages::inOrder(parts);
}

bool isHiddenValue(ppd_file_t *ppd, const std::string &keyword, const std::string &value) {
  if (isSecretName(keyword))
    return true;
  const auto option = ppd != nullptr ? customOption(ppd, keyword) : std::nullopt;
  if (!option || !option->hasHidden())
    return false;
  ppd_option_t *const source = ppdFindOption(ppd, keyword.c_str());
  return isEnteredValue(value) || source == nullptr ||
         ppdFindChoice(source, value.c_str()) == nullptr;
}

void makePlainNumber(ppd_file_t *ppd, const std::string &keyword, PrintSettingsStore &settings) {
  const char *const value = settings.get(keyword);
  if (value == nullptr || !hasCustomPrefix(value))
    return;
  const auto option = customOption(ppd, keyword);
  if (!option || option->parameters.size() != 1)
    return;
  const auto entries = readCustomValue(*option, value);
  if (entries && readNumber(entries->front()))
    settings.set(keyword, std::string(entries->front()));
}

std::vector<std::string> hiddenSettings(ppd_file_t *ppd, const PrintSettingsStore &settings) {
  std::vector<std::string> names;
  for (int i = 0; i < settings.optionCount(); i++)
    if (isHiddenValue(ppd, settings.options()[i].name, settings.options()[i].value))
      names.emplace_back(settings.options()[i].name);
  return names;
}

std::vector<std::string> compoundOptions(ppd_file_t *ppd) {
  std::vector<std::string> names;
  for (ppd_option_t *option = ppdFirstOption(ppd); option != nullptr; option = ppdNextOption(ppd))
    if (const auto custom = customOption(ppd, option->keyword))
      if (!custom->isPageSize && custom->parameters.size() > 1)
        names.emplace_back(option->keyword);
  return names;
}

} // namespace imageposition
