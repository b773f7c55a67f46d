/// What is said when there is no display.
#ifndef IMAGEPOSITION_HOST_STARTUPTEXTS_HPP
#define IMAGEPOSITION_HOST_STARTUPTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// The display.
std::string displayUnreachable(const std::string &name);

} // namespace imageposition::messages

#endif
