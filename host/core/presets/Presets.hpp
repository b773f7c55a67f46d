/// Named settings, stored where CUPS stores them.
#ifndef IMAGEPOSITION_CORE_PRESETS_PRESETS_HPP
#define IMAGEPOSITION_CORE_PRESETS_PRESETS_HPP

#include "PrinterDescription.hpp"

#include <string>
#include <utility>
#include <vector>

namespace imageposition {

/// Identifies a preset: `lp -d printer/name` prints with it.
struct PresetName {
  std::string printer;
  std::string name;
};

/// The result of loading a preset.
struct LoadedPreset {
  PrintSettingsStore settings;      ///< The settings that fit the printer.
  std::vector<std::string> misfits; ///< One sentence for each setting that was changed or dropped.
};

/// The user's presets: destination instances in CUPS's file "lpoptions", which every call reads
/// again. Shared presets, which an administrator has made, are listed and loaded, too.
///
/// Edits the file directly rather than with `cupsSetDests2`, which truncates it before writing,
/// drops the presets of printers that are currently missing, and copies shared settings into it.
/// Contacts no server. Several print-dialogs may save at the same time. Changes that lpoptions(1)
/// makes meanwhile are kept, except in the short window between the last check and the replacement.
/// Operations throw a `Failure` with `ExitCode::Printer` if the file cannot be read or written, and
/// leave it unchanged.
class Presets {
public:
  /// `printer`: the queue's name. An instance ("queue/instance") is ignored.
  explicit Presets(const std::string &printer);

  /// In alphabetical order.
  std::vector<std::string> names() const;
  /// The presets of all other printers, sorted by printer and name.
  std::vector<PresetName> ofOtherPrinters() const;

  /// Adds or replaces the preset `usableName(name)`. Omits settings that apply to a single document
  /// ("job-name", "page-ranges", ...), and hidden values (see `isHiddenValue`; `ppd` may be null).
  /// Returns one sentence for each setting that CUPS's file cannot or should not hold and that the
  /// preset therefore lacks.
  std::vector<std::string> save(const std::string &name, const PrintSettingsStore &settings,
                                ppd_file_t *ppd = nullptr) const;
  /// Renames to `usableName(newName)`. A preset of that name is replaced only if `mayReplace`.
  void rename(const std::string &name, const std::string &newName, bool mayReplace = false) const;
  /// Does nothing if there is no such preset.
  void remove(const std::string &name) const;

  /// The preset's differences from the printer's defaults, to replace the job's settings.
  LoadedPreset load(const std::string &name, const PrinterDescription &printer,
                    const std::vector<std::string> &panelKeywords = {}) const;
  /// The same for any printer's preset. Drops and reports settings that `printer` does not support,
  /// and adjusts numbers to its range; see `fitSetting`. `panelKeywords`: options that panels
  /// announce, which are kept even if the PPD lacks them.
  static LoadedPreset load(const PresetName &preset, const PrinterDescription &printer,
                           const std::vector<std::string> &panelKeywords = {});

  /// Returns `settings`, but as in `job` what applies to a single document, which no preset
  /// contains.
  static PrintSettingsStore withDocumentOf(const PrintSettingsStore &job,
                                           const PrintSettingsStore &settings);

  /// Turns what a user typed into a name that CUPS and `lp` accept: "Two sided" becomes
  /// "Two-sided". Throws a `Failure` with `ExitCode::Usage` if nothing usable is left.
  static std::string usableName(const std::string &typed);

private:
  std::string printer_;
};

/// One sentence for each option of `keywords` whose value panels have changed: `before` and `after`
/// they read it. A panel can have a narrower range than the PPD.
std::vector<std::string> adjustments(ppd_file_t *ppd, const std::vector<std::string> &keywords,
                                     const PrintSettingsStore &before,
                                     const PrintSettingsStore &after);

} // namespace imageposition

#endif
