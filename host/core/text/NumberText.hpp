/// Numbers as keyboards and documents of all scripts write them.
#ifndef IMAGEPOSITION_CORE_TEXT_NUMBERTEXT_HPP
#define IMAGEPOSITION_CORE_TEXT_NUMBERTEXT_HPP

#include <optional>
#include <string>
#include <string_view>

namespace imageposition {

/// Replaces the minus sign, hyphens and dashes, full-width digits and signs, and the blanks of
/// Unicode by their ASCII characters. Keeps everything else, malformed UTF-8 included.
std::string withAsciiDigits(std::string_view utf8);

/// The same without blanks at the ends.
std::string asciiNumber(std::string_view utf8);

/// Whether the string is digits after at most one sign, all of them ASCII.
bool isWholeNumber(std::string_view text);

/// The whole number of tenths in a number with one decimal digit, such as "15" in "1.5" or "1,5";
/// none in any other string.
std::optional<std::string> tenthsIn(std::string_view text);

/// Whether two whole numbers are the same one, for example "+07" and "7".
bool isSameNumber(std::string_view left, std::string_view right);

} // namespace imageposition

#endif
