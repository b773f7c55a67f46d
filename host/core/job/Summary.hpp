/// What panels say about a job, line by line.
#ifndef IMAGEPOSITION_HOST_SUMMARY_HPP
#define IMAGEPOSITION_HOST_SUMMARY_HPP

#include <string>
#include <vector>

namespace imageposition {

struct SummaryLine {
  std::string title;
  std::string value;
  bool differs = false; ///< From what the printer does unless told otherwise.
};

/// One panel's part; without lines when the panel has nothing to say.
struct SummarySection {
  std::string panelName;
  std::vector<SummaryLine> lines;
};

/// "Panel" as a heading and "  Title: value" below it, for each section.
std::string writeSummary(const std::vector<SummarySection> &sections);

} // namespace imageposition

#endif
