/// Conversion between UTF-8 and UTF-16 that accepts malformed input.
#ifndef IMAGEPOSITION_PLATFORM_UTF_HPP
#define IMAGEPOSITION_PLATFORM_UTF_HPP

#include <cstddef>
#include <string>
#include <string_view>

namespace imageposition {

/// Replaces a lone surrogate by U+FFFD.
std::string utf8FromUtf16(std::u16string_view text);

/// Replaces each byte that does not begin a well-formed sequence by U+FFFD. The result has no lone
/// surrogates.
std::u16string utf16FromUtf8(std::string_view text);

/// Replaces as `utf16FromUtf8` does.
std::string wellFormedUtf8(std::string_view text);

bool isWellFormedUtf8(std::string_view text);

/// Bytes of the character that UTF-8 begins with; 0 for no text, and where it is malformed there.
std::size_t firstCharacterLength(std::string_view utf8);

/// The beginning of UTF-8, at most so many bytes and no part of a character. Malformed bytes stay.
std::string_view utf8Prefix(std::string_view utf8, std::size_t most);

} // namespace imageposition

#endif
