#include "UnknownValues.hpp"

#include "CustomValue.hpp"
#include "JobSettingsTexts.hpp"
#include "ReleaseTime.hpp"
#include "SettingTable.hpp"
#include "Strings.hpp"
#include "ValueCheck.hpp"

#include <algorithm>
#include <cups/pwg.h>
#include <map>
#include <sstream>

namespace imageposition {

namespace {

constexpr std::size_t kMostExamples = 6;

/// Empty if the PPD's option accepts the value.
std::string problemOfOption(ppd_file_t *ppd, const ppd_option_t &option, const std::string &value) {
  if (acceptedValue(ppd, option, value))
    return {};
  const bool takesCustomValue = ppdFindCustomOption(ppd, option.keyword) != nullptr;
  const auto custom = takesCustomValue ? customOption(ppd, option.keyword) : std::nullopt;
  if (takesCustomValue && !custom)
    return {}; // it cannot be checked
  const std::string shown = isHiddenValue(ppd, option.keyword, value) ? kHiddenValue : value;
  if (custom && readCustomValue(*custom, value))
    return messages::refusedValue(option.keyword, shown, customValueProblem(*custom, value));
  std::vector<std::string> known;
  for (int i = 0; i < option.num_choices && known.size() < kMostExamples; i++)
    if (!takesCustomValue || !isSame(option.choices[i].choice, kCustomChoice))
      known.emplace_back(option.choices[i].choice);
  return messages::unknownValue(option.keyword, shown, known);
}

bool isPriority(const std::string &value) {
  return wholeNumberProblem("job-priority", value, 1, 100).empty();
}

bool isKnown(const JobSetting &setting, const std::string &value) {
  const auto isValue = [&](const char *known) { return *known != '\0' && isSame(known, value); };
  if (std::any_of(setting.choices.begin(), setting.choices.end(),
                  [&](const SettingChoice &choice) { return isValue(choice.value); }) ||
      std::any_of(setting.others.begin(), setting.others.end(), isValue))
    return true;
  if (isSame(setting.name, "job-priority"))
    return isPriority(value);
  return isSame(setting.name, "job-hold-until") &&
         localReleaseTime(value, std::time(nullptr)).has_value();
}

std::string problemOfSetting(const JobSetting &setting, const std::string &value) {
  if (isKnown(setting, value))
    return {};
  std::vector<std::string> known;
  for (const SettingChoice &choice : setting.choices)
    if (*choice.value != '\0' && known.size() < kMostExamples)
      known.emplace_back(choice.value);
  return messages::unknownValue(setting.name, value, known);
}

/// Options that CUPS translates to those of a printer.
const std::map<std::string, std::vector<std::string>> &translatedOptions() {
  static const std::map<std::string, std::vector<std::string>> kOptions{
      {"sides", {"one-sided", "two-sided-long-edge", "two-sided-short-edge"}},
      {"page-set", {"all", "even", "odd"}},
      {"print-quality", {"3", "4", "5"}},
      {"print-color-mode", {"auto", "color", "monochrome"}}};
  return kOptions;
}

/// `name` is one of the words in the value of `media`. Trays and types of paper may have names by
/// IPP, such as "tray-1" and "stationery", which libcups keeps to itself.
bool isMedia(ppd_file_t *ppd, const std::string &name) {
  const bool isKeyword =
      name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-") == std::string::npos;
  const auto isChoice = [&](const char *option) {
    return ppdFindChoice(ppdFindOption(ppd, option), name.c_str()) != nullptr;
  };
  return isKeyword || hasCustomPrefix(name) || isChoice("PageSize") || isChoice("InputSlot") ||
         isChoice("MediaType") || pwgMediaForPWG(name.c_str()) != nullptr ||
         pwgMediaForLegacy(name.c_str()) != nullptr || pwgMediaForPPD(name.c_str()) != nullptr;
}

std::string problemOfMedia(ppd_file_t *ppd, const std::string &value) {
  std::istringstream names(value);
  for (std::string name; std::getline(names, name, ',');)
    if (!isMedia(ppd, name))
      return messages::unknownValue("media", name, {});
  return {};
}

/// Empty for other options.
std::string problemOfTranslated(ppd_file_t *ppd, const std::string &name,
                                const std::string &value) {
  if (name == "media")
    return problemOfMedia(ppd, value);
  const auto found = translatedOptions().find(name);
  if (found == translatedOptions().end() || contains(found->second, value))
    return {};
  return messages::unknownValue(name, value, found->second);
}

} // namespace

std::vector<std::string> unknownValues(const PrinterDescription &printer,
                                       const PrintSettingsStore &job,
                                       const std::vector<std::string> &panelKeywords) {
  std::vector<std::string> sentences;
  for (int i = 0; i < job.optionCount(); i++) {
    const cups_option_t &setting = job.options()[i];
    if (contains(panelKeywords, setting.name))
      continue;
    std::string problem;
    if (const ppd_option_t *const option = ppdFindOption(printer.ppd(), setting.name))
      problem = problemOfOption(printer.ppd(), *option, setting.value);
    else if (const JobSetting *const known = findSetting(setting.name))
      problem = problemOfSetting(*known, setting.value);
    else
      problem = problemOfTranslated(printer.ppd(), setting.name, setting.value);
    if (!problem.empty())
      sentences.push_back(std::move(problem));
  }
  return sentences;
}

} // namespace imageposition
