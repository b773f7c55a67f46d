/// Where plug-ins are.
#ifndef IMAGEPOSITION_HOST_PLUGINFOLDERS_HPP
#define IMAGEPOSITION_HOST_PLUGINFOLDERS_HPP

#include <string>
#include <vector>

namespace imageposition {

/// What names plug-ins, the strongest first.
struct PluginNames {
  std::vector<std::string> fromPerson;  ///< Bundles of --plugin.
  std::vector<std::string> fromPrinter; ///< Paths of the PPD's `APDialogExtension` attributes.
};

/// The bundles to load, each once, in the order in which they were named.
///
/// What the person names is used alone, whether or not it exists, so that a mistake is reported.
/// Else each of the printer's paths stands for the bundle of the same file name in the first folder
/// that has one: a description comes from a server, which must not choose what code runs here, and
/// its maker wrote the path for another system. Where nothing was named or found, all bundles of
/// the first folder that has any are used.
std::vector<std::string> findPlugins(const PluginNames &names,
                                     const std::vector<std::string> &folders);

/// The same string for each path that leads to the same bundle.
std::string bundleIdentity(const std::string &path);

/// The folders in which plug-ins are looked for: beside the running program, then where they are
/// installed with it, then where the build expected that to be.
std::vector<std::string> pluginFolders();

} // namespace imageposition

#endif
