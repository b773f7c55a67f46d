#include "MeasureTexts.hpp"

namespace imageposition::messages {

std::string inInches(const std::string &number) { return text("{1} in").with(number); }
std::string inPoints(const std::string &number) { return text("{1} pt").with(number); }
std::string inMillimetres(const std::string &number) { return text("{1} mm").with(number); }

} // namespace imageposition::messages
