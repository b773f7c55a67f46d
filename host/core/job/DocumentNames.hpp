/// How a job's documents are called.
#ifndef IMAGEPOSITION_HOST_DOCUMENTNAMES_HPP
#define IMAGEPOSITION_HOST_DOCUMENTNAMES_HPP

#include <string>
#include <vector>

namespace imageposition {

/// Without the folders: "report.pdf"; "(stdin)" for standard input.
std::string documentName(const std::string &path);

/// As a person is told what is printed: "report.pdf and 2 more". Empty for none.
std::string documentsInWords(const std::vector<std::string> &paths);

} // namespace imageposition

#endif
