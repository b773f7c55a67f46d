/// Messages about plug-ins that cannot be used.
#ifndef IMAGEPOSITION_PANELS_PLUGINS_PLUGINTEXTS_HPP
#define IMAGEPOSITION_PANELS_PLUGINS_PLUGINTEXTS_HPP

#include "PluginTrust.hpp"
#include "Text.hpp"

#include <string>

namespace imageposition::messages {

std::string pluginMissing(const std::string &path);
std::string pluginNotBundle(const std::string &path);
/// `part` is the bundle, something in it, or a folder on its path.
std::string pluginWritable(const std::string &path, const std::string &part);
std::string pluginOwnedByOthers(const std::string &path, const std::string &part);
/// `part` may also be the place of a library, as in `pluginLoadsCode`.
std::string pluginUnexamined(const std::string &path, const std::string &part,
                             const std::string &reason);
/// `library` is the file that makes the loader look in `place`, which other users may change.
std::string pluginLoadsCode(const std::string &path, const std::string &library,
                            const std::string &place);
/// The same for a place that depends on the current folder.
std::string pluginLoadsCodeAnywhere(const std::string &path, const std::string &library,
                                    const std::string &place);
/// Chooses the message above that fits `part`.
std::string pluginUntrusted(const std::string &path, const UntrustedPart &part);
/// The state of a checkbox, in a summary.
extern const Text kOn;
extern const Text kCodeCutShort;
std::string pluginNotLoadable(const std::string &path, const std::string &reason);
std::string pluginWithoutClass(const std::string &path, const std::string &className);
std::string pluginClassTaken(const std::string &path, const std::string &className);
std::string pluginWithoutOperation(const std::string &path, const std::string &operation);
std::string pluginRefused(const std::string &path);
std::string pluginRaised(const std::string &path, const std::string &operation,
                         const std::string &what);
std::string panelNotBuilt(const std::string &path);
std::string panelWithoutOperation(const std::string &path, const std::string &operation);
std::string panelWithoutView(const std::string &path);
std::string panelRefusedJob(const std::string &panel);
/// `reason` comes from the panel and may be empty.
std::string panelNotSaved(const std::string &panel, const std::string &reason);
std::string panelNotRestored(const std::string &panel, const std::string &reason);

} // namespace imageposition::messages

#endif
