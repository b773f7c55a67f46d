/// The panels of all plug-ins for one printer and job.
#ifndef IMAGEPOSITION_PANELS_SESSION_PANELSESSION_H
#define IMAGEPOSITION_PANELS_SESSION_PANELSESSION_H

#import "HostCallback.h"
#import "PluginLoader.h"
#import "PrintCore.h"
#include "PrinterDescription.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// What came of asking every panel, in sentences that name the panel or its plug-in.
struct PanelReplies {
  std::vector<std::string> failures; ///< Of panels that raised, which are left out from now on.
  std::vector<std::string> refusals; ///< Of panels that said no, which stay.

  bool areAllYes() const noexcept { return failures.empty() && refusals.empty(); }
};

/// Main thread only.
class PanelSession {
public:
  /// Borrows both for its lifetime. Panels read and write `settings` directly.
  PanelSession(PrinterDescription &printer, PrintSettingsStore &settings);
  ~PanelSession();
  PanelSession(const PanelSession &) = delete;
  PanelSession &operator=(const PanelSession &) = delete;

  /// Asks the plug-in at each path for its panels. One that fails is left out, with its message
  /// among the troubles. `loaded` outlives the session.
  void load(const std::vector<std::string> &paths, LoadedPlugins &loaded);

  /// Adds the printer's defaults (`panelDefaults`) to the settings, and converts them to the forms
  /// that panels read (`makePanelValues`). Call it for settings that come from elsewhere, before
  /// the panels read them; `load` and `revert` do so.
  void takePanelValues();

  /// The PPD options that the panels handle.
  std::vector<std::string> optionKeys() const;

  /// In the order of the plug-ins.
  const std::vector<std::unique_ptr<PanelDriver>> &panels() const noexcept { return panels_; }
  /// Messages of the plug-ins and panels that were left out.
  const std::vector<std::string> &troubles() const noexcept { return troubles_; }
  /// The same, a line each; empty without any.
  std::string troubleText() const;

  /// Asks every panel whether it allows the job.
  PanelReplies askToPrint();
  /// Has every panel write its values to the settings.
  PanelReplies save();
  /// Has every panel read its values from the settings.
  PanelReplies restore();
  /// Puts the settings back as they were when the session began, and has the panels read them.
  void revert();

  /// Leaves out a panel that failed; `panel` is invalid afterwards.
  void drop(const PanelDriver *panel, const std::string &trouble);

private:
  /// `question` returns why the panel said no, or none.
  PanelReplies ask(const std::function<std::optional<std::string>(PanelDriver &)> &question);

  const PrinterDescription &printer_;
  PrintSettingsStore &settings_;
  const PrintSettingsStore before_;
  PrintSettingsHandle handle_;
  HostCallback *callback_; // owned
  std::vector<std::unique_ptr<PanelDriver>> panels_;
  std::vector<std::string> troubles_;
};

} // namespace imageposition

#endif
