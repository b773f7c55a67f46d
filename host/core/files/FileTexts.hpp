/// Reasons why a file cannot be read or written.
#ifndef IMAGEPOSITION_CORE_FILES_FILETEXTS_HPP
#define IMAGEPOSITION_CORE_FILES_FILETEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// Clauses that follow the name of the file.
extern const Text kNotAnOrdinaryFile;
extern const Text kLinkOfAnotherUser;
extern const Text kNotWrittenByPrintDialog;
/// `process` may be empty.
std::string lockedBy(const std::string &process);

} // namespace imageposition::messages

#endif
