/// Settings kept under a name, where CUPS keeps them.
#ifndef IMAGEPOSITION_HOST_PRESETS_HPP
#define IMAGEPOSITION_HOST_PRESETS_HPP

#include "PrinterDescription.hpp"

#include <string>
#include <utility>
#include <vector>

namespace imageposition {

/// A preset's place: `lp -d printer/name` prints with it.
struct PresetName {
  std::string printer;
  std::string name;
};

/// What a preset gave to a job.
struct LoadedPreset {
  PrintSettingsStore settings;      ///< What fits the printer.
  std::vector<std::string> misfits; ///< A sentence for each setting that was changed or left out.
};

/// The presets of the person who runs the program: destination instances in CUPS's own file
/// ("lpoptions"), read again at every call, so that no copy here grows old. Everybody's, which an
/// administrator has made, are listed and loaded, too.
///
/// The file is changed here and not through `cupsSetDests2`, which empties it before it writes,
/// drops the presets of printers that are away for the moment, and copies everybody's settings into
/// it. No server is asked. Several print-dialogs may save at once;
/// what lpoptions(1) writes meanwhile is kept but for a moment in which neither can know.
/// Operations throw a `Failure` with `ExitCode::Printer` when the file cannot be read or written,
/// and the file is then as it was.
class Presets {
public:
  /// The queue's name; an instance behind it ("queue/instance") is cut off.
  explicit Presets(const std::string &printer);

  /// In alphabetical order.
  std::vector<std::string> names() const;
  /// Those of all other printers, by printer and name.
  std::vector<PresetName> ofOtherPrinters() const;

  /// Adds the preset, or replaces it, under `usableName(name)`. Left out are settings that belong
  /// to one document ("job-name", "page-ranges", ...), and what `isHiddenValue` says of `ppd`,
  /// which may be null. Answers a sentence for each setting that CUPS's file
  /// cannot hold or should not, and that the preset therefore lacks.
  std::vector<std::string> save(const std::string &name, const PrintSettingsStore &settings,
                                ppd_file_t *ppd = nullptr) const;
  /// The new name, too, becomes a usable one; it must be free.
  void rename(const std::string &name, const std::string &newName) const;
  /// One that is gone already is no failure.
  void remove(const std::string &name) const;

  /// What the preset says beyond the printer's defaults; meant to replace the job's settings.
  LoadedPreset load(const std::string &name, const PrinterDescription &printer,
                    const std::vector<std::string> &panelKeywords = {}) const;
  /// The same for any printer's preset. What `printer` cannot do is left out and named, a number
  /// that it does not allow becomes the nearest; see `fitSetting`. `panelKeywords` are the options
  /// that panels announce: kept, even if the PPD lacks them.
  static LoadedPreset load(const PresetName &preset, const PrinterDescription &printer,
                           const std::vector<std::string> &panelKeywords = {});

  /// A name that CUPS can hold and `lp` can be given, made of what a person typed: "Two sided"
  /// turns into "Two-sided". Throws a `Failure` with `ExitCode::Usage` when nothing usable is left.
  static std::string usableName(const std::string &typed);

private:
  std::string printer_;
};

/// A sentence for each option of `keywords` whose value `before` is another one `after` panels have
/// read it: a panel can allow less than the description does.
std::vector<std::string> adjustments(ppd_file_t *ppd, const std::vector<std::string> &keywords,
                                     const PrintSettingsStore &before,
                                     const PrintSettingsStore &after);

} // namespace imageposition

#endif
