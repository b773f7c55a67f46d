/// Reads PDF files.
#ifndef IMAGEPOSITION_EXAMINER_PDFFACTS_HPP
#define IMAGEPOSITION_EXAMINER_PDFFACTS_HPP

#include "DocumentFacts.hpp"

#include <string>

namespace imageposition {

/// The line of `writeFacts` or of `writeDefect`. Empty for a file that cannot be read, is not a
/// regular file or no PDF, or has no pages. May take long, and much memory.
std::string reportOnPdf(const std::string &path);

} // namespace imageposition

#endif
