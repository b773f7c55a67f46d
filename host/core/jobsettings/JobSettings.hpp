/// The job's settings that do not come from the printer's description: layout, when to print, cover
/// pages.
#ifndef IMAGEPOSITION_CORE_JOBSETTINGS_JOBSETTINGS_HPP
#define IMAGEPOSITION_CORE_JOBSETTINGS_JOBSETTINGS_HPP

#include "PrinterOptions.hpp"
#include "SettingTable.hpp"
#include "Summary.hpp"

#include <ctime>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// The setting with the job's title, which is sent as the job's name instead of an option.
constexpr const char *kTitleSetting = "job-name";

/// What the settings depend on besides the printer's description and the job.
struct JobSettingsContext {
  std::vector<std::string> coverPages; ///< That CUPS has for the printer; empty if not known.
  std::string title;                   ///< The job's, if it has no other.
};

/// Reads and changes these settings of one job, in the form of printer options. The printer and the
/// job are borrowed and must outlive this object. Settings that are options of the printer's
/// description are left out: they are the printer's.
class JobSettings {
public:
  JobSettings(PrinterDescription &printer, PrintSettingsStore &job,
              JobSettingsContext context = {});

  /// The settings to show in a pane. The default of each is the queue's, or else CUPS's. A value
  /// outside the list is listed while the job has it. One that another setting makes irrelevant is
  /// locked.
  std::vector<OptionGroup> listed() const;
  std::optional<PrinterOption> find(const std::string &keyword) const;

  /// Stores the choice in the job, or removes the job's entry if it is the default. `choice` may be
  /// a custom value as `PrinterOption::custom` describes it. Returns a sentence about what else has
  /// changed; may be empty. None, without a change, if there is no such setting, it is locked, or
  /// the job cannot hold the value.
  std::optional<std::string> choose(const std::string &keyword, const std::string &choice);
  /// What entering a custom value begins with.
  std::string firstValue(const std::string &keyword) const;

  /// How many pages are printed on a side; 0 if that is not known, as in a booklet.
  int pagesPerSide() const;
  /// How many settings differ from their defaults.
  std::size_t differing() const;
  /// The settings that are not as usual.
  SummarySection section() const;
  /// The names in the job of all settings that this class shows.
  std::vector<std::string> names() const;

private:
  bool isPrinters(const JobSetting &setting) const;
  PrinterOption option(const JobSetting &setting) const;
  PrinterOption coverPage(bool isLast) const;
  PrinterOption title() const;
  std::string usual(const JobSetting &setting) const;
  std::string effective(const char *name) const;
  bool store(const PrinterOption &option, const std::string &value);
  bool storeCoverPage(bool isLast, const std::string &cover);
  std::string makeTwoSided();

  PrinterDescription &printer_;
  PrintSettingsStore &job_;
  JobSettingsContext context_;
};

/// Whether the pages lie on their side on an upright sheet: as the document's do, or because the
/// settings turn them.
bool hasLandscapePages(const PrintSettingsStore &settings, bool isDocumentLandscape);

/// Whether the setting belongs to one document's layout, so that the next job does not begin with
/// it.
bool isLayoutSetting(const PrinterDescription &printer, const std::string &name);

} // namespace imageposition

#endif
