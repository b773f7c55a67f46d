#include "PresetFit.hpp"

#include "ChoiceList.hpp"
#include "EntryCheck.hpp"
#include "ForeignText.hpp"
#include "PrinterTexts.hpp"
#include "Strings.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <strings.h>

namespace imageposition {

namespace {

constexpr const char *kCustomPrefix = "Custom.";

bool hasCapital(const std::string &name) {
  return std::any_of(name.begin(), name.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

bool startsWithCustom(const std::string &value) {
  return strncasecmp(value.c_str(), kCustomPrefix, 7) == 0;
}

bool isPlainChoice(const ppd_option_t &option, const std::string &value) {
  for (int i = 0; i < option.num_choices; i++)
    if (isSame(option.choices[i].choice, value))
      return true;
  return false;
}

struct Limits {
  double lowest;
  double highest;
};

/// None for a parameter that is no plain number.
bool limitsOf(const ppd_cparam_t &parameter, Limits &limits) {
  switch (parameter.type) {
  case PPD_CUSTOM_INT:
    limits = {double(parameter.minimum.custom_int), double(parameter.maximum.custom_int)};
    return true;
  case PPD_CUSTOM_REAL:
    limits = {parameter.minimum.custom_real, parameter.maximum.custom_real};
    return true;
  case PPD_CUSTOM_CURVE:
  case PPD_CUSTOM_INVCURVE:
    limits = {parameter.minimum.custom_curve, parameter.maximum.custom_curve};
    return true;
  default:
    return false;
  }
}

std::string numberText(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", number);
  return text;
}

bool isPageSizeAllowed(ppd_file_t *ppd, const std::string &value) {
  const ppd_size_t *const size = ppdPageSize(ppd, value.c_str());
  constexpr double kRounding = 0.5; // points; sizes are given in millimetres and inches, too
  return size != nullptr && ppd->variable_sizes != 0 &&
         size->width >= ppd->custom_min[0] - kRounding &&
         size->width <= ppd->custom_max[0] + kRounding &&
         size->length >= ppd->custom_min[1] - kRounding &&
         size->length <= ppd->custom_max[1] + kRounding;
}

/// For texts, lengths and several parameters at once.
std::string misfitOfEntries(ppd_file_t *ppd, const char *keyword, const std::string &text,
                            const std::string &value) {
  const auto option = customOption(ppd, keyword);
  if (!option || !readCustomValue(*option, value))
    return messages::misfitChoice(text, isHiddenValue(ppd, keyword, value) ? kHiddenValue : value);
  const std::string problem = customValueProblem(*option, value);
  return problem.empty() ? "" : messages::misfitEntered(text, problem);
}

/// For an option that takes a value of the person's own.
std::string misfitOfEntered(ppd_file_t *ppd, ppd_coption_t &custom, const std::string &text,
                            const std::string &value) {
  if (isSame(custom.keyword, "PageSize"))
    return startsWithCustom(value) && isPageSizeAllowed(ppd, value)
               ? ""
               : messages::misfitChoice(text, value);
  ppd_cparam_t *const parameter = ppdFirstCustomParam(&custom);
  Limits limits{};
  if (cupsArrayCount(custom.params) != 1 || parameter == nullptr || !limitsOf(*parameter, limits))
    return misfitOfEntries(ppd, custom.keyword, text, value);
  const std::string digits = startsWithCustom(value) ? value.substr(7) : value;
  char *end = nullptr;
  const double number = std::strtod(digits.c_str(), &end);
  if (digits.empty() || *end != '\0' || !std::isfinite(number))
    return messages::misfitChoice(text, value);
  if (number < limits.lowest || number > limits.highest)
    return messages::misfitRange(text, digits, numberText(limits.lowest),
                                 numberText(limits.highest));
  return {};
}

} // namespace

std::string misfitOf(ppd_file_t *ppd, const std::string &name, const std::string &value,
                     bool isKept) {
  ppd_option_t *const option = ppdFindOption(ppd, name.c_str());
  if (option == nullptr)
    return isKept || !hasCapital(name)
               ? ""
               : messages::misfitOption(name,
                                        isHiddenValue(ppd, name, value) ? kHiddenValue : value);
  if (isPlainChoice(*option, value))
    return {};
  const std::string text = textOrKeyword(option->text, option->keyword);
  if (option->ui == PPD_UI_PICKMANY)
    return areChoices(*option, splitChoices(value)) ? "" : messages::misfitChoice(text, value);
  ppd_coption_t *const custom = ppdFindCustomOption(ppd, option->keyword);
  if (custom == nullptr || value.empty())
    return messages::misfitChoice(text, value);
  return misfitOfEntered(ppd, *custom, text, value);
}

} // namespace imageposition
