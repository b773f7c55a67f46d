/// Messages about a run with a window or panels as a whole.
#ifndef IMAGEPOSITION_GNUSTEP_ENTRYTEXTS_HPP
#define IMAGEPOSITION_GNUSTEP_ENTRYTEXTS_HPP

#include "Text.hpp"

#include <string>
#include <vector>

namespace imageposition::messages {

/// `plugins`: the paths of those that were asked.
std::string noPanel(const std::string &printer, const std::vector<std::string> &plugins);
std::string jobSentUnsaid(const std::string &job);

} // namespace imageposition::messages

#endif
