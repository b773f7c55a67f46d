#include "host/PrinterOptions.hpp"

#include "host/WindowTexts.hpp"

#include <algorithm>
#include <map>
#include <strings.h>

namespace imageposition {

namespace {

bool isSame(const std::string &left, const std::string &right) {
  return strcasecmp(left.c_str(), right.c_str()) == 0;
}

bool contains(const std::vector<std::string> &keywords, const std::string &keyword) {
  return std::any_of(keywords.begin(), keywords.end(),
                     [&](const std::string &other) { return isSame(other, keyword); });
}

std::string textOr(const char *text, const char *keyword) {
  return text != nullptr && *text != '\0' ? text : keyword;
}

/// The choice that CUPS adds to an option that takes a value of the person's own.
bool isCustom(const ppd_choice_t &choice) { return isSame(choice.choice, "Custom"); }

std::string markedChoice(ppd_file_t *ppd, const char *keyword) {
  const ppd_choice_t *const marked = ppdFindMarkedChoice(ppd, keyword);
  return marked != nullptr ? marked->choice : "";
}

/// By keyword.
using Marked = std::map<std::string, std::string>;

void collectMarked(ppd_file_t *ppd, const ppd_group_t &group, Marked &marked) {
  for (int i = 0; i < group.num_options; i++)
    marked[group.options[i].keyword] = markedChoice(ppd, group.options[i].keyword);
  for (int i = 0; i < group.num_subgroups; i++)
    collectMarked(ppd, group.subgroups[i], marked);
}

Marked allMarked(ppd_file_t *ppd) {
  Marked marked;
  for (int i = 0; i < ppd->num_groups; i++)
    collectMarked(ppd, ppd->groups[i], marked);
  return marked;
}

/// A job's settings that say the same as an option, under names that are not the PPD's.
constexpr std::pair<const char *, const char *> kAliases[] = {
    {"PageSize", "media"},       {"PageSize", "PageRegion"},
    {"Duplex", "sides"},         {"JCLDuplex", "sides"},
    {"EFDuplex", "sides"},       {"KD03Duplex", "sides"},
    {"OutputBin", "output-bin"}, {"ColorModel", "print-color-mode"}};

/// Builds options from the PPD as it is marked for the job.
class Builder {
public:
  Builder(ppd_file_t *ppd, const PrintSettingsStore &job, Marked defaults)
      : ppd_(ppd), job_(job), defaults_(std::move(defaults)) {}

  void addGroup(const ppd_group_t &source, std::vector<OptionGroup> &groups) const {
    OptionGroup group{textOr(source.name, source.text), textOr(source.text, source.name), {}};
    if (group.text == "General")
      group.text = messages::kGeneralGroup;
    for (int i = 0; i < source.num_options; i++)
      group.options.push_back(option(source.options[i]));
    groups.push_back(std::move(group));
    for (int i = 0; i < source.num_subgroups; i++)
      addGroup(source.subgroups[i], groups);
  }

  PrinterOption option(const ppd_option_t &source) const {
    PrinterOption option;
    option.keyword = source.keyword;
    option.text = textOr(source.text, source.keyword);
    option.kind =
        source.ui == PPD_UI_BOOLEAN ? PrinterOption::Kind::Switch : PrinterOption::Kind::List;
    option.isLocked = job_.isLocked(source.keyword);
    option.takesCustomValue = ppdFindCustomOption(ppd_, source.keyword) != nullptr;
    for (int i = 0; i < source.num_choices; i++) {
      const ppd_choice_t &choice = source.choices[i];
      if (!(option.takesCustomValue && isCustom(choice)))
        option.choices.push_back({choice.choice, textOr(choice.text, choice.choice)});
    }
    option.chosen = markedChoice(ppd_, source.keyword);
    const auto known = defaults_.find(source.keyword);
    if (known != defaults_.end())
      option.defaultChoice = known->second;
    if (option.takesCustomValue && isSame(option.chosen, "Custom"))
      nameEnteredValue(option);
    return option;
  }

private:
  /// Marking keeps the choice "Custom" alone; the job has the value.
  void nameEnteredValue(PrinterOption &option) const {
    if (const char *const value = job_.get(option.keyword))
      option.chosen = value;
    option.choices.push_back({option.chosen, option.chosen});
  }

  ppd_file_t *ppd_;
  const PrintSettingsStore &job_;
  Marked defaults_;
};

Builder builderFor(PrinterDescription &printer, const PrintSettingsStore &job) {
  printer.mark(PrintSettingsStore());
  Marked defaults = allMarked(printer.ppd());
  printer.mark(job);
  return Builder(printer.ppd(), job, std::move(defaults));
}

} // namespace

std::string PrinterOption::textOf(const std::string &choice) const {
  for (const OptionChoice &candidate : choices)
    if (isSame(candidate.keyword, choice))
      return candidate.text;
  return choice;
}

PrinterOptions::PrinterOptions(PrinterDescription &printer, PrintSettingsStore &job)
    : printer_(printer), job_(job) {
  ppdLocalize(printer_.ppd());
}

std::vector<OptionGroup> PrinterOptions::all() {
  const Builder builder = builderFor(printer_, job_);
  std::vector<OptionGroup> groups;
  for (int i = 0; i < printer_.ppd()->num_groups; i++)
    builder.addGroup(printer_.ppd()->groups[i], groups);
  return groups;
}

std::vector<OptionGroup> PrinterOptions::listed(const std::vector<std::string> &without) {
  std::vector<OptionGroup> groups;
  for (OptionGroup &group : all()) {
    auto &options = group.options;
    const auto isOut = [&](const PrinterOption &option) {
      return isSame(option.keyword, "PageRegion") || contains(without, option.keyword) ||
             option.choices.empty() || (option.takesCustomValue && option.choices.size() == 1);
    };
    options.erase(std::remove_if(options.begin(), options.end(), isOut), options.end());
    if (!options.empty())
      groups.push_back(std::move(group));
  }
  return groups;
}

std::optional<PrinterOption> PrinterOptions::find(const std::string &keyword) {
  const ppd_option_t *const option = ppdFindOption(printer_.ppd(), keyword.c_str());
  if (option == nullptr)
    return std::nullopt;
  return builderFor(printer_, job_).option(*option);
}

std::optional<PrinterOption> PrinterOptions::twoSided() {
  for (const char *keyword : {"Duplex", "JCLDuplex", "EFDuplex", "KD03Duplex"})
    if (auto option = find(keyword))
      return option;
  return std::nullopt;
}

bool PrinterOptions::choose(const std::string &keyword, const std::string &choice) {
  const auto option = find(keyword);
  if (!option || option->isLocked)
    return false;
  const auto wanted =
      std::find_if(option->choices.begin(), option->choices.end(),
                   [&](const OptionChoice &known) { return isSame(known.keyword, choice); });
  if (wanted == option->choices.end())
    return false;
  for (const auto &[name, alias] : kAliases)
    if (isSame(name, option->keyword))
      job_.remove(alias); // else the job would say two things
  if (wanted->keyword != option->defaultChoice)
    job_.set(option->keyword, wanted->keyword);
  else
    job_.remove(option->keyword);
  printer_.mark(job_);
  // Another setting of the job may imply something else than the default.
  if (markedChoice(printer_.ppd(), option->keyword.c_str()) != wanted->keyword) {
    job_.set(option->keyword, wanted->keyword);
    printer_.mark(job_);
  }
  return true;
}

} // namespace imageposition
