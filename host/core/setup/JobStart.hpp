/// With which settings a job begins.
#ifndef IMAGEPOSITION_CORE_SETUP_JOBSTART_HPP
#define IMAGEPOSITION_CORE_SETUP_JOBSTART_HPP

#include "CommandLine.hpp"
#include "History.hpp"
#include "Measurement.hpp"
#include "OpenedPrinter.hpp"
#include "Presets.hpp"
#include "Ticket.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// The preset and the history of a job's printer, and the settings with which the job began. Main
/// thread only.
class JobStart {
public:
  /// Borrows the arguments and the job's printer, which may be replaced. Loads the preset that the
  /// queue or the history names; writes a sentence to standard error for each of its settings that
  /// was changed or dropped. Throws a `Failure`.
  JobStart(const Arguments &arguments, const OpenedPrinter &printer, History history);
  JobStart(const JobStart &) = delete;
  JobStart &operator=(const JobStart &) = delete;

  /// The ticket of the job's first printer. Call once. Throws a `Failure`.
  Ticket openTicket();
  /// Call once: the job begins with these settings, `measured` offsets among them.
  void begin(const PrintSettingsStore &settings, const std::optional<SideOffsets> &measured);

  /// Call after the printer was replaced. Settings that are as they were at the start are left to
  /// the printer: what its default preset, or the last job on it, has replaces what those of the
  /// printer before had. Returns whether that has set any.
  bool takeHistory(PrintSettingsStore &settings);
  /// Counts the option as not set at the start.
  void forget(const char *option) { atStart_.remove(option); }

  /// The preset of the job's printer with which the job begins: the queue's, or the one that the
  /// history names; empty for none.
  const std::string &presetName() const noexcept { return presetName_; }
  /// One sentence for each setting of the first queue's preset that was changed or dropped because
  /// the printer does not accept it.
  const std::vector<std::string> &misfits() const noexcept { return preset_.misfits; }
  /// Whether the job began with settings of the last job that are not the printer's defaults.
  bool isFromLastJob() const noexcept { return isFromLastJob_; }
  /// The last job's printer, if the job should have begun with it and did not; otherwise empty.
  const std::string &missingPrinter() const noexcept { return missingPrinter_; }
  /// The settings with which the job began, without those of the first queue's preset.
  const PrintSettingsStore &settingsWithoutPreset() const noexcept { return withoutPreset_; }
  /// Whether the ticket, the command line or the preset has offsets, which are stronger than what
  /// was measured.
  bool hasOffsets() const;

  /// Makes new jobs on this printer begin with the preset; with an empty name, with the last job's
  /// settings. Returns false, with a message to standard error, if that cannot be stored.
  bool makeDefault(const std::string &preset);
  /// The preset with which new jobs on this printer begin; may be empty.
  std::string defaultPreset() const;
  /// Stores the printer, its settings and the window's size for the next job. Leaves out the
  /// options in `leftOut`, settings that apply to one document or job, such as its layout, secrets,
  /// and what the command line gave. Writes a message to standard error if they cannot be stored.
  void remember(const PrintSettingsStore &settings, const std::vector<std::string> &leftOut,
                const std::optional<WindowSize> &window) const;

private:
  LoadedPreset load();
  PrintSettingsStore toRemember(const PrintSettingsStore &job,
                                const std::vector<std::string> &leftOut) const;

  const Arguments &arguments_;
  const OpenedPrinter &printer_;
  History history_;
  std::string presetName_;
  bool isFromLastJob_ = false;
  LoadedPreset preset_; // of the first queue
  std::string missingPrinter_;
  PrintSettingsStore withoutPreset_;
  PrintSettingsStore atStart_;
  std::vector<std::string> taken_; // settings of the printer's preset, or of the last job on it
};

} // namespace imageposition

#endif
