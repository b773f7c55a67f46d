#include "host/OptionConflicts.hpp"

#include "host/ForeignText.hpp"
#include "host/OptionConstraints.hpp"
#include "host/OptionMessages.hpp"

#include <algorithm>
#include <map>
#include <strings.h>

namespace imageposition {

namespace {

bool isSame(const std::string &left, const std::string &right) {
  return strcasecmp(left.c_str(), right.c_str()) == 0;
}

NamedChoice named(const ppd_option_t &option, const ppd_choice_t *choice) {
  NamedChoice name;
  name.keyword = option.keyword;
  name.text = textOrKeyword(option.text, option.keyword);
  if (choice != nullptr) {
    name.choice = choice->choice;
    name.choiceText = textOrKeyword(choice->text, choice->choice);
  }
  return name;
}

std::vector<std::string> inWords(const std::vector<NamedChoice> &choices) {
  std::vector<std::string> words;
  words.reserve(choices.size());
  for (const NamedChoice &choice : choices)
    words.push_back(messages::chosenOption(choice.text, choice.choiceText));
  return words;
}

OptionConflict described(const OptionConstraint &constraint, ppd_file_t *ppd) {
  OptionConflict conflict;
  for (const ConstrainedOption &side : constraint)
    conflict.sides.push_back(named(
        *side.option, side.choice != nullptr ? side.choice : markedChoiceOf(side.option, ppd)));
  conflict.sentence = messages::conflict(inWords(conflict.sides));
  return conflict;
}

bool isList(ppd_file_t *ppd, const std::string &keyword) {
  const ppd_option_t *const option = ppdFindOption(ppd, keyword.c_str());
  return option != nullptr && option->ui == PPD_UI_PICKMANY;
}

/// Of several choices that which is in conflict: CUPS thinks of one only.
const ppd_choice_t *choiceToKeep(ppd_file_t *ppd, const std::string &keyword) {
  if (isList(ppd, keyword))
    for (const OptionConstraint &constraint : constraintsOf(ppd))
      for (const ConstrainedOption &side : constraint)
        if (isSame(side.option->keyword, keyword) && side.choice != nullptr &&
            isViolated(constraint, ppd))
          return side.choice;
  return ppdFindMarkedChoice(ppd, keyword.c_str());
}

bool isSameSide(const NamedChoice &left, const NamedChoice &right) {
  return isSame(left.keyword, right.keyword) && isSame(left.choice, right.choice);
}

bool areSameSides(const OptionConflict &left, const OptionConflict &right) {
  return std::is_permutation(left.sides.begin(), left.sides.end(), right.sides.begin(),
                             right.sides.end(), isSameSide);
}

/// CUPS's list of changes, freed.
class Changes {
public:
  Changes(ppd_file_t *ppd, const std::string &option, const std::string &choice)
      : found_(cupsResolveConflicts(ppd, option.empty() ? nullptr : option.c_str(),
                                    option.empty() ? nullptr : choice.c_str(), &count_,
                                    &options_) != 0) {}
  ~Changes() { cupsFreeOptions(count_, options_); }
  Changes(const Changes &) = delete;
  Changes &operator=(const Changes &) = delete;

