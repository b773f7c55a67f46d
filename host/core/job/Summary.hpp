/// A summary of a job's settings.
#ifndef IMAGEPOSITION_CORE_JOB_SUMMARY_HPP
#define IMAGEPOSITION_CORE_JOB_SUMMARY_HPP

#include <string>
#include <vector>

namespace imageposition {

struct SummaryLine {
  std::string title;
  std::string value;
  bool differs = false; ///< From the printer's default.
};

/// The part of one panel; has no lines if the panel has nothing to show.
struct SummarySection {
  std::string panelName;
  std::vector<SummaryLine> lines;
};

/// Formats each section as a heading "Panel" with lines "  Title: value" below it.
std::string writeSummary(const std::vector<SummarySection> &sections);

} // namespace imageposition

#endif
