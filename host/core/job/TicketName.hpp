/// File names of tickets.
#ifndef IMAGEPOSITION_CORE_JOB_TICKETNAME_HPP
#define IMAGEPOSITION_CORE_JOB_TICKETNAME_HPP

#include <string>
#include <vector>

namespace imageposition {

/// Suggests a name for a job with these documents: "report.json" for "/home/ann/report.pdf";
/// "job.json" for none.
std::string suggestedTicket(const std::vector<std::string> &documents);

/// Completes a path that the user typed: removes blanks around it, replaces "~/" with `home`, and
/// appends ".json" to a name without an extension. Returns an empty string if nothing was typed.
std::string ticketPath(const std::string &typed, const std::string &home);

} // namespace imageposition

#endif
