/// Messages about a whole run with a window or panels.
#ifndef IMAGEPOSITION_GNUSTEP_ENTRYTEXTS_HPP
#define IMAGEPOSITION_GNUSTEP_ENTRYTEXTS_HPP

#include "Text.hpp"

#include <string>
#include <vector>

namespace imageposition::messages {

/// `plugins`: the paths of the plug-ins that were tried.
std::string noPanel(const std::string &printer, const std::vector<std::string> &plugins);

} // namespace imageposition::messages

#endif
