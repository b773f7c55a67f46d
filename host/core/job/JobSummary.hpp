/// The sections of a summary that do not come from panels.
#ifndef IMAGEPOSITION_CORE_JOB_JOBSUMMARY_HPP
#define IMAGEPOSITION_CORE_JOB_JOBSUMMARY_HPP

#include "JobRequest.hpp"
#include "PrinterDescription.hpp"
#include "Summary.hpp"

#include <string>
#include <vector>

namespace imageposition {

/// Printer, documents, copies and pages.
SummarySection jobSection(const std::string &printer, const std::vector<std::string> &documents,
                          const PrintSettingsStore &job);

/// The printer's options by their display names, except those in `announced`, which panels show.
SummarySection optionSection(PrinterDescription &printer, PrintSettingsStore &job,
                             const std::vector<std::string> &announced);

/// All options as sent to CUPS, with the names and in the order of the request. If the request is
/// invalid, the section contains the reason instead.
SummarySection sentSection(const JobRequest &request);

} // namespace imageposition

#endif
