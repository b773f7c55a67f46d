/// Remembers the last jobs.
#ifndef IMAGEPOSITION_CORE_HISTORY_HISTORY_HPP
#define IMAGEPOSITION_CORE_HISTORY_HISTORY_HPP

#include "PrintSettingsStore.hpp"

#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <string>

namespace imageposition {

struct WindowSize {
  double width = 0; ///< In points, more than 0.
  double height = 0;
};

/// What the user's earlier jobs leave behind, in $XDG_STATE_HOME/print-dialog/jobs.json:
///
///     { "printer": "...", "window": [width, height],
///       "printers": { "name": { "preset": "...", "settings": { "name": "value" } } } }
///
/// A file that cannot be read counts as empty, with a message to `errors`; one that this program
/// did not write, or that was damaged, is never replaced.
class History {
public:
  static History read(std::ostream &errors);

  /// Of the last job: a queue without an instance. Empty without one.
  const std::string &printer() const noexcept { return printer_; }
  const std::optional<WindowSize> &window() const noexcept { return window_; }
  /// Of the last job on this printer.
  PrintSettingsStore settings(const std::string &printer) const;
  /// The preset with which jobs on this printer begin; empty for none.
  std::string preset(const std::string &printer) const;

  void setPrinter(const std::string &printer) { printer_ = printer; }
  void setWindow(const WindowSize &size) { window_ = size; }
  void setSettings(const std::string &printer, const PrintSettingsStore &settings);
  /// An empty name removes the preset.
  void setPreset(const std::string &printer, const std::string &preset);

  /// The file's content. `fromText` returns none for any other.
  std::string text() const;
  static std::optional<History> fromText(const std::string &text);

private:
  struct OfPrinter {
    std::string preset;
    PrintSettingsStore settings;
  };

  std::string printer_;
  std::optional<WindowSize> window_;
  std::map<std::string, OfPrinter> printers_;
};

/// Reads the file, calls `change`, and replaces the file. Several dialogs may do so at the same
/// time. Returns false, with a message to `errors`, if the file could not be replaced.
bool changeHistory(const std::function<void(History &)> &change, std::ostream &errors);

} // namespace imageposition

#endif
