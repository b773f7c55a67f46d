#include "ProgramTexts.hpp"

#include "Phrases.hpp"

namespace imageposition::messages {

std::string documentUnreadable(const std::string &path, const std::string &reason) {
  return text("Cannot read the document \"{1}\": {2}. Check its name and permissions.")
      .with(path, reason);
}
std::string configurationUntrusted(const std::string &part) {
  return text("Ignored GNUSTEP_CONFIG_FILE: another user could modify \"{1}\". Unset the variable, "
              "or set it to a file and folder that only you can modify.")
      .with(part);
}
std::string moduleMissing(const std::string &path) {
  return text("print-dialog's file \"{1}\" is missing. Reinstall print-dialog.").with(path);
}
std::string moduleUntrusted(const std::string &path) {
  return text("print-dialog's file \"{1}\" was not loaded: another user could modify it. Reinstall "
              "print-dialog.")
      .with(path);
}
std::string moduleNotLoadable(const std::string &path, const std::string &reason) {
  return text("print-dialog's file \"{1}\" could not be loaded{2}. Reinstall print-dialog and the "
              "packages that it depends on.")
      .with(path, because(reason));
}
const Text kCutShort = text("its end is missing");

} // namespace imageposition::messages
