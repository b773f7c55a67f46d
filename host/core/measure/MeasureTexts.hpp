/// How lengths are written.
#ifndef IMAGEPOSITION_HOST_MEASURETEXTS_HPP
#define IMAGEPOSITION_HOST_MEASURETEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// Values of a person's own. `name` is the parameter's, `range` what may be entered.
std::string inInches(const std::string &number);
std::string inPoints(const std::string &number);

std::string inMillimetres(const std::string &number);

} // namespace imageposition::messages

#endif
