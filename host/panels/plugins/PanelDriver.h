/// One panel of a plug-in, driven in the order that panels expect.
#ifndef IMAGEPOSITION_PANELS_PLUGINS_PANELDRIVER_H
#define IMAGEPOSITION_PANELS_PLUGINS_PANELDRIVER_H

#import <ApplicationServices/ApplicationServices.h>

#include "Summary.hpp"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// Does not send `shouldHide`: this dialog offers every panel.
///
/// A panel without a view receives no further messages: it may keep its values in its controls, and
/// would save the values of controls that do not exist.
///
/// Every operation throws a `Failure` with `ExitCode::Plugin` when the panel raises; its owner then
/// leaves the panel out. Main thread only.
class PanelDriver {
public:
  /// Requests kind, name, option keys and view, in this order. The view must exist before the panel
  /// reads or writes values. Error messages name `pluginPath`.
  PanelDriver(id panel, std::string pluginPath);
  ~PanelDriver();
  PanelDriver(const PanelDriver &) = delete;
  PanelDriver &operator=(const PanelDriver &) = delete;

  const std::string &kind() const noexcept { return kind_; }
  /// The name to show users; the kind if the panel has no name.
  const std::string &name() const noexcept { return name_; }
  /// PPD options that the panel handles.
  const std::vector<std::string> &optionKeys() const noexcept { return optionKeys_; }
  /// The panel's view; null for a panel without one, unless it has a placeholder.
  NSView *view() const noexcept { return view_; }
  /// Sets the view that a window shows if the panel has none. Retained.
  void setPlaceholder(NSView *view);
  bool hasView() const noexcept { return hasView_; }
  const std::string &pluginPath() const noexcept { return pluginPath_; }

  void willShow();
  /// Makes the panel write its values to the job's settings. Returns none on success; otherwise a
  /// sentence with the panel's name and the reason that the panel gave, if any.
  std::optional<std::string> save();
  /// The same, but the panel reads its values from the job's settings.
  std::optional<std::string> restore();
  /// False when the panel does not allow the job.
  bool mayPrint();
  SummarySection summary();

private:
  void guarded(const char *operation, const std::function<void()> &body);
  std::optional<std::string>
  refusalOf(const char *operation, const std::function<BOOL(NSError **)> &body,
            std::string (*sentence)(const std::string &panel, const std::string &reason));

  id<PDEPanel> panel_; // retained
  std::string pluginPath_;
  std::string kind_;
  std::string name_;
  std::vector<std::string> optionKeys_;
  NSView *view_ = nil; // retained
  bool hasView_ = true;
};

} // namespace imageposition

#endif
