/// Finding plug-ins.
#ifndef IMAGEPOSITION_CORE_BUNDLES_PLUGINFOLDERS_HPP
#define IMAGEPOSITION_CORE_BUNDLES_PLUGINFOLDERS_HPP

#include <string>
#include <vector>

namespace imageposition {

/// The sources of plug-in names, in order of precedence.
struct PluginNames {
  std::vector<std::string> fromUser;    ///< Bundles named with --plugin.
  std::vector<std::string> fromPrinter; ///< Paths from the PPD's `APDialogExtension` attributes.
};

/// The bundles to load, each once, in the order in which they were named.
///
/// If the user names any, only those are used, whether or not they exist, so the caller can report
/// a mistake. Otherwise each of the printer's paths selects the bundle of the same file name in the
/// first folder that has one. Its folder is ignored: it was written for another system, and the PPD
/// comes from a server, which must not choose what code runs here. If nothing was named or found,
/// all bundles of the first folder that has any are used.
std::vector<std::string> findPlugins(const PluginNames &names,
                                     const std::vector<std::string> &folders);

/// Returns the same string for every path to the same bundle.
std::string bundleIdentity(const std::string &path);

/// The folders to search for plug-ins: next to the running program, then where they are installed
/// relative to it, then the absolute folder configured at build time.
std::vector<std::string> pluginFolders();

} // namespace imageposition

#endif
