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
  return text("The file \"{1}\" of print-dialog is missing. Install print-dialog again.")
      .with(path);
}
std::string moduleNotLoadable(const std::string &path, const std::string &reason) {
  return text(
             "\"{1}\", a part of print-dialog, could not be loaded{2}. Install print-dialog again, "
             "with the packages that it needs.")
      .with(path, because(reason));
}
const Text kCutShort = text("its end is missing");

} // namespace imageposition::messages
