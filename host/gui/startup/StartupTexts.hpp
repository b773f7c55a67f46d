/// Messages about the display.
#ifndef IMAGEPOSITION_GUI_STARTUP_STARTUPTEXTS_HPP
#define IMAGEPOSITION_GUI_STARTUP_STARTUPTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

std::string displayUnreachable(const std::string &name);

} // namespace imageposition::messages

#endif
