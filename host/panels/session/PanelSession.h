/// The panels of all plug-ins for one printer and job.
#ifndef IMAGEPOSITION_HOST_PANELSESSION_H
#define IMAGEPOSITION_HOST_PANELSESSION_H

#import "HostCallback.h"
#import "PluginLoader.h"
#import "PrintCore.h"
#include "PrinterDescription.hpp"

#include <memory>
#include <string>
#include <vector>

namespace imageposition {

class PanelSession {
public:
  /// Both outlive the session. Panels read and write `settings` directly.
  PanelSession(PrinterDescription &printer, PrintSettingsStore &settings);
  ~PanelSession();
  PanelSession(const PanelSession &) = delete;
  PanelSession &operator=(const PanelSession &) = delete;

  /// Asks the plug-in at each path for its panels. One that fails is left out, with its message
  /// among the troubles. `loaded` outlives the session.
  void load(const std::vector<std::string> &paths, LoadedPlugins &loaded);

  /// Makes entered values of the panels' options into plain numbers, as panels read them: where the
  /// panels were missing, these options could be entered as the printer's own. For settings that
  /// come from elsewhere, before the panels read them; `load` and `revert` see to theirs.
  void takePlainNumbers();

  /// In the order of the plug-ins.
  const std::vector<std::unique_ptr<PanelDriver>> &panels() const noexcept { return panels_; }
  /// Messages of the plug-ins and panels that were left out.
  const std::vector<std::string> &troubles() const noexcept { return troubles_; }

  /// Puts the settings back as they were when the session began, and has the panels read them.
  void revert();

  /// Leaves a panel out that failed later on.
  void drop(const PanelDriver *panel, const std::string &trouble);

private:
  ppd_file_t *ppd_;
  PrintSettingsStore &settings_;
  const PrintSettingsStore before_;
  PrintSettingsHandle handle_;
  HostCallback *callback_; // owned
  std::vector<std::unique_ptr<PanelDriver>> panels_;
  std::vector<std::string> troubles_;
};

} // namespace imageposition

#endif
