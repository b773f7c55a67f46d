#include "EntryTexts.hpp"

#include "Phrases.hpp"

namespace imageposition::messages {

std::string noPanel(const std::string &printer, const std::vector<std::string> &plugins) {
  if (plugins.empty())
    return text("No plug-in was found for \"{1}\". Name one with --plugin BUNDLE.").with(printer);
  return text("No plug-in has a panel for \"{1}\" (asked: {2}). Choose a printer that supports "
              "one, or name another plug-in with --plugin BUNDLE.")
      .with(printer, inOrder(plugins));
}
std::string jobSentUnsaid(const std::string &job) {
  return text("CUPS has the job {1}, but standard output cannot be written; do not print it again.")
      .with(job);
}
const Text kCancelled = text("Cancelled; nothing was written.");

} // namespace imageposition::messages
