/// Messages about the file of the last jobs.
#ifndef IMAGEPOSITION_CORE_HISTORY_HISTORYTEXTS_HPP
#define IMAGEPOSITION_CORE_HISTORY_HISTORYTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

std::string historyUnreadable(const std::string &path, const std::string &reason);
std::string historyUnwritable(const std::string &path, const std::string &reason);
extern const Text kNotAHistory; ///< A reason.

} // namespace imageposition::messages

#endif
