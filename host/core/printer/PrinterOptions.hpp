/// Reading and changing the options of a printer's PPD.
#ifndef IMAGEPOSITION_CORE_PRINTER_PRINTEROPTIONS_HPP
#define IMAGEPOSITION_CORE_PRINTER_PRINTEROPTIONS_HPP

#include "ChoiceList.hpp"
#include "CustomValue.hpp"
#include "PrinterDescription.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

struct OptionChoice {
  std::string keyword; ///< The value in the job.
  std::string text;    ///< The name to show; never empty.
};

struct PrinterOption {
  enum class Kind { Switch, List, Several };

  std::string keyword;
  std::string text; ///< Never empty.
  Kind kind = Kind::List;
  /// In the PPD's order. Includes a custom value ("Custom.7") only while it is chosen.
  std::vector<OptionChoice> choices;
  std::string chosen; ///< A choice's keyword, or a list for `Several`; empty if nothing is marked.
  std::string defaultChoice; ///< The queue's, or else the PPD's; may be empty.
  bool isLocked = false;     ///< The job's ticket prevents changes, or other settings make it idle.
  bool takesCustomValue = false;      ///< Whether it accepts values outside `choices`.
  std::optional<CustomOption> custom; ///< How to enter such a value; none if unknown.
  std::string enterText; ///< The item that leads to entering it; empty for the usual one.

  bool differsFromDefault() const { return chosen != defaultChoice; }
  /// The chosen keyword, or several for `Several`.
  ChoiceSet chosenSet() const;
  /// The name to show for a choice, a list or a custom value.
  std::string textOf(const std::string &choice) const;

private:
  std::string textOfSeveral(const ChoiceList &list) const;
};

/// Whether a job's setting of this name is the choice of one of the printer's options: it has the
/// option's keyword or another name for it, such as "sides" for "Duplex".
bool isPrinterOption(const PrinterDescription &printer, const std::string &name);

/// The option that turns two-sided printing on, which belongs to `ppd`; null if there is none.
/// Older descriptions have other names for it than "Duplex".
ppd_option_t *twoSidedOption(ppd_file_t *ppd);

struct OptionGroup {
  std::string keyword;
  std::string text; ///< Never empty.
  std::vector<PrinterOption> options;
};

/// Reads and changes the options of one printer for one job. Both are borrowed and must outlive
/// this object.
///
/// Each operation marks the PPD from the job again, so other code may change the job's settings at
/// any time. Names are in the locale's language if the PPD has it, each on one line of UTF-8.
class PrinterOptions {
public:
  PrinterOptions(PrinterDescription &printer, PrintSettingsStore &job);

  /// Every group with every option that a job can name, each once. A subgroup is a separate group
  /// after its parent.
  std::vector<OptionGroup> all();

  /// The options to show in a pane: omits the keywords in `without` (options that are elsewhere in
  /// the window, or that panels announce), "PageRegion", which only repeats "PageSize", and options
  /// with nothing to choose or enter. No group is empty.
  std::vector<OptionGroup> listed(const std::vector<std::string> &without);

  /// Keywords match without regard to case.
  std::optional<PrinterOption> find(const std::string &keyword);

  /// See `twoSidedOption`.
  std::optional<PrinterOption> twoSided();

  /// Stores the choice in the job, or removes the job's entry if it is the default, and marks the
  /// PPD. Also accepts a list of choices and a custom value. Returns false and changes nothing if
  /// there is no such option or choice, or if it is locked.
  bool choose(const std::string &keyword, const std::string &choice);

  /// The same for one choice of an option that accepts several; see `withChoice`.
  bool tick(const std::string &keyword, const std::string &choice, bool on);

private:
  bool store(const PrinterOption &option, const std::string &value);

  PrinterDescription &printer_;
  PrintSettingsStore &job_;
};

} // namespace imageposition

#endif
