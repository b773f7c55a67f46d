/// Options that the printer cannot combine, and a way out.
#ifndef IMAGEPOSITION_HOST_OPTIONCONFLICTS_HPP
#define IMAGEPOSITION_HOST_OPTIONCONFLICTS_HPP

#include "PrinterOptions.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// An option with a choice, as a person reads them.
struct NamedChoice {
  std::string keyword;
  std::string text;
  std::string choice;
  std::string choiceText;
};

struct OptionConflict {
  std::vector<NamedChoice> sides; ///< Two; more where the PPD forbids a combination of more.
  std::string sentence;           ///< Names all sides by their texts.
};

struct ConflictProposal {
  std::vector<NamedChoice> changes; ///< Never empty.
  std::string sentence;             ///< What taking it does, for a button's line.
};

/// Conflicts among a job's options on a printer. Both are borrowed and outlive this.
class OptionConflicts {
public:
  OptionConflicts(PrinterDescription &printer, PrintSettingsStore &job);

  /// One for each constraint that the job violates, which are as many as `ppdConflicts` counts;
  /// constraints of the same sides are named once.
  std::vector<OptionConflict> find();

  /// The same as sentences for a user: those of the first `most`, and one that counts the others.
  /// Empty when there is no conflict.
  std::vector<std::string> sentences(std::size_t most);

  /// How to get rid of all conflicts. The option that was chosen last, when it is named, stays as
  /// it is. Of an option that takes several choices only those in conflict go, where that is
  /// enough. None when there is no conflict, no way out without a locked option, or none that is
  /// found soon and short enough to be read.
  std::optional<ConflictProposal> proposal(const std::string &chosenLast = {});

  /// Chooses what was proposed. False when a change is locked or no longer possible; the job is
  /// then as it was.
  bool take(const ConflictProposal &proposal);

private:
  /// Of the PPD as it is marked for the job from then on.
  std::vector<OptionConstraint> violations();
  std::optional<ConflictProposal> proposalOfCups(const std::vector<OptionConstraint> &violations,
                                                 const std::string &chosenLast);
  std::optional<ConflictProposal> proposalOfLists(const std::vector<OptionConstraint> &violations,
                                                  const std::string &chosenLast);
  /// Some that CUPS finds do not: marking one option may unmark another.
  bool endsAllConflicts(const ConflictProposal &proposal);

  PrinterDescription &printer_;
  PrintSettingsStore &job_;
};

} // namespace imageposition

#endif
