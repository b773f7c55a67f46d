#include "PrinterOptions.hpp"

#include "ForeignText.hpp"
#include "Phrases.hpp"
#include "PrinterTexts.hpp"
#include "Strings.hpp"
#include "ValueCheck.hpp"
#include "VisibleText.hpp"

#include <algorithm>
#include <map>

namespace imageposition {

namespace {

/// Whether it is the choice that CUPS adds to an option that accepts custom values.
bool isCustom(const ppd_choice_t &choice) { return isSame(choice.choice, kCustomChoice); }

/// Whether a job can name the option and CUPS marks it. If the PPD has an option in several groups,
/// CUPS finds only one.
bool isUsable(ppd_file_t *ppd, const ppd_option_t &option) {
  return PrintSettingsStore::isUsableName(option.keyword) &&
         ppdFindOption(ppd, option.keyword) == &option;
}

/// Whether a job can express the choice: in a list, a comma ends a choice.
bool isUsable(const ppd_choice_t &choice, PrinterOption::Kind kind) {
  return *choice.choice != '\0' && (kind != PrinterOption::Kind::Several ||
                                    splitChoices(choice.choice) == ChoiceList{choice.choice});
}

bool hasChoice(const PrinterOption &option, const std::string &keyword) {
  return std::any_of(option.choices.begin(), option.choices.end(),
                     [&](const OptionChoice &known) { return isSame(known.keyword, keyword); });
}

/// Equivalent names of options in a job, other than the PPD's.
constexpr std::pair<const char *, const char *> kAliases[] = {
    {"PageSize", "media"},       {"PageSize", "PageRegion"},
    {"Duplex", "sides"},         {"JCLDuplex", "sides"},
    {"EFDuplex", "sides"},       {"KD03Duplex", "sides"},
    {"OutputBin", "output-bin"}, {"ColorModel", "print-color-mode"}};

/// The custom value of an option, under any of its names; empty for none.
std::string enteredIn(const PrintSettingsStore &settings, const std::string &keyword) {
  const char *const own = settings.get(keyword);
  if (own != nullptr && isEnteredValue(own))
    return own;
  for (const auto &[name, alias] : kAliases) {
    const char *const value = isSame(name, keyword) ? settings.get(alias) : nullptr;
    for (const std::string &part : splitChoices(value != nullptr ? value : ""))
      if (isEnteredValue(part))
        return part;
  }
  return {};
}

/// Builds options from the PPD. Marks the PPD for the job.
class Builder {
public:
  Builder(PrinterDescription &printer, const PrintSettingsStore &job)
      : ppd_(printer.ppd()), job_(job), queue_(printer.queueDefaults()),
        defaults_(printer.defaultChoices()) {
    printer.mark(job);
  }

  void addGroup(const ppd_group_t &source, std::vector<OptionGroup> &groups) const {
    OptionGroup group{
        textOrKeyword(source.name, source.text), textOrKeyword(source.text, source.name), {}};
    if (group.text.empty() || group.text == "General")
      group.text = messages::kGeneralGroup;
    for (int i = 0; i < source.num_options; i++)
      if (isUsable(ppd_, source.options[i]))
        group.options.push_back(option(source.options[i]));
    groups.push_back(std::move(group));
    for (int i = 0; i < source.num_subgroups; i++)
      addGroup(source.subgroups[i], groups);
  }

  PrinterOption option(const ppd_option_t &source) const {
    PrinterOption option;
    option.keyword = source.keyword;
    option.text = textOrKeyword(source.text, source.keyword);
    option.kind = source.ui == PPD_UI_BOOLEAN    ? PrinterOption::Kind::Switch
                  : source.ui == PPD_UI_PICKMANY ? PrinterOption::Kind::Several
                                                 : PrinterOption::Kind::List;
    option.isLocked = job_.isLocked(source.keyword);
    option.takesCustomValue = ppdFindCustomOption(ppd_, source.keyword) != nullptr;
    if (option.kind != PrinterOption::Kind::Several)
      option.custom = customOption(ppd_, source.keyword);
    ChoiceSet listed; // a PPD can repeat a choice
    for (int i = 0; i < source.num_choices; i++) {
      const ppd_choice_t &choice = source.choices[i];
      if (!(option.takesCustomValue && isCustom(choice)) && isUsable(choice, option.kind) &&
          listed.insert(choice.choice).second)
        option.choices.push_back({choice.choice, textOrKeyword(choice.text, choice.choice)});
    }
    option.chosen = markedChoice(ppd_, source);
    const auto known = defaults_.find(source.keyword);
    if (known != defaults_.end())
      option.defaultChoice = known->second;
    if (option.takesCustomValue)
      nameEnteredValue(option, source.defchoice);
    return option;
  }

private:
  /// Marking keeps only the choice "Custom". The value is in the job, the queue or the PPD.
  void nameEnteredValue(PrinterOption &option, const std::string &ofPpd) const {
    if (isSame(option.defaultChoice, kCustomChoice)) {
      const std::string value = enteredIn(queue_, option.keyword);
      option.defaultChoice = !value.empty() ? value : ofPpd;
    }
    const bool isMarked = isSame(option.chosen, kCustomChoice);
    if (!isMarked && !isNumber(option))
      return;
    std::string value = isMarked ? enteredIn(job_, option.keyword) : job_.get(option.keyword);
    if (value.empty() && isEnteredValue(option.defaultChoice))
      value = option.defaultChoice;
    if (!value.empty())
      option.chosen = std::move(value);
    option.choices.push_back({option.chosen, option.textOf(option.chosen)});
  }

