/// UTF-8 and UTF-16, whatever bytes come.
#ifndef IMAGEPOSITION_PLATFORM_UTF_HPP
#define IMAGEPOSITION_PLATFORM_UTF_HPP

#include <string>
#include <string_view>

namespace imageposition {

/// A lone surrogate becomes U+FFFD.
std::string utf8FromUtf16(std::u16string_view text);

/// Each byte that begins no well-formed sequence becomes U+FFFD; the result has no lone surrogate.
std::u16string utf16FromUtf8(std::string_view text);

bool isWellFormedUtf8(std::string_view text);

} // namespace imageposition

#endif
