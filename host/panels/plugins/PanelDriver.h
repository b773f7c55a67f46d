/// One panel of a plug-in, driven in the order that panels expect.
#ifndef IMAGEPOSITION_HOST_PANELDRIVER_H
#define IMAGEPOSITION_HOST_PANELDRIVER_H

#import <ApplicationServices/ApplicationServices.h>

#include "Summary.hpp"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// Whether a panel wants to be hidden is not asked: this dialog offers every panel that it gets.
///
/// A panel without a view is asked for nothing else: it may keep values in its controls, and would
/// store those of controls that do not exist.
///
/// Every operation throws a `Failure` with `ExitCode::Plugin` when the panel raises; its owner then
/// leaves the panel out. Main thread only.
class PanelDriver {
public:
  /// Asks for kind, name, option keys and view, in this order. The view comes before everything
  /// that touches values, as above. `pluginPath` is named in messages.
  PanelDriver(id panel, std::string pluginPath);
  ~PanelDriver();
  PanelDriver(const PanelDriver &) = delete;
  PanelDriver &operator=(const PanelDriver &) = delete;

  const std::string &kind() const noexcept { return kind_; }
  /// For people; the kind when the panel has no name.
  const std::string &name() const noexcept { return name_; }
  /// PPD options that the panel handles.
  const std::vector<std::string> &optionKeys() const noexcept { return optionKeys_; }
  /// The panel's view; null for a panel without one, unless it has a placeholder.
  NSView *view() const noexcept { return view_; }
  /// What a window shows in place of the view that the panel lacks. Retained.
  void setPlaceholder(NSView *view);
  bool hasView() const noexcept { return hasView_; }
  const std::string &pluginPath() const noexcept { return pluginPath_; }

  void willShow();
  /// Has the panel write its values to the job's settings. None when it did; otherwise why not, as
  /// a sentence with the panel's name and, where it gave a reason, its own words.
  std::optional<std::string> save();
  /// The same for reading its values from the job's settings.
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
