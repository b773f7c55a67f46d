/// Loads plug-in bundles and asks them for panels.
#ifndef IMAGEPOSITION_PANELS_PLUGINS_PLUGINLOADER_H
#define IMAGEPOSITION_PANELS_PLUGINS_PLUGINLOADER_H

#include "ExitCode.hpp"
#import "PanelDriver.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace imageposition {

/// One loaded plug-in. Its code is never unloaded.
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

/// Loads each plug-in once, and keeps it.
class LoadedPlugins {
public:
  /// Returns the plug-in at `path`; the first call loads it. Does not retry a plug-in that failed,
  /// because its code may already be in the process: throws the same `Failure` each time.
  Plugin &at(const std::string &path);

private:
  std::map<std::string, std::unique_ptr<Plugin>> plugins_; // by the bundle's identity
  std::map<std::string, Failure> failures_;
};

} // namespace imageposition

#endif
