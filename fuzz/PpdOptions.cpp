// Options of any PPD: every string can be shown, every choice can be chosen, every proposed change
// resolves the conflict.
#include "CheckText.hpp"
#include "OptionConflicts.hpp"
#include "OptionList.hpp"
#include "PpdChecks.hpp"
#include "Strings.hpp"
#include "ValueCheck.hpp"

namespace imageposition::fuzz {

namespace {

std::string stored(const PrintSettingsStore &job, const std::string &keyword) {
  const char *const value = job.get(keyword);
  return value != nullptr ? value : "";
}

std::string optionText(const PrintSettingsStore &job) {
  std::string text;
  for (int i = 0; i < job.optionCount(); ++i)
    text += std::string(job.options()[i].name) + "=" + job.options()[i].value + "\n";
  return text;
}

void checkChoice(PrinterDescription &printer, const PrintSettingsStore &job,
                 const PrinterOption &option, const OptionChoice &choice) {
  const std::string what = option.keyword + " " + choice.keyword;
  PrintSettingsStore trial = job;
  PrinterOptions options(printer, trial);
  const bool isChosen = options.choose(option.keyword, choice.keyword);
  check(isChosen == !option.isLocked, "a listed choice can be chosen: " + what);
  if (!isChosen)
    return checkSame(optionText(trial), optionText(job), "a locked option stays");
  const auto after = options.find(option.keyword);
  check(after && after->chosenSet().count(choice.keyword) != 0,
        "the chosen choice is set: " + what);
  check(isSame(stored(trial, option.keyword), choice.keyword) ||
            (stored(trial, option.keyword).empty() && isSame(after->defaultChoice, choice.keyword)),
        "the job has the chosen choice, or it is the default: " + what);
  check(fitSetting(printer.ppd(), option.keyword, choice.keyword, false).change.empty(),
        "the chosen choice is valid for the printer: " + what);
}

void checkTicks(PrinterDescription &printer, const PrintSettingsStore &job,
                const PrinterOption &option, const OptionChoice &choice) {
  for (const bool on : {true, false}) {
    PrintSettingsStore trial = job;
    PrinterOptions options(printer, trial);
    check(options.tick(option.keyword, choice.keyword, on) == !option.isLocked,
          "a checkbox can be checked and unchecked: " + choice.keyword);
    const auto after = options.find(option.keyword);
    check(option.isLocked || isNone(choice.keyword) ||
              (after->chosenSet().count(choice.keyword) != 0) == on,
          "a checkbox keeps its state: " + choice.keyword);
  }
}

/// Whether the PPD has the choice; otherwise it is the job's custom value.
bool isOfDescription(PrinterDescription &printer, const PrinterOption &option,
                     const OptionChoice &choice) {
  ppd_option_t *const source = ppdFindOption(printer.ppd(), option.keyword.c_str());
  return !option.takesCustomValue ||
         (!isEnteredValue(choice.keyword) && ppdFindChoice(source, choice.keyword.c_str()));
}

void checkOption(PrinterDescription &printer, const PrintSettingsStore &job,
                 const PrinterOption &option) {
  checkWords(option.text, "an option's text");
  check(option.isLocked == job.isLocked(option.keyword), "an option that the job locks is locked");
  checkLine(option.textOf(option.chosen), "the text of the current choice");
  checkLine(option.textOf(option.defaultChoice), "the text of the default");
  for (const OptionChoice &choice : option.choices) {
    checkWords(choice.text, "a choice's text");
    if (!isOfDescription(printer, option, choice))
      continue; // a custom value, which the printer may not accept
    checkChoice(printer, job, option, choice);
    if (option.kind == PrinterOption::Kind::Several)
      checkTicks(printer, job, option, choice);
  }
}

std::size_t linesFor(const std::vector<OptionGroup> &groups) {
  std::size_t lines = groups.size();
  for (const OptionGroup &group : groups)
    for (const PrinterOption &option : group.options)
      lines += 1 + option.choices.size() + (option.takesCustomValue ? 1 : 0);
  return lines;
}

/// Checks the number of lines, and that each can be shown.
void checkList(const std::string &list, std::size_t lines) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < list.size(); ++count) {
    const std::size_t end = list.find('\n', at);
    check(end != std::string::npos, "every line ends");
    checkLine(list.substr(at, end - at), "a line of the list");
    at = end + 1;
  }
  check(count == lines, "a line for each group, option and choice");
}

std::size_t violationsKnownToCups(PrinterDescription &printer, const PrintSettingsStore &job) {
  printer.mark(job);
  return static_cast<std::size_t>(ppdConflicts(printer.ppd()));
}

void checkProposal(PrinterDescription &printer, const PrintSettingsStore &job,
                   const std::string &chosenLast) {
  PrintSettingsStore trial = job;
  OptionConflicts conflicts(printer, trial);
  const auto proposal = conflicts.proposal(chosenLast);
  checkSame(optionText(trial), optionText(job), "a proposal changes nothing");
  if (!proposal)
    return;
  check(!proposal->changes.empty(), "a proposal changes something");
  checkWords(proposal->sentence, "a proposal's sentence");
  const auto before = PrinterOptions(printer, trial).find(chosenLast);
  check(conflicts.take(*proposal), "a proposal can be taken");
  check(conflicts.find().empty(), "no conflict remains");
  check(violationsKnownToCups(printer, trial) == 0, "none remains for CUPS either");
  const auto after = PrinterOptions(printer, trial).find(chosenLast);
  check(!before || before->kind == PrinterOption::Kind::Several || before->chosen == after->chosen,
        "the last choice stays: " + chosenLast);
  for (int i = 0; i < job.optionCount(); ++i)
    if (job.isLocked(job.options()[i].name))
      checkSame(stored(trial, job.options()[i].name), job.options()[i].value,
                "what is locked stays");
}

} // namespace

void checkOptions(PrinterDescription &printer, const PrintSettingsStore &job) {
  PrintSettingsStore own = job;
  PrinterOptions options(printer, own);
  const auto groups = options.listed({});
  for (const OptionGroup &group : groups) {
    checkWords(group.text, "a group's text");
    check(!group.options.empty(), "a listed group has options");
    for (const PrinterOption &option : group.options)
      checkOption(printer, job, option);
  }
  checkList(writeOptionList(groups), linesFor(groups));
  checkSame(writeOptionList(options.listed({})), writeOptionList(groups),
            "undoing a trial leaves no changes");
  checkSame(optionText(own), optionText(job), "listing changes nothing");
}

void checkConflicts(PrinterDescription &printer, const PrintSettingsStore &job) {
  PrintSettingsStore own = job;
  ppdLocalize(printer.ppd());
  const auto found = OptionConflicts(printer, own).find();
  check(found.empty() == (violationsKnownToCups(printer, job) == 0),
        "there are conflicts if CUPS finds any");
  for (const OptionConflict &conflict : found)
    checkWords(conflict.sentence, "a conflict's sentence");
  checkProposal(printer, job, "");
  for (int i = 0; i < job.optionCount(); ++i)
    checkProposal(printer, job, job.options()[i].name);
}

} // namespace imageposition::fuzz
