/// Loads plug-in bundles and asks them for panels.
#ifndef IMAGEPOSITION_PANELS_PLUGINS_PLUGINLOADER_H
#define IMAGEPOSITION_PANELS_PLUGINS_PLUGINLOADER_H

#import "PanelDriver.h"

#include <memory>
#include <string>
#include <vector>

namespace imageposition {

/// One loaded plug-in. Its code stays in the process for good.
class Plugin {
public:
  /// Checks each step: that the path exists, that no other user could have changed what is there,
  /// that it is a bundle with code, that the code loads, that its principal class exists and
  /// implements a print-dialog extension, and that it starts. Throws a `Failure` with
  /// `ExitCode::Plugin` that names the step.
  explicit Plugin(const std::string &path);
  ~Plugin();
  Plugin(const Plugin &) = delete;
  Plugin &operator=(const Plugin &) = delete;

  /// New panels for the print dialog, each with its view; none if the plug-in has none for the
  /// printer of `hostInfo`. Throws a `Failure` if one cannot be built.
  std::vector<std::unique_ptr<PanelDriver>> panels(id hostInfo);

private:
  std::string path_;
  id<PDEPlugIn> plugin_ = nil; // retained
};

} // namespace imageposition

#endif
