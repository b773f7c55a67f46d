/// What the summary says about a job besides what the panels say.
#ifndef IMAGEPOSITION_HOST_JOBSUMMARY_HPP
#define IMAGEPOSITION_HOST_JOBSUMMARY_HPP

#include "JobRequest.hpp"
#include "PrinterDescription.hpp"
#include "Summary.hpp"

#include <string>
#include <vector>

namespace imageposition {

/// Printer, documents, copies and pages.
SummarySection jobSection(const std::string &printer, const std::vector<std::string> &documents,
                          const PrintSettingsStore &job);

/// The printer's options by their texts, without those that panels announce.
SummarySection optionSection(PrinterDescription &printer, PrintSettingsStore &job,
                             const std::vector<std::string> &announced);

/// Every option as CUPS gets it, by the names and in the order of the request. What no request can
/// have is in words in its place.
SummarySection sentSection(const JobRequest &request);

} // namespace imageposition

#endif
