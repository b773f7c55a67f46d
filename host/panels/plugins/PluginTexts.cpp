#include "PluginTexts.hpp"

#include "Phrases.hpp"
#include "Strings.hpp"

namespace imageposition::messages {

std::string pluginMissing(const std::string &path) {
  return text("The plug-in \"{1}\" does not exist. Check the path.").with(path);
}
std::string pluginNotBundle(const std::string &path) {
  return text("\"{1}\" is not a plug-in: it is not a bundle with code. Check the path, or "
              "reinstall it.")
      .with(path);
}
std::string pluginWritable(const std::string &path, const std::string &part) {
  return text("The plug-in \"{1}\" was not loaded: other users can modify \"{2}\", and so the "
              "plug-in's code. Remove their write permission (chmod go-w {3}), or use a copy "
              "of the plug-in in your own folder.")
      .with(path, part, shellWord(part));
}
std::string pluginOwnedByOthers(const std::string &path, const std::string &part) {
  return text("The plug-in \"{1}\" was not loaded: \"{2}\" belongs to another user, who could "
              "modify the plug-in's code. Ask the system administrator to install it, or use a "
              "copy of it in your own folder.")
      .with(path, part);
}
std::string pluginUnexamined(const std::string &path, const std::string &part,
                             const std::string &reason) {
  return text("The plug-in \"{1}\" was not loaded: \"{2}\" cannot be examined ({3}), so other "
              "users might have modified it. Correct its permissions, or reinstall the plug-in.")
      .with(path, part, reason);
}
std::string pluginLoadsCode(const std::string &path, const std::string &library,
                            const std::string &place) {
  return text("The plug-in \"{1}\" was not loaded: \"{2}\" loads code from \"{3}\", which other "
              "users can modify. Ask the system administrator to remove their write permission, or "
              "the plug-in's maker for another version.")
      .with(path, library, place);
}
std::string pluginLoadsCodeAnywhere(const std::string &path, const std::string &library,
                                    const std::string &place) {
  return text(
             "The plug-in \"{1}\" was not loaded: \"{2}\" loads code from \"{3}\", which depends "
             "on the folder that the program runs in. Ask the plug-in's maker for another version.")
      .with(path, library, place);
}
std::string pluginUntrusted(const std::string &path, const UntrustedPart &part) {
  switch (part.reason) {
  case UntrustedPart::Reason::OthersMayWrite:
    return pluginWritable(path, part.path);
  case UntrustedPart::Reason::OthersOwnIt:
    return pluginOwnedByOthers(path, part.path);
  default:
    return pluginUnexamined(path, part.path, systemReason(part.error));
  }
}
const Text kOn = text("On");
const Text kCodeCutShort = text("its end is missing");
std::string pluginNotLoadable(const std::string &path, const std::string &reason) {
  return text("The code of the plug-in \"{1}\" could not be loaded{2}. It may be damaged or built "
              "for another system. Reinstall the plug-in.")
      .with(path, because(reason));
}
std::string pluginWithoutClass(const std::string &path, const std::string &className) {
  if (className.empty())
    return text("The plug-in \"{1}\" lacks its principal class. Reinstall it.").with(path);
  return text("The plug-in \"{1}\" lacks its principal class \"{2}\". Reinstall it.")
      .with(path, className);
}
std::string pluginClassTaken(const std::string &path, const std::string &className) {
  return text("The plug-in \"{1}\" was not loaded: its class \"{2}\" is already loaded, perhaps "
              "from another copy. Remove one of them.")
      .with(path, className);
}
std::string pluginWithoutOperation(const std::string &path, const std::string &operation) {
  return text("The plug-in \"{1}\" is not a print-dialog extension: its principal class lacks "
              "\"{2}\". Ask its maker for another version.")
      .with(path, operation);
}
std::string pluginRefused(const std::string &path) {
  return text("The plug-in \"{1}\" was not loaded: it reports that it cannot start. Reinstall it.")
      .with(path);
}
std::string pluginRaised(const std::string &path, const std::string &operation,
                         const std::string &what) {
  return text("The plug-in \"{1}\" failed in \"{2}\" ({3}) and was disabled. Ask its maker for "
              "another version.")
      .with(path, operation, what);
}
std::string panelNotBuilt(const std::string &path) {
  return text("The panel of the plug-in \"{1}\" could not be loaded: one of its files is missing "
              "or damaged. Reinstall the plug-in.")
      .with(path);
}
std::string panelWithoutOperation(const std::string &path, const std::string &operation) {
  return text("A panel of the plug-in \"{1}\" cannot be used: it lacks \"{2}\". Ask its maker for "
              "another version.")
      .with(path, operation);
}
std::string panelWithoutView(const std::string &path) {
  return text("A panel of the plug-in \"{1}\" has no view. Reinstall the plug-in.").with(path);
}
std::string panelRefusedJob(const std::string &panel) {
  return text("\"{1}\" does not allow printing. Check its settings.").with(panel);
}
std::string panelNotSaved(const std::string &panel, const std::string &reason) {
  if (reason.empty())
    return text("\"{1}\" could not add its settings to the job. Look at its settings.").with(panel);
  return text("\"{1}\" could not add its settings to the job: {2}").with(panel, reason);
}
std::string panelNotRestored(const std::string &panel, const std::string &reason) {
  if (reason.empty())
    return text("\"{1}\" could not read the job's settings. Look at its settings.").with(panel);
  return text("\"{1}\" could not read the job's settings: {2}").with(panel, reason);
}

} // namespace imageposition::messages
