#include "IntegerText.hpp"

#include "Utf.hpp"

#include <cstdio>
#include <limits>

namespace imageposition {
namespace {

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

bool isWhiteSpace(char16_t unit) {
  return (unit >= 0x09 && unit <= 0x0D) || unit == 0x20 || unit == 0x85 || unit == 0xA0 ||
         unit == 0x1680 || (unit >= 0x2000 && unit <= 0x200A) || unit == 0x2028 || unit == 0x2029 ||
         unit == 0x202F || unit == 0x205F || unit == 0x3000;
}

} // namespace

std::int32_t readInteger(std::u16string_view text) noexcept {
  using Limits = std::numeric_limits<std::int32_t>;
  std::size_t at = 0;
  while (at < text.size() && isWhiteSpace(text[at]))
    ++at;
  bool negative = false;
  if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
    negative = text[at++] == u'-';
  // The magnitude of the smallest negative number is one more than that of the largest positive
  // one.
  const std::int64_t largest = std::int64_t{Limits::max()} + (negative ? 1 : 0);
  std::int64_t magnitude = 0;
  for (; at < text.size() && isDigit(text[at]); ++at) {
    magnitude = magnitude * 10 + (text[at] - u'0');
    if (magnitude > largest)
      magnitude = largest;
  }
  return static_cast<std::int32_t>(negative ? -magnitude : magnitude);
}

std::int32_t readInteger(std::string_view text) { return readInteger(utf16FromUtf8(text)); }

std::string writeInteger(std::int32_t value) {
  char text[sizeof "-2147483648"];
  const int length = std::snprintf(text, sizeof text, "%d", static_cast<int>(value));
  return {text, static_cast<std::size_t>(length)};
}

} // namespace imageposition
