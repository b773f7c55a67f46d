/// The options that a printer's PPD offers, and choosing among them.
#ifndef IMAGEPOSITION_HOST_PRINTEROPTIONS_HPP
#define IMAGEPOSITION_HOST_PRINTEROPTIONS_HPP

#include "ChoiceList.hpp"
#include "CustomValue.hpp"
#include "PrinterDescription.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

struct OptionChoice {
  std::string keyword; ///< What goes into the job.
  std::string text;    ///< What the person reads; never empty.
};

struct PrinterOption {
  enum class Kind { Switch, List, Several };

  std::string keyword;
  std::string text; ///< Never empty.
  Kind kind = Kind::List;
  /// In the PPD's order. A value that is entered ("Custom.7") is among them only while it holds.
  std::vector<OptionChoice> choices;
  std::string chosen;        ///< A choice's keyword, of `Several` a list; empty: nothing is marked.
  std::string defaultChoice; ///< The queue's, or else the PPD's; may be empty.
  bool isLocked = false;     ///< The job's ticket does not let it change.
  bool takesCustomValue = false;      ///< A value may be given that is not in the list.
  std::optional<CustomOption> custom; ///< How such a value is entered; none where nobody knows.

  bool differsFromDefault() const { return chosen != defaultChoice; }
  /// What holds: one choice's keyword, of `Several` those of the list.
  ChoiceSet chosenSet() const;
  /// The choice's text, or those of a list; of a value that is entered what a person reads of it.
  std::string textOf(const std::string &choice) const;

private:
  std::string textOfSeveral(const ChoiceList &list) const;
};

struct OptionGroup {
  std::string keyword;
  std::string text; ///< Never empty.
  std::vector<PrinterOption> options;
};

/// Reads and changes the options of one printer for one job. Both are borrowed and outlive this.
///
/// Each operation marks the PPD anew from the job, so that whoever changed the job's settings
/// needs to tell nobody. Texts are in the locale's language where the PPD has it, on one line of
/// UTF-8 each.
class PrinterOptions {
public:
  PrinterOptions(PrinterDescription &printer, PrintSettingsStore &job);

  /// Every group with every option that a job can name, each once. A subgroup is a group of its own
  /// behind that which holds it.
  std::vector<OptionGroup> all();

  /// What a pane of options shows: without these keywords (of options that have a place elsewhere
  /// in the window, and those that panels announce), without "PageRegion", which only repeats
  /// "PageSize", and without options that leave nothing to choose or enter. No group is empty.
  std::vector<OptionGroup> listed(const std::vector<std::string> &without);

  /// Keywords match without regard to case.
  std::optional<PrinterOption> find(const std::string &keyword);

  /// The option that turns two-sided printing on; older descriptions call it otherwise than
  /// "Duplex".
  std::optional<PrinterOption> twoSided();

  /// Stores the choice in the job, or removes the job's entry when it is the default, and marks the
  /// PPD. A list of choices is one, too, and a value that the option lets a person enter. False,
  /// and nothing changes, when there is no such option or choice, or it is locked.
  bool choose(const std::string &keyword, const std::string &choice);

  /// The same for one choice of an option that takes several; see `withChoice`.
  bool tick(const std::string &keyword, const std::string &choice, bool on);

private:
  bool store(const PrinterOption &option, const std::string &value);

  PrinterDescription &printer_;
  PrintSettingsStore &job_;
};

} // namespace imageposition

#endif
