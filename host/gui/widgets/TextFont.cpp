#include "TextFont.hpp"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <memory>

namespace imageposition {

namespace {

struct FreeFontconfig {
  void operator()(FcPattern *pattern) const noexcept { FcPatternDestroy(pattern); }
  void operator()(FcCharSet *characters) const noexcept { FcCharSetDestroy(characters); }
};
using Pattern = std::unique_ptr<FcPattern, FreeFontconfig>;
using Characters = std::unique_ptr<FcCharSet, FreeFontconfig>;

const FcChar8 *bytesOf(const std::string &text) {
  return reinterpret_cast<const FcChar8 *>(text.c_str());
}

/// Null if the text is not UTF-8.
Characters charactersOf(const std::string &text) {
  Characters characters(FcCharSetCreate());
  const FcChar8 *next = bytesOf(text);
  int left = static_cast<int>(text.size());
  while (left > 0) {
    FcChar32 character = 0;
    const int length = FcUtf8ToUcs4(next, &character, left);
    if (length <= 0)
      return nullptr;
    FcCharSetAddChar(characters.get(), character);
    next += length;
    left -= length;
  }
  return characters;
}

/// Null if no font is installed.
Pattern match(Pattern wanted) {
  FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
  FcDefaultSubstitute(wanted.get());
  FcResult ignored;
  return Pattern(FcFontMatch(nullptr, wanted.get(), &ignored));
}

bool hasAll(const FcPattern &font, const FcCharSet &wanted) {
  FcCharSet *characters = nullptr; // the font's
  return FcPatternGetCharSet(&font, FC_CHARSET, 0, &characters) == FcResultMatch &&
         FcCharSetIsSubset(&wanted, characters) != FcFalse;
}

} // namespace

std::string fontFor(const std::string &text, const std::string &current) {
  const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  if (std::all_of(text.begin(), text.end(), isAscii))
    return current;
  const Characters wanted = charactersOf(text);
  if (!wanted)
    return current;
  Pattern named(FcPatternCreate());
  FcPatternAddString(named.get(), FC_POSTSCRIPT_NAME, bytesOf(current));
  const Pattern present = match(std::move(named));
  if (present && hasAll(*present, *wanted))
    return current;
  Pattern other(FcPatternCreate());
  FcPatternAddString(other.get(), FC_FAMILY, bytesOf("sans-serif"));
  FcPatternAddCharSet(other.get(), FC_CHARSET, wanted.get());
  const Pattern found = match(std::move(other));
  FcChar8 *name = nullptr; // the font's
  if (!found || FcPatternGetString(found.get(), FC_POSTSCRIPT_NAME, 0, &name) != FcResultMatch)
    return current;
  return reinterpret_cast<const char *>(name);
}

} // namespace imageposition
