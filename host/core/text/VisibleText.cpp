#include "VisibleText.hpp"

#include "Utf.hpp"

#include <algorithm>
#include <cstdio>

namespace imageposition {

namespace {

bool isBetween(char16_t unit, char16_t first, char16_t last) {
  return unit >= first && unit <= last;
}

bool controlsTerminal(char16_t unit) {
  return unit < u' ' || isBetween(unit, 0x7F, 0x9F) || // C0, DEL and C1
         isBetween(unit, 0x2028, 0x202E) ||            // separators, embeddings and overrides
         isBetween(unit, 0x2066, 0x2069);              // isolates
}

std::u16string escapeFor(char16_t unit) {
  switch (unit) {
  case u'\n':
    return u"\\n";
  case u'\r':
    return u"\\r";
  case u'\t':
    return u"\\t";
  }
  char escape[sizeof "\\u202e"];
  const char *const form = unit < 0x100 ? "\\x%02x" : "\\u%04x";
  std::snprintf(escape, sizeof escape, form, static_cast<unsigned>(unit));
  return utf16FromUtf8(escape);
}

} // namespace

std::string visible(std::string_view text) {
  std::u16string shown;
  for (const char16_t unit : utf16FromUtf8(text)) {
    if (controlsTerminal(unit))
      shown += escapeFor(unit);
    else
      shown += unit;
  }
  return utf8FromUtf16(shown);
}

VisibleStream::VisibleStream(std::ostream &stream) : stream_(stream), target_(stream.rdbuf(this)) {}

VisibleStream::~VisibleStream() { stream_.rdbuf(target_); }

VisibleStream::int_type VisibleStream::overflow(int_type character) {
  if (traits_type::eq_int_type(character, traits_type::eof()))
    return traits_type::not_eof(character);
  const char one = traits_type::to_char_type(character);
  return xsputn(&one, 1) == 1 ? character : traits_type::eof();
}

std::streamsize VisibleStream::xsputn(const char *text, std::streamsize size) {
  std::string_view rest(text, static_cast<std::size_t>(size));
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    std::string line = visible(rest.substr(0, end));
    if (end < rest.size())
      line += '\n';
    const auto length = static_cast<std::streamsize>(line.size());
    if (target_->sputn(line.data(), length) != length)
      return size - static_cast<std::streamsize>(rest.size());
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return size;
}

int VisibleStream::sync() { return target_->pubsync(); }

} // namespace imageposition
