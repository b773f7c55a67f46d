#include "LanguageFonts.hpp"

#include "FontPattern.hpp"

#include <algorithm>

namespace imageposition {

namespace {

bool isInLatinLetters(const FcChar8 *language) {
  const FcCharSet *const letters = FcLangGetCharSet(language);
  return letters == nullptr || FcCharSetHasChar(letters, 'a') != FcFalse;
}

/// Null if no font is installed.
FontPattern match(const char *family, const FcChar8 *language, int weight) {
  const FontPattern wanted(FcPatternCreate());
  FcPatternAddString(wanted.get(), FC_FAMILY, bytesOf(family));
  FcPatternAddString(wanted.get(), FC_LANG, language);
  FcPatternAddInteger(wanted.get(), FC_WEIGHT, weight);
  return matchedFont(wanted);
}

/// fontconfig always chooses a font, even one that lacks the language.
bool canWrite(const FcPattern &font, const FcChar8 *language) {
  FcLangSet *languages = nullptr; // the font's
  return FcPatternGetLangSet(&font, FC_LANG, 0, &languages) == FcResultMatch &&
         FcLangSetHasLang(languages, language) != FcLangDifferentLang;
}

/// Empty for a font without one.
std::string textOf(const FcPattern &font, const char *property) {
  FcChar8 *text = nullptr; // the font's
  return FcPatternGetString(&font, property, 0, &text) == FcResultMatch
             ? reinterpret_cast<const char *>(text)
             : "";
}

} // namespace

std::optional<FontNames> fontsFor(const std::string &language) {
  std::string tag = language;
  std::replace(tag.begin(), tag.end(), '_', '-');
  const FcChar8 *const name = bytesOf(tag.c_str());
  if (isInLatinLetters(name))
    return std::nullopt;
  const FontPattern regular = match("sans-serif", name, FC_WEIGHT_REGULAR);
  if (!regular || !canWrite(*regular, name) || !canWrite(*regular, bytesOf("en")))
    return std::nullopt;
  const std::string family = textOf(*regular, FC_FAMILY);
  const FontPattern bold = match(family.c_str(), name, FC_WEIGHT_BOLD);
  FontNames names{textOf(*regular, FC_POSTSCRIPT_NAME), {}};
  const bool isOfFamily = bold && textOf(*bold, FC_FAMILY) == family;
  names.bold = isOfFamily ? textOf(*bold, FC_POSTSCRIPT_NAME) : names.regular;
  if (names.regular.empty() || names.bold.empty())
    return std::nullopt;
  return names;
}

} // namespace imageposition
