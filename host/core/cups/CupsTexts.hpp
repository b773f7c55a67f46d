/// Messages about the CUPS server and its printers.
#ifndef IMAGEPOSITION_CORE_CUPS_CUPSTEXTS_HPP
#define IMAGEPOSITION_CORE_CUPS_CUPSTEXTS_HPP

#include "Text.hpp"

#include <string>
#include <vector>

namespace imageposition::messages {

// Printers.
extern const Text kPrinterIdle;
extern const Text kPrinterPrinting;
extern const Text kPrinterStopped;
extern const Text kPrinterPaused; ///< By its administrator, or by CUPS after a failure.
extern const Text kPrinterFaulty; ///< Idle, but it may print nothing.
extern const Text kPrinterRefuses;
/// The reasons may be empty.
std::string stateBecause(const std::string &state, const std::string &reasons);
std::string jobsWaiting(int count);
/// `level` is in percent.
std::string supplyLevel(const std::string &supply, int level);
/// Joins remarks beside each other, skipping empty ones: "Paused · 2 jobs waiting".
std::string besides(const std::vector<std::string> &remarks);
extern const Text kNoPrinters;
std::string noCups(const std::string &server, const std::string &reason);
extern const Text kNoAnswer;
std::string printersNotListed(const std::string &reason);

// Passwords.
/// Warns the user before entering a password.
std::string passwordExposed(const std::string &server);

} // namespace imageposition::messages

#endif
