/// Options that the printer cannot combine, and how to resolve such conflicts.
#ifndef IMAGEPOSITION_CORE_PRINTER_OPTIONCONFLICTS_HPP
#define IMAGEPOSITION_CORE_PRINTER_OPTIONCONFLICTS_HPP

#include "PrinterOptions.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// An option and a choice, with the names to show.
struct NamedChoice {
  std::string keyword;
  std::string text;
  std::string choice;
  std::string choiceText;
};

struct OptionConflict {
  std::vector<NamedChoice> sides; ///< Two, or more if the constraint has more.
  std::string sentence;           ///< Names all sides for the user.
};

struct ConflictProposal {
  std::vector<NamedChoice> changes; ///< Never empty.
  std::string sentence;             ///< What accepting it does, to show next to a button.
};

/// Conflicts among a job's options on a printer. Both are borrowed and must outlive this object.
class OptionConflicts {
public:
  OptionConflicts(PrinterDescription &printer, PrintSettingsStore &job);

  /// One for each constraint that the job violates, as `ppdConflicts` counts them, but only one for
  /// constraints with the same sides.
  std::vector<OptionConflict> find();

  /// Sentences for the user: one for each of the first `most` conflicts, and one that counts the
  /// others. Empty if there is no conflict.
  std::vector<std::string> sentences(std::size_t most);

  /// How to resolve all conflicts. Keeps the option `chosenLast`, if given. For an option that
  /// accepts several choices, removes only those in conflict, if that suffices. None if there is no
  /// conflict, if resolving requires changing a locked option, or if no proposal is found that is
  /// quick to compute and short enough to read.
  std::optional<ConflictProposal> proposal(const std::string &chosenLast = {});

  /// Applies the proposal. Returns false and leaves the job unchanged if a change is locked or no
  /// longer possible.
  bool take(const ConflictProposal &proposal);

private:
  /// Marks the PPD for the job.
  std::vector<OptionConstraint> violations();
  std::optional<ConflictProposal> proposalOfCups(const std::vector<OptionConstraint> &violations,
                                                 const std::string &chosenLast);
  std::optional<ConflictProposal> proposalOfLists(const std::vector<OptionConstraint> &violations,
                                                  const std::string &chosenLast);
  /// Some of CUPS's proposals do not, because marking one option may unmark another.
  bool endsAllConflicts(const ConflictProposal &proposal);

  PrinterDescription &printer_;
  PrintSettingsStore &job_;
};

} // namespace imageposition

#endif