  bool found() const noexcept { return found_; }
  const cups_option_t *begin() const noexcept { return options_; }
  const cups_option_t *end() const noexcept { return options_ + count_; }

private:
  int count_ = 0;
  cups_option_t *options_ = nullptr;
  bool found_;
};

} // namespace

OptionConflicts::OptionConflicts(PrinterDescription &printer, PrintSettingsStore &job)
    : printer_(printer), job_(job) {}

std::vector<OptionConflict> OptionConflicts::find() {
  printer_.mark(job_);
  std::vector<OptionConflict> conflicts;
  for (const OptionConstraint &constraint : constraintsOf(printer_.ppd())) {
    if (!isViolated(constraint, printer_.ppd()))
      continue;
    OptionConflict conflict = described(constraint, printer_.ppd());
    if (std::none_of(conflicts.begin(), conflicts.end(),
                     [&](const OptionConflict &known) { return areSameSides(known, conflict); }))
      conflicts.push_back(std::move(conflict));
  }
  return conflicts;
}

std::optional<ConflictProposal> OptionConflicts::proposal(const std::string &chosenLast) {
  auto cups = proposalOfCups(chosenLast);
  const bool isSimple = cups && std::none_of(cups->changes.begin(), cups->changes.end(),
                                             [&](const NamedChoice &change) {
                                               return isList(printer_.ppd(), change.keyword);
                                             });
  if (isSimple)
    return cups;
  auto lists = proposalOfLists(chosenLast);
  return lists ? lists : cups;
}

std::optional<ConflictProposal> OptionConflicts::proposalOfLists(const std::string &chosenLast) {
  ppd_file_t *const ppd = printer_.ppd();
  std::map<std::string, ChoiceList> left; // by keyword
  printer_.mark(job_);
  for (const OptionConstraint &constraint : constraintsOf(ppd)) {
    if (!isViolated(constraint, ppd))
      continue;
    for (const ConstrainedOption &side : constraint) {
      const ppd_option_t &option = *side.option;
      const ppd_choice_t *const choice =
          side.choice != nullptr ? side.choice : markedChoiceOf(&option, ppd);
      if (option.ui != PPD_UI_PICKMANY || choice == nullptr || isSame(option.keyword, chosenLast) ||
          job_.isLocked(option.keyword))
        continue;
      const auto before = left.try_emplace(option.keyword, markedChoices(option)).first;
      before->second = withChoice(option, before->second, choice->choice, false);
    }
  }
  ConflictProposal proposal;
  PrinterOptions options(printer_, job_);
  for (const auto &[keyword, choices] : left)
    if (const auto option = options.find(keyword))
      proposal.changes.push_back({option->keyword, option->text, joinChoices(choices),
                                  option->textOf(joinChoices(choices))});
  if (proposal.changes.empty() || !endsAllConflicts(proposal))
    return std::nullopt;
  proposal.sentence = messages::conflictProposal(inWords(proposal.changes));
  return proposal;
}

std::optional<ConflictProposal> OptionConflicts::proposalOfCups(const std::string &chosenLast) {
  printer_.mark(job_);
  ppd_file_t *const ppd = printer_.ppd();
  if (ppdConflicts(ppd) == 0)
    return std::nullopt;
  const ppd_choice_t *const kept = chosenLast.empty() ? nullptr : choiceToKeep(ppd, chosenLast);
  const Changes changes(ppd, kept != nullptr ? chosenLast : "",
                        kept != nullptr ? kept->choice : "");
  if (!changes.found())
    return std::nullopt;
  ConflictProposal proposal;
  for (const cups_option_t &change : changes) {
    if (job_.isLocked(change.name) && !isSame(change.name, chosenLast))
      return std::nullopt;
    ppd_option_t *const option = ppdFindOption(ppd, change.name);
    const ppd_choice_t *const choice =
        option != nullptr ? ppdFindChoice(option, change.value) : nullptr;
    // CUPS repeats the option that was chosen last.
    if (choice != nullptr && !choice->marked)
      proposal.changes.push_back(named(*option, choice));
  }
  if (proposal.changes.empty() || !endsAllConflicts(proposal))
    return std::nullopt;
  proposal.sentence = messages::conflictProposal(inWords(proposal.changes));
  return proposal;
}

bool OptionConflicts::endsAllConflicts(const ConflictProposal &proposal) {
  PrintSettingsStore trial = job_;
  const bool ends =
      OptionConflicts(printer_, trial).take(proposal) && ppdConflicts(printer_.ppd()) == 0;
  printer_.mark(job_);
  return ends;
}

bool OptionConflicts::take(const ConflictProposal &proposal) {
  const PrintSettingsStore before = job_;
  PrinterOptions options(printer_, job_);
  for (const NamedChoice &change : proposal.changes) {
    if (options.choose(change.keyword, change.choice))
      continue;
    job_ = before;
    printer_.mark(job_);
    return false;
  }
  return true;
}

} // namespace imageposition
