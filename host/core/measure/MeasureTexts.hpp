/// Lengths with their unit, for display.
#ifndef IMAGEPOSITION_CORE_MEASURE_MEASURETEXTS_HPP
#define IMAGEPOSITION_CORE_MEASURE_MEASURETEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

std::string inInches(const std::string &number);
std::string inPoints(const std::string &number);
std::string inMillimetres(const std::string &number);

} // namespace imageposition::messages

#endif
