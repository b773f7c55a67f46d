/// Names of a job's documents.
#ifndef IMAGEPOSITION_CORE_JOB_DOCUMENTNAMES_HPP
#define IMAGEPOSITION_CORE_JOB_DOCUMENTNAMES_HPP

#include <string>
#include <vector>

namespace imageposition {

/// The name without folders: "report.pdf"; "(stdin)" for standard input. A file's name may have any
/// encoding; the result is UTF-8, with U+FFFD where the name is not.
std::string documentName(const std::string &path);

/// Describes the documents to the user: "report.pdf and 2 more". Empty for none.
std::string documentsInWords(const std::vector<std::string> &paths);

} // namespace imageposition

#endif
