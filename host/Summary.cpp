#include "host/Summary.hpp"

#include "host/Messages.hpp"

namespace imageposition {

std::string writeSummary(const std::vector<SummarySection> &sections) {
  std::string text;
  for (const SummarySection &section : sections) {
    text += section.panelName + '\n';
    for (const SummaryLine &line : section.lines)
      text += "  " + line.title + ": " + line.value + '\n';
    if (section.lines.empty())
      text += std::string("  ") + messages::kNothingToSummarize + '\n';
  }
  return text;
}

} // namespace imageposition
