/// Messages about the CUPS server and its printers.
#ifndef IMAGEPOSITION_CORE_CUPS_CUPSTEXTS_HPP
#define IMAGEPOSITION_CORE_CUPS_CUPSTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// Printers.
extern const Text kPrinterIdle;
extern const Text kPrinterPrinting;
extern const Text kPrinterStopped;
std::string stateBecause(const std::string &state, const std::string &reasons);
std::string refusesJobs(const std::string &state);
extern const Text kNoPrinters;
std::string noCups(const std::string &server, const std::string &reason);
extern const Text kNoAnswer;
std::string printersNotListed(const std::string &reason);

// Passwords.
/// Warns the user before entering a password.
std::string passwordExposed(const std::string &server);

} // namespace imageposition::messages

#endif
