/// Reads PDF files.
#ifndef IMAGEPOSITION_EXAMINER_PDFFACTS_HPP
#define IMAGEPOSITION_EXAMINER_PDFFACTS_HPP

#include "DocumentFacts.hpp"

#include <optional>
#include <string>

namespace imageposition {

/// None for a file that cannot be read, is not a regular file or no PDF, has no pages, or needs a
/// password. May take long, and much memory.
std::optional<DocumentFacts> factsOfPdf(const std::string &path);

} // namespace imageposition

#endif
