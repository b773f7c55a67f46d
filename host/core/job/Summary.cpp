#include "Summary.hpp"

#include "JobTexts.hpp"
#include "Phrases.hpp"
#include "VisibleText.hpp"

namespace imageposition {

std::string writeSummary(const std::vector<SummarySection> &sections) {
  std::string text;
  for (const SummarySection &section : sections) {
    text += visible(section.panelName) + '\n';
    for (const SummaryLine &line : section.lines)
      text += "  " + messages::summaryLine(line.title, line.value) + '\n';
    if (section.lines.empty())
      text += "  " + messages::kNothingToSummarize.str() + '\n';
  }
  return text;
}

} // namespace imageposition
