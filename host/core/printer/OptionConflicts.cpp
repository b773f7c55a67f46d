#include "OptionConflicts.hpp"

#include "ForeignText.hpp"
#include "PrinterTexts.hpp"
#include "Strings.hpp"

#include <algorithm>
#include <map>
#include <set>

namespace imageposition {

namespace {

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

/// A proposal with more changes is too long to read before accepting it.
constexpr std::size_t kMostChanges = 12;

/// To resolve conflicts, libcups tests every constraint for each choice of each option in conflict,
/// once for each change that it makes, and again for each resolver.
constexpr long long kMostTests = 2'000'000;

OptionConflict described(const OptionConstraint &violation) {
  OptionConflict conflict;
  for (const ConstrainedOption &side : violation)
    conflict.sides.push_back(named(*side.option, side.choice));
  conflict.sentence = messages::conflict(inWords(conflict.sides));
  return conflict;
}

bool isList(ppd_file_t *ppd, const std::string &keyword) {
  const ppd_option_t *const option = ppdFindOption(ppd, keyword.c_str());
  return option != nullptr && option->ui == PPD_UI_PICKMANY;
}

/// The choice in conflict, for an option with several: CUPS handles only one.
const ppd_choice_t *choiceToKeep(ppd_file_t *ppd, const std::vector<OptionConstraint> &violations,
                                 const std::string &keyword) {
  if (isList(ppd, keyword))
    for (const OptionConstraint &violation : violations)
      for (const ConstrainedOption &side : violation)
        if (isSame(side.option->keyword, keyword))
          return side.choice;
  return ppdFindMarkedChoice(ppd, keyword.c_str());
}

bool isBefore(const ConstrainedOption &left, const ConstrainedOption &right) {
  const IgnoringCase isLess;
  return isSame(left.option->keyword, right.option->keyword)
             ? isLess(left.choice->choice, right.choice->choice)
             : isLess(left.option->keyword, right.option->keyword);
}

struct BySides {
  bool operator()(const OptionConstraint &left, const OptionConstraint &right) const {
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                        isBefore);
  }
};

/// Keeps the first of the violations that have the same sides in any order.
std::vector<OptionConstraint> withoutRepetition(const std::vector<OptionConstraint> &violations) {
  std::set<OptionConstraint, BySides> known;
  std::vector<OptionConstraint> result;
  for (const OptionConstraint &violation : violations) {
    OptionConstraint sides = violation;
    std::sort(sides.begin(), sides.end(), isBefore);
    if (known.insert(std::move(sides)).second)
      result.push_back(violation);
  }
  return result;
}

/// Whether `cupsResolveConflicts` returns within about a second.
bool isResolvedSoon(ppd_file_t *ppd, std::size_t constraints,
                    const std::vector<OptionConstraint> &violations) {
  long long tries = 0;
  for (const OptionConstraint &violation : violations)
    for (const ConstrainedOption &side : violation)
      tries += side.option->num_choices;
  for (const ppd_attr_t *resolver = ppdFindAttr(ppd, "cupsUIResolver", nullptr);
       resolver != nullptr; resolver = ppdFindNextAttr(ppd, "cupsUIResolver", nullptr))
    tries++;
  return tries * static_cast<long long>(constraints) <= kMostTests;
}

/// Owns CUPS's list of changes.
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
  std::vector<OptionConflict> conflicts;
  for (const OptionConstraint &violation : withoutRepetition(violations()))
    conflicts.push_back(described(violation));
  return conflicts;
}

std::vector<std::string> OptionConflicts::sentences(std::size_t most) {
  const auto found = withoutRepetition(violations());
  std::vector<std::string> sentences;
  for (std::size_t i = 0; i < found.size() && i < most; i++)
    sentences.push_back(described(found[i]).sentence);
  if (found.size() > most)
    sentences.push_back(messages::moreConflicts(found.size() - most));
  return sentences;
}

std::vector<OptionConstraint> OptionConflicts::violations() {
  printer_.mark(job_);
  return violated(printer_.constraints(), printer_.ppd());
}

std::optional<ConflictProposal> OptionConflicts::proposal(const std::string &chosenLast) {
  const auto found = violations();
  auto cups = proposalOfCups(found, chosenLast);
  const bool isSimple = cups && std::none_of(cups->changes.begin(), cups->changes.end(),
                                             [&](const NamedChoice &change) {
                                               return isList(printer_.ppd(), change.keyword);
                                             });
  if (isSimple)
    return cups;
  auto lists = proposalOfLists(found, chosenLast);
  return lists ? lists : cups;
}

std::optional<ConflictProposal>
OptionConflicts::proposalOfLists(const std::vector<OptionConstraint> &violations,
                                 const std::string &chosenLast) {
  printer_.mark(job_);
  std::map<const ppd_option_t *, ChoiceSet> inConflict;
  for (const OptionConstraint &violation : violations)
    for (const ConstrainedOption &side : violation) {
      const ppd_option_t &option = *side.option;
      if (option.ui == PPD_UI_PICKMANY && !isSame(option.keyword, chosenLast) &&
          !job_.isLocked(option.keyword))
        inConflict[&option].insert(side.choice->choice);
    }
  if (inConflict.size() > kMostChanges)
    return std::nullopt;
  std::map<std::string, ChoiceList> left; // by keyword
  for (const auto &[option, choices] : inConflict)
    left.emplace(option->keyword, withoutChoices(*option, markedChoices(*option), choices));
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

std::optional<ConflictProposal>
OptionConflicts::proposalOfCups(const std::vector<OptionConstraint> &violations,
                                const std::string &chosenLast) {
  ppd_file_t *const ppd = printer_.ppd();
  if (violations.empty() || !isResolvedSoon(ppd, printer_.constraints().size(), violations))
    return std::nullopt;
  const ppd_choice_t *const kept =
      chosenLast.empty() ? nullptr : choiceToKeep(ppd, violations, chosenLast);
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
    // CUPS includes the option that was chosen last.
    if (choice != nullptr && !choice->marked)
      proposal.changes.push_back(named(*option, choice));
  }
  if (proposal.changes.empty() || proposal.changes.size() > kMostChanges ||
      !endsAllConflicts(proposal))
    return std::nullopt;
  proposal.sentence = messages::conflictProposal(inWords(proposal.changes));
  return proposal;
}

bool OptionConflicts::endsAllConflicts(const ConflictProposal &proposal) {
  PrintSettingsStore trial = job_;
  OptionConflicts tried(printer_, trial);
  const bool ends = tried.take(proposal) && tried.violations().empty();
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
