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

/// The printer's options by their display names, except those in `announced`, which panels show,
/// and those that are off by default.
SummarySection optionSection(PrinterDescription &printer, PrintSettingsStore &job,
                             const std::vector<std::string> &announced);

/// The options sent to CUPS that no other section shows, with the names and in the order of the
/// request. Options with a dot in their names belong to panels. If the request is invalid, the
/// section contains the reason instead.
SummarySection otherSection(const JobRequest &request, PrinterDescription &printer,
                            const std::vector<std::string> &announced);

} // namespace imageposition

#endif