  /// Some clients send a plain number, which filters accept but marking does not.
  bool isNumber(const PrinterOption &option) const {
    const char *const value = job_.get(option.keyword);
    return value != nullptr && option.custom && readCustomValue(*option.custom, value) &&
           !hasChoice(option, value);
  }

  ppd_file_t *ppd_;
  const PrintSettingsStore &job_;
  const PrintSettingsStore &queue_;
  const std::map<std::string, std::string> &defaults_; // by keyword
};

} // namespace

ChoiceSet PrinterOption::chosenSet() const {
  if (kind != Kind::Several)
    return {chosen};
  const ChoiceList list = splitChoices(chosen);
  return {list.begin(), list.end()};
}

std::string PrinterOption::textOf(const std::string &choice) const {
  for (const OptionChoice &candidate : choices)
    if (candidate.keyword == choice ||
        (!isEnteredValue(choice) && isSame(candidate.keyword, choice)))
      return candidate.text;
  if (custom && readCustomValue(*custom, choice))
    return messages::enteredValue(visible(customValueText(*custom, choice)));
  if (kind != Kind::Several)
    return visible(choice);
  return textOfSeveral(splitChoices(choice));
}

std::string PrinterOption::textOfSeveral(const ChoiceList &list) const {
  std::map<std::string, const std::string *, IgnoringCase> texts; // by keyword
  for (const OptionChoice &choice : choices)
    texts.emplace(choice.keyword, &choice.text);
  std::vector<std::string> names;
  for (const std::string &one : list) {
    const auto known = texts.find(one);
    names.push_back(known != texts.end() ? *known->second : visible(one));
  }
  return names.empty() ? messages::kNothingChosen.str() : messages::inOrder(names);
}

bool isPrinterOption(const PrinterDescription &printer, const std::string &name) {
  const auto isOption = [&](const char *keyword) {
    return ppdFindOption(printer.ppd(), keyword) != nullptr;
  };
  return isOption(name.c_str()) ||
         std::any_of(std::begin(kAliases), std::end(kAliases), [&](const auto &names) {
           return isSame(names.second, name) && isOption(names.first);
         });
}

ppd_option_t *twoSidedOption(ppd_file_t *ppd) {
  for (const auto &[name, alias] : kAliases)
    if (isSame(alias, "sides"))
      if (ppd_option_t *const option = ppdFindOption(ppd, name))
        return option;
  return nullptr;
}

PrinterOptions::PrinterOptions(PrinterDescription &printer, PrintSettingsStore &job)
    : printer_(printer), job_(job) {}

std::vector<OptionGroup> PrinterOptions::all() {
  const Builder builder(printer_, job_);
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
             (option.choices.empty() && !option.custom);
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
  return Builder(printer_, job_).option(*option);
}

std::optional<PrinterOption> PrinterOptions::twoSided() {
  const ppd_option_t *const option = twoSidedOption(printer_.ppd());
  return option != nullptr ? find(option->keyword) : std::nullopt;
}

bool PrinterOptions::choose(const std::string &keyword, const std::string &choice) {
  const auto option = find(keyword);
  if (!option || option->isLocked)
    return false;
  const ppd_option_t &source = *ppdFindOption(printer_.ppd(), keyword.c_str());
  const auto accepted = acceptedValue(printer_.ppd(), source, choice);
  return accepted && store(*option, *accepted);
}

bool PrinterOptions::tick(const std::string &keyword, const std::string &choice, bool on) {
  const auto option = find(keyword);
  if (!option || option->isLocked || option->kind != PrinterOption::Kind::Several)
    return false;
  const ppd_option_t &source = *ppdFindOption(printer_.ppd(), keyword.c_str());
  return areChoices(source, {choice}) &&
         store(*option, joinChoices(withChoice(source, markedChoices(source), choice, on)));
}

bool PrinterOptions::store(const PrinterOption &option, const std::string &value) {
  for (const auto &[name, alias] : kAliases)
    if (isSame(name, option.keyword))
      job_.remove(alias); // or the job would contradict itself
  if (value == option.defaultChoice)
    job_.remove(option.keyword);
  else if (job_.set(option.keyword, value) != PrintSettingsStore::Outcome::Stored)
    return false;
  printer_.mark(job_);
  // Another setting of the job may imply a different choice than the default.
  if (find(option.keyword)->chosen != value) {
    job_.set(option.keyword, value);
    printer_.mark(job_);
  }
  return true;
}

} // namespace imageposition
