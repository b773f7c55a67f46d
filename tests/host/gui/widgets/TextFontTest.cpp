#include "TextFont.hpp"

#include <gtest/gtest.h>

using namespace imageposition;

namespace {

constexpr char kUsual[] = "DejaVuSans";

TEST(TextFont, StaysIfItHasAllCharacters) {
  for (const char *const text : {"", "report.pdf", "Übersicht für Zoë", "Обзор", "Ready · Büro"})
    EXPECT_EQ(fontFor(text, kUsual), kUsual) << text;
}

TEST(TextFont, IsAnotherForCharactersThatItLacks) {
  for (const char *const text : {"日本語の書類.pdf", "简体中文"}) {
    const std::string other = fontFor(text, kUsual);
    EXPECT_NE(other, kUsual) << text;
    EXPECT_EQ(fontFor(text, other), other) << "it has them";
  }
}

TEST(TextFont, IsNeverMissing) {
  for (const char *const text : {"\xFF\xFE.pdf", "report \xF0\x9F\x96\xA8.pdf", "\xF4\x8F\xBF\xBD"})
    EXPECT_FALSE(fontFor(text, kUsual).empty()) << text;
}

} // namespace
