/// Conversion between UTF-8 and UTF-16 that accepts malformed input.
#ifndef IMAGEPOSITION_PLATFORM_UTF_HPP
#define IMAGEPOSITION_PLATFORM_UTF_HPP

#include <string>
#include <string_view>

namespace imageposition {

/// Replaces a lone surrogate by U+FFFD.
std::string utf8FromUtf16(std::u16string_view text);

/// Replaces each byte that does not begin a well-formed sequence by U+FFFD. The result has no lone
/// surrogates.
std::u16string utf16FromUtf8(std::string_view text);

bool isWellFormedUtf8(std::string_view text);

} // namespace imageposition

#endif
