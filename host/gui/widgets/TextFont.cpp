#include "TextFont.hpp"

#include "FontPattern.hpp"

#include <algorithm>

namespace imageposition {

namespace {

/// Null if the text is not UTF-8.
FontCharacters charactersOf(const std::string &text) {
  FontCharacters characters(FcCharSetCreate());
  const FcChar8 *next = bytesOf(text.c_str());
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
  const FontCharacters wanted = charactersOf(text);
  if (!wanted)
    return current;
  const FontPattern named(FcPatternCreate());
  FcPatternAddString(named.get(), FC_POSTSCRIPT_NAME, bytesOf(current.c_str()));
  const FontPattern present = matchedFont(named);
  if (present && hasAll(*present, *wanted))
    return current;
  const FontPattern other(FcPatternCreate());
  FcPatternAddString(other.get(), FC_FAMILY, bytesOf("sans-serif"));
  FcPatternAddCharSet(other.get(), FC_CHARSET, wanted.get());
  const FontPattern found = matchedFont(other);
  FcChar8 *name = nullptr; // the font's
  if (!found || FcPatternGetString(found.get(), FC_POSTSCRIPT_NAME, 0, &name) != FcResultMatch)
    return current;
  return reinterpret_cast<const char *>(name);
}

} // namespace imageposition
