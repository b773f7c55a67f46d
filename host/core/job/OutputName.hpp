/// Names of the files that a job is written to instead of being printed.
#ifndef IMAGEPOSITION_CORE_JOB_OUTPUTNAME_HPP
#define IMAGEPOSITION_CORE_JOB_OUTPUTNAME_HPP

#include <string>
#include <vector>

namespace imageposition {

/// What tells the name of a written file from its document's.
constexpr const char *kTicketEnding = ".json";
constexpr const char *kPdfEnding = "-print.pdf"; ///< Not ".pdf", as documents are named.

/// Suggests a name for a job with these documents: with ".json", "report.json" for
/// "/home/ann/report.pdf", and "job.json" for none.
std::string suggestedOutput(const std::vector<std::string> &documents, const std::string &ending);

/// Completes a path that the user typed: removes blanks around it, replaces "~/" with `home`, and
/// appends the extension of `ending` to a name without one. Returns an empty string if nothing was
/// typed.
std::string outputPath(const std::string &typed, const std::string &home,
                       const std::string &ending);

} // namespace imageposition

#endif
