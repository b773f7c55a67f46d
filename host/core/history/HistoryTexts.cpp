#include "HistoryTexts.hpp"

namespace imageposition::messages {

std::string historyUnreadable(const std::string &path, const std::string &reason) {
  return text(
             "Cannot read the last jobs' settings in \"{1}\": {2}. The dialog starts without them.")
      .with(path, reason);
}
std::string historyUnwritable(const std::string &path, const std::string &reason) {
  return text("Cannot remember the settings in \"{1}\": {2}.").with(path, reason);
}
// Translators: a reason, after a colon.
const Text kNotAHistory = text("print-dialog did not write this file");

} // namespace imageposition::messages
