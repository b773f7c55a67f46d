/// Texts that come from printers' descriptions and from CUPS.
#ifndef IMAGEPOSITION_HOST_FOREIGNTEXT_HPP
#define IMAGEPOSITION_HOST_FOREIGNTEXT_HPP

#include <string>
#include <string_view>

namespace imageposition {

/// The text as one line of UTF-8 that a terminal shows and does not obey: U+FFFD stands for each
/// malformed byte, and a blank for each control character and line break.
std::string onOneLine(std::string_view text);

/// The text that a printer's description has for an option, a choice or a group, on one line; the
/// keyword where it has none. `text` may be null.
std::string textOrKeyword(const char *text, const char *keyword);

} // namespace imageposition

#endif
