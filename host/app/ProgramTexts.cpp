#include "ProgramTexts.hpp"

#include "Phrases.hpp"

namespace imageposition::messages {

std::string documentUnreadable(const std::string &path, const std::string &reason) {
  return text("The document \"{1}\" cannot be read: {2}. Check the name and its rights.")
      .with(path, reason);
}
std::string configurationUntrusted(const std::string &part) {
  return text("GNUSTEP_CONFIG_FILE was ignored: another user could change \"{1}\". Unset the "
              "variable, or have it name a file that only you can change, in such a folder.")
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
