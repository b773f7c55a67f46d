#include "Utf.hpp"

#include <gtest/gtest.h>

#include <random>

namespace imageposition {
namespace {

// U+FFFD, which replaces malformed input.
const std::string kMark8 = "\xEF\xBF\xBD";

std::u16string marks(std::size_t count) { return std::u16string(count, u'\uFFFD'); }

TEST(Utf, WellFormedStringsConvertBothWays) {
  const std::pair<const char *, const char16_t *> rows[] = {
      {"", u""},
      {"plain", u"plain"},
      {"\x7F", u"\x7F"},
      {"\xC2\x80", u"\u0080"},
      {"\xDF\xBF", u"\u07FF"},
      {"\xE0\xA0\x80", u"\u0800"},
      {"\xED\x9F\xBF", u"\uD7FF"},
      {"\xEE\x80\x80", u"\uE000"},
      {"\xEF\xBF\xBF", u"\uFFFF"},
      {"\xF0\x90\x80\x80", u"\U00010000"},
      {"\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
      {"gr\xC3\xBC\xC3\x9F \xE5\x8D\xB0\xE5\x88\xB7 \xF0\x9F\x96\xA8",
       u"gr\u00FC\u00DF \u5370\u5237 \U0001F5A8"},
  };
  for (const auto &[utf8, utf16] : rows) {
    EXPECT_EQ(utf16FromUtf8(utf8), utf16) << utf8;
    EXPECT_EQ(utf8FromUtf16(utf16), utf8);
  }
}

TEST(Utf, ZeroIsACharacterLikeAnyOther) {
  EXPECT_EQ(utf16FromUtf8(std::string_view("a\0b", 3)), std::u16string(u"a\0b", 3));
  EXPECT_EQ(utf8FromUtf16(std::u16string_view(u"a\0b", 3)), std::string("a\0b", 3));
}

TEST(Utf, LoneSurrogateIsReplaced) {
  const char16_t high = 0xD83D;
  const char16_t low = 0xDDA8;
  EXPECT_EQ(utf8FromUtf16(std::u16string{high}), kMark8);
  EXPECT_EQ(utf8FromUtf16(std::u16string{low}), kMark8);
  EXPECT_EQ(utf8FromUtf16(std::u16string{u'a', high, u'b'}), "a" + kMark8 + "b");
  EXPECT_EQ(utf8FromUtf16(std::u16string{u'a', low, u'b'}), "a" + kMark8 + "b");
  EXPECT_EQ(utf8FromUtf16(std::u16string{low, high}), kMark8 + kMark8);
  EXPECT_EQ(utf8FromUtf16(std::u16string{high, high, low}), kMark8 + "\xF0\x9F\x96\xA8");
  EXPECT_EQ(utf8FromUtf16(std::u16string{high, low, low}), "\xF0\x9F\x96\xA8" + kMark8);
}

struct Malformed {
  const char *bytes;
  std::u16string text;
};

TEST(Utf, EachByteThatDoesNotBeginAWellFormedSequenceIsReplaced) {
  const Malformed rows[] = {
      {"\x80", marks(1)},
      {"\xBF\xBF", marks(2)},
      {"\xFF", marks(1)},
      {"\xFE\x80", marks(2)},
      {"a\xC3", u"a" + marks(1)},
      {"\xC3(", marks(1) + u"("},
      {"\xE2\x82", marks(2)},
      {"\xE2\x82x", marks(2) + u"x"},
      {"\xF0\x9F\x96", marks(3)},
      {"\xF0\x9F\x96g", marks(3) + u"g"},
      {"\xC3\xC3\xBC", marks(1) + u"\u00FC"},
      {"\xF0\x9F\xC3\xBC", marks(2) + u"\u00FC"},
      {"\xC3\xBC\xBC", u"\u00FC" + marks(1)},
  };
  for (const Malformed &row : rows)
    EXPECT_EQ(utf16FromUtf8(row.bytes), row.text) << testing::PrintToString(row.bytes);
}

TEST(Utf, OverlongFormsAreMalformed) {
  EXPECT_EQ(utf16FromUtf8("\xC0\x80"), marks(2));
  EXPECT_EQ(utf16FromUtf8("\xC1\xBF"), marks(2));
  EXPECT_EQ(utf16FromUtf8("\xE0\x80\xAF"), marks(3));
  EXPECT_EQ(utf16FromUtf8("\xE0\x9F\xBF"), marks(3));
  EXPECT_EQ(utf16FromUtf8("\xF0\x80\x80\xAF"), marks(4));
  EXPECT_EQ(utf16FromUtf8("\xF0\x8F\xBF\xBF"), marks(4));
}

TEST(Utf, SurrogatesAndCodesBeyondUnicodeAreMalformedInUtf8) {
  EXPECT_EQ(utf16FromUtf8("\xED\xA0\x80"), marks(3));
  EXPECT_EQ(utf16FromUtf8("\xED\xBF\xBF"), marks(3));
  EXPECT_EQ(utf16FromUtf8("\xED\xA0\xBD\xED\xB6\xA8"), marks(6));
  EXPECT_EQ(utf16FromUtf8("\xF4\x90\x80\x80"), marks(4));
  EXPECT_EQ(utf16FromUtf8("\xF5\x80\x80\x80"), marks(4));
  EXPECT_EQ(utf16FromUtf8("\xF8\x88\x80\x80\x80"), marks(5));
}

TEST(Utf, TheFirstCharacterHasALengthWhereItIsWellFormed) {
  const std::pair<std::string_view, std::size_t> kTexts[] = {{"", 0},
                                                             {"a", 1},
                                                             {"ab", 1},
                                                             {"\xC3\xA9x", 2},
                                                             {"\xE2\x82\xAC", 3},
                                                             {"\xF0\x9F\x96\xA8", 4},
                                                             {"\xEF\xBF\xBD", 3},
                                                             {"\xE2\x82", 0},
                                                             {"\x80", 0},
                                                             {"\xFF", 0},
                                                             {"\xC0\x80", 0}};
  for (const auto &[text, length] : kTexts)
    EXPECT_EQ(firstCharacterLength(text), length) << testing::PrintToString(text);
}

TEST(Utf, APrefixHasNoPartOfACharacter) {
  const std::string_view text = "a\xC3\xA9\xE2\x82\xAC";
  const std::size_t kLengths[] = {0, 1, 1, 3, 3, 3, 6, 6};
  for (std::size_t most = 0; most < std::size(kLengths); ++most)
    EXPECT_EQ(utf8Prefix(text, most), text.substr(0, kLengths[most])) << most;
  EXPECT_EQ(utf8Prefix("\xFF\xFF", 1), "\xFF");
}

TEST(Utf, EveryCharacterSurvivesBothConversions) {
  for (char32_t character = 0; character <= 0x10FFFF; ++character) {
    if (character >= 0xD800 && character <= 0xDFFF)
      continue;
    std::u16string text;
    if (character < 0x10000) {
      text = {char16_t(character)};
    } else {
      text = {char16_t(0xD7C0 + (character >> 10)), char16_t(0xDC00 + (character & 0x3FF))};
    }
    ASSERT_EQ(utf16FromUtf8(utf8FromUtf16(text)), text) << std::hex << std::uint32_t(character);
  }
}

TEST(Utf, ArbitraryBytesNeverBecomeALoneSurrogate) {
  std::mt19937 random(3);
  for (int i = 0; i < 20000; ++i) {
    std::string bytes;
    for (unsigned length = random() % 12; length > 0; --length)
      bytes += static_cast<char>(random() % 3 ? 0x80 + random() % 128 : random() % 128);
    const std::u16string text = utf16FromUtf8(bytes);
    // Well-formed text converts back to itself.
    EXPECT_EQ(utf16FromUtf8(utf8FromUtf16(text)), text) << testing::PrintToString(bytes);
  }
}

} // namespace
} // namespace imageposition
