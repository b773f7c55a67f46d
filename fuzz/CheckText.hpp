/// Whether strings from outside can be shown in a window and written to a terminal.
#ifndef IMAGEPOSITION_FUZZ_CHECKTEXT_HPP
#define IMAGEPOSITION_FUZZ_CHECKTEXT_HPP

#include "Check.hpp"
#include "Utf.hpp"

#include <algorithm>

namespace imageposition::fuzz {

/// A string for one line, which may be empty.
inline void checkLine(const std::string &text, const std::string &property) {
  check(isWellFormedUtf8(text), property + " is UTF-8: " + text);
  const std::u16string units = utf16FromUtf8(text);
  check(std::none_of(units.begin(), units.end(),
                     [](char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); }),
        property + " has no control characters: " + text);
}

/// A sentence, or a title: never empty.
inline void checkWords(const std::string &text, const std::string &property) {
  check(!text.empty(), property + " is not empty");
  checkLine(text, property);
}

} // namespace imageposition::fuzz

#endif
