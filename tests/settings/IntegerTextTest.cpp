#include "IntegerText.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace imageposition {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

struct Row {
  const char *text;
  std::int32_t number;
};

void expectRows(std::initializer_list<Row> rows) {
  for (const Row &row : rows)
    EXPECT_EQ(readInteger(std::string_view(row.text)), row.number) << '"' << row.text << '"';
}

TEST(IntegerText, ReadsAnOptionalSignAndTheDigitsAfterIt) {
  expectRows({{"0", 0},
              {"5", 5},
              {"-3", -3},
              {"+7", 7},
              {"007", 7},
              {"-010", -10},
              {"-0", 0},
              {"0000000000000000000012", 12}});
}

TEST(IntegerText, StopsAtTheFirstOtherCharacter) {
  expectRows({{"12abc", 12},
              {"12-3", 12},
              {"7 8", 7},
              {"1.9", 1},
              {"1,000", 1},
              {"-4-", -4},
              {"5\n6", 5},
              {"0x10", 0},
              {"1e3", 1}});
}

TEST(IntegerText, StringWithoutLeadingDigitsReadsAsZero) {
  expectRows({{"", 0},
              {"abc", 0},
              {"-", 0},
              {"+", 0},
              {"--5", 0},
              {"+-5", 0},
              {"-+5", 0},
              {"- 5", 0},
              {".5", 0},
              {"a5", 0},
              {"\x80", 0}});
}

TEST(IntegerText, SkipsLeadingWhiteSpaceOnly) {
  expectRows({{"  8", 8},
              {"\t\n\r\v\f -9", -9},
              {"\xC2\xA0"
               "5", // no-break space
               5},
              {"\xE3\x80\x80"
               "6", // ideographic space
               6},
              {"\xE2\x80\xA8"
               "7", // line separator
               7},
              {"   ", 0},
              {" x5", 0},
              {"_5", 0}});
}

TEST(IntegerText, SkipsAllUnicodeWhiteSpace) {
  const std::u16string white = u"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004"
                               u"\u2005\u2006\u2007\u2008\u2009\u200A\u2028\u2029\u202F\u205F"
                               u"\u3000";
  for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
    if (unit == u'5' || unit == u'+' || unit == u'-')
      continue;
    const std::u16string text = {static_cast<char16_t>(unit), u'5'};
    const bool isDigit = unit >= u'0' && unit <= u'9';
    const int expected = isDigit ? static_cast<int>(unit - u'0') * 10 + 5
                         : white.find(text[0]) != std::u16string::npos ? 5
                                                                       : 0;
    EXPECT_EQ(readInteger(text), expected) << std::hex << static_cast<unsigned>(unit);
  }
}

TEST(IntegerText, DigitsOfOtherScriptsAreNotDigits) {
  expectRows({{"\xEF\xBC\x95", 0},       // fullwidth five
              {"1\xD9\xA2", 1},          // one, Arabic-Indic two
              {"\xE2\x88\x92\x35", 0}}); // mathematical minus, five
}

TEST(IntegerText, NumberBeyond32BitsReadsAsTheNearestLimit) {
  expectRows({{"2147483647", kLargest},
              {"2147483648", kLargest},
              {"3000000000", kLargest},
              {"4294967296", kLargest},
              {"4294967301", kLargest},
              {"99999999999", kLargest},
              {"9223372036854775808", kLargest},
              {"18446744073709551621", kLargest},
              {"99999999999999999999", kLargest},
              {"-2147483648", kSmallest},
              {"-2147483649", kSmallest},
              {"-3000000000", kSmallest},
              {"-99999999999999999999999999999999999999", kSmallest},
              {"00000000002147483647", kLargest},
              {"2147483646", kLargest - 1},
              {"-2147483647", kSmallest + 1}});
}

TEST(IntegerText, StopsAtTheEndOfTheStringEvenIfDigitsFollowInMemory) {
  EXPECT_EQ(readInteger(std::string_view("12345").substr(0, 2)), 12);
}

TEST(IntegerText, ZeroByteEndsTheNumber) {
  EXPECT_EQ(readInteger(std::string_view("1\0002", 3)), 1);
  EXPECT_EQ(readInteger(std::string_view("\0002", 2)), 0);
}

TEST(IntegerText, ReadsUtf16AsItReadsUtf8) {
  EXPECT_EQ(readInteger(std::u16string_view(u" -42x")), -42);
  EXPECT_EQ(readInteger(std::u16string_view(u"\u3000+6")), 6);
  EXPECT_EQ(readInteger(std::u16string_view(u"-3000000000")), kSmallest);
  EXPECT_EQ(readInteger(std::u16string_view(u"")), 0);
}

TEST(IntegerText, Utf16UnitWhoseLowByteIsADigitIsNotADigit) {
  EXPECT_EQ(readInteger(std::u16string_view(u"1\u0135")), 1);
  EXPECT_EQ(readInteger(std::u16string_view(u"\u0135")), 0);
}

TEST(IntegerText, LoneSurrogateEndsTheNumber) {
  const char16_t units[] = {u'4', 0xD800, u'2'};
  EXPECT_EQ(readInteger(std::u16string_view(units, 3)), 4);
  EXPECT_EQ(readInteger(std::u16string_view(units + 1, 2)), 0);
}

TEST(IntegerText, WritesPlainDecimals) {
  EXPECT_EQ(writeInteger(0), "0");
  EXPECT_EQ(writeInteger(5), "5");
  EXPECT_EQ(writeInteger(-3), "-3");
  EXPECT_EQ(writeInteger(1234567), "1234567");
  EXPECT_EQ(writeInteger(kLargest), "2147483647");
  EXPECT_EQ(writeInteger(kSmallest), "-2147483648");
}

TEST(IntegerText, ReadsBackWhatItWrites) {
  std::mt19937 random(1);
  for (int i = 0; i < 10000; ++i) {
    const auto number = static_cast<std::int32_t>(random()) >> (random() % 32);
    EXPECT_EQ(readInteger(std::string_view(writeInteger(number))), number);
  }
}

} // namespace
} // namespace imageposition
