#include "Utf.hpp"

#include <cstdint>

namespace imageposition {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isSurrogate(char32_t code) { return code >= 0xD800 && code <= 0xDFFF; }
bool isHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

void appendUtf8(std::string &text, char32_t code) {
  const auto tail = [code](int shift) {
    return static_cast<char>(0x80 | ((code >> shift) & 0x3F));
  };
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | (code >> 6));
    text += tail(0);
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0 | (code >> 12));
    text += tail(6);
    text += tail(0);
  } else {
    text += static_cast<char>(0xF0 | (code >> 18));
    text += tail(12);
    text += tail(6);
    text += tail(0);
  }
}

void appendUtf16(std::u16string &text, char32_t code) {
  if (code < 0x10000) {
    text += static_cast<char16_t>(code);
  } else {
    text += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
    text += static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
  }
}

struct Sequence {
  char32_t code;
  std::size_t length;
};

// Decodes one character of UTF-8; a byte that does not begin a well-formed one becomes the
// replacement. Overlong forms are malformed.
Sequence decodeAt(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t index) { return static_cast<std::uint8_t>(text[index]); };
  const std::uint8_t first = byte(at);
  if (first < 0x80)
    return {first, 1};
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || length > text.size() - at)
    return {kReplacement, 1};
  char32_t code = first & (0xFF >> (length + 1));
  for (std::size_t index = at + 1; index < at + length; ++index) {
    if ((byte(index) & 0xC0) != 0x80)
      return {kReplacement, 1};
    code = (code << 6) | (byte(index) & 0x3F);
  }
  constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  if (code < kSmallest[length] || code > 0x10FFFF || isSurrogate(code))
    return {kReplacement, 1};
  return {code, length};
}

} // namespace

std::string utf8FromUtf16(std::u16string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    char32_t code = text[at];
    if (isHighSurrogate(text[at]) && at + 1 < text.size() && isLowSurrogate(text[at + 1])) {
      ++at;
      code = 0x10000 + ((code - 0xD800) << 10) + (text[at] - 0xDC00);
    } else if (isSurrogate(code)) {
      code = kReplacement;
    }
    appendUtf8(result, code);
  }
  return result;
}

std::string wellFormedUtf8(std::string_view text) { return utf8FromUtf16(utf16FromUtf8(text)); }

bool isWellFormedUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = firstCharacterLength(text);
    if (length == 0)
      return false;
    text.remove_prefix(length);
  }
  return true;
}

std::size_t firstCharacterLength(std::string_view utf8) {
  if (utf8.empty())
    return 0;
  const Sequence first = decodeAt(utf8, 0);
  const bool isMalformed =
      first.code == kReplacement && first.length == 1; // U+FFFD has three bytes
  return isMalformed ? 0 : first.length;
}

std::string_view utf8Prefix(std::string_view utf8, std::size_t most) {
  std::size_t length = 0;
  while (length < utf8.size()) {
    const std::size_t next = length + decodeAt(utf8, length).length;
    if (next > most)
      break;
    length = next;
  }
  return utf8.substr(0, length);
}

std::u16string utf16FromUtf8(std::string_view text) {
  std::u16string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Sequence next = decodeAt(text, at);
    appendUtf16(result, next.code);
    at += next.length;
  }
  return result;
}

} // namespace imageposition
