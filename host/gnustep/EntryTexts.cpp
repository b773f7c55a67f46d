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

} // namespace imageposition::messages
