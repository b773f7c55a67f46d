#include "EntryTexts.hpp"

#include "Phrases.hpp"

namespace imageposition::messages {

std::string noPanel(const std::string &printer, const std::vector<std::string> &plugins) {
  if (plugins.empty())
    return text("No plug-in found for \"{1}\". Specify one with --plugin BUNDLE.").with(printer);
  return text("No plug-in has a panel for \"{1}\" (tried: {2}). Choose a printer that supports "
              "one, or specify another plug-in with --plugin BUNDLE.")
      .with(printer, inOrder(plugins));
}
std::string jobSentWithoutOutput(const std::string &job) {
  return text("CUPS has accepted job {1}, but writing to standard output failed. Do not print it "
              "again.")
      .with(job);
}

} // namespace imageposition::messages
