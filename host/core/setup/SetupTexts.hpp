/// What is said about the job that is being set up.
#ifndef IMAGEPOSITION_HOST_SETUPTEXTS_HPP
#define IMAGEPOSITION_HOST_SETUPTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// Printers.
extern const Text kNoDefaultPrinter;

// What came out.
std::string ticketWritten(const std::string &path, const std::string &optionPath);
/// `done`: in sentences, what cannot be taken back; may be empty.
std::string outputUnwritable(const std::string &done);

/// lp's own words, which scripts read.
std::string jobSent(const std::string &printer, int id, std::size_t files);

} // namespace imageposition::messages

#endif
