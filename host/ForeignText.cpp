#include "host/ForeignText.hpp"

#include "platform/Utf.hpp"

#include <algorithm>

namespace imageposition {

namespace {

/// U+0085 and U+009B are among those from 0x7F: a new line, and the start of a terminal's command.
bool isControl(char16_t unit) {
  constexpr char16_t kLineSeparator = 0x2028, kParagraphSeparator = 0x2029;
  return unit < ' ' || (unit >= 0x7F && unit < 0xA0) || unit == kLineSeparator ||
         unit == kParagraphSeparator;
}

} // namespace

std::string onOneLine(std::string_view text) {
  std::u16string units = utf16FromUtf8(text);
  std::replace_if(units.begin(), units.end(), isControl, u' ');
  return utf8FromUtf16(units);
}

std::string textOrKeyword(const char *text, const char *keyword) {
  return onOneLine(text != nullptr && *text != '\0' ? text : keyword);
}

} // namespace imageposition
