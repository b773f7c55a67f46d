// Fonts for languages that the default font does not cover.
#include "LanguageFonts.hpp"

#include <fontconfig/fontconfig.h>
#include <gtest/gtest.h>

namespace {

using namespace imageposition;

/// Whether the font of that PostScript name is installed and has all of these characters.
bool canWrite(const std::string &font, const std::u32string &text) {
  FcPattern *const wanted =
      FcPatternBuild(nullptr, FC_POSTSCRIPT_NAME, FcTypeString, font.c_str(), nullptr);
  FcObjectSet *const details = FcObjectSetBuild(FC_CHARSET, nullptr);
  FcFontSet *const found = FcFontList(nullptr, wanted, details);
  FcCharSet *characters = nullptr;
  bool can = found->nfont > 0 &&
             FcPatternGetCharSet(found->fonts[0], FC_CHARSET, 0, &characters) == FcResultMatch;
  for (const char32_t character : text)
    can = can && FcCharSetHasChar(characters, character) != FcFalse;
  FcFontSetDestroy(found);
  FcObjectSetDestroy(details);
  FcPatternDestroy(wanted);
  return can;
}

TEST(LanguageFonts, CoverTheLanguageAndLatin) {
  const std::pair<const char *, std::u32string> kTexts[] = {
      {"ja", U"印刷プリンタのほうへ ABC xyz 0123 (A4)"},
      {"zh_CN", U"打印机选项 ABC xyz 0123 (A4)"},
      {"zh_TW", U"印表機選項 ABC xyz 0123 (A4)"}};
  for (const auto &[language, text] : kTexts) {
    SCOPED_TRACE(language);
    const auto names = fontsFor(language);
    ASSERT_TRUE(names);
    EXPECT_TRUE(canWrite(names->regular, text)) << names->regular;
    EXPECT_TRUE(canWrite(names->bold, text)) << names->bold;
  }
}

TEST(LanguageFonts, AreTheDefaultsForLatinLetters) {
  for (const char *language : {"en", "de", "es", "fr", "it"})
    EXPECT_FALSE(fontsFor(language)) << language;
}

TEST(LanguageFonts, AreTheDefaultsForAnUnknownLanguage) {
  for (const char *language : {"", "C", "xx", "Klingon"})
    EXPECT_FALSE(fontsFor(language)) << language;
}

} // namespace
