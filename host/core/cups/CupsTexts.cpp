#include "CupsTexts.hpp"

#include "Phrases.hpp"

namespace imageposition::messages {

const Text kPrinterIdle = text("Ready");
const Text kPrinterPrinting = text("Printing");
const Text kPrinterStopped = text("Stopped");
const Text kPrinterPaused = text("Paused");
const Text kPrinterFaulty = text("Needs attention");
const Text kPrinterRefuses = text("Not accepting jobs");
std::string stateBecause(const std::string &state, const std::string &reasons) {
  return state + because(reasons);
}
std::string jobsWaiting(int count) { return counted(count, "{1} job waiting", "{1} jobs waiting"); }
std::string supplyLevel(const std::string &supply, int level) {
  // Translators: a supply and its level: "Black toner: 3%".
  return text("{1}: {2}%").with(supply, std::to_string(level));
}
std::string besides(const std::vector<std::string> &remarks) {
  std::string line;
  for (const std::string &remark : remarks)
    if (!remark.empty())
      line += (line.empty() ? "" : " · ") + remark;
  return line;
}
const Text kNoPrinters =
    text("CUPS has no printers. Add one in the system settings or with lpadmin.");
std::string noCups(const std::string &server, const std::string &reason) {
  return text("CUPS is not responding at {1}{2}. Start it (systemctl start cups) and try again.")
      .with(server, because(reason));
}
const Text kNoAnswer = text("timed out");
std::string printersNotListed(const std::string &reason) {
  return text("CUPS refused to list its printers{1}. Ask its administrator.").with(because(reason));
}
std::string passwordExposed(const std::string &server) {
  return text("The connection to CUPS at {1} is not encrypted, so others on the network could read "
              "your password. To encrypt it, cancel and start print-dialog with -E.")
      .with(server);
}

} // namespace imageposition::messages
