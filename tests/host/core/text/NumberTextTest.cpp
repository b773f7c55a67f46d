#include "NumberText.hpp"

#include <gtest/gtest.h>

namespace {

using imageposition::asciiNumber;
using imageposition::isSameNumber;
using imageposition::isWholeNumber;
using imageposition::tenthsIn;
using imageposition::withAsciiDigits;

TEST(NumberText, SignsDigitsAndBlanksOfAllScriptsBecomeAscii) {
  const struct {
    const char *typed, *meant;
  } rows[] = {
      {"15", "15"},
      {"-15", "-15"},
      {"\u221215", "-15"},
      {"\u201015", "-15"},
      {"\u201115", "-15"},
      {"\u201215", "-15"},
      {"\u201315", "-15"},
      {"\u201415", "-15"},
      {"\u201515", "-15"},
      {"\uFE6315", "-15"},
      {"\uFF0D15", "-15"},
      {"\u30FC15", "-15"},
      {"\uFF0B15", "+15"},
      {"\uFF10\uFF11\uFF12\uFF13\uFF14\uFF15\uFF16\uFF17\uFF18\uFF19", "0123456789"},
      {" 15\t", "15"},
      {"\u00A0\u221215\u00A0", "-15"},
      {"\u3000\uFF0D\uFF11\uFF15\u3000", "-15"},
      {"\u202F15\r\n", "15"},
      {"\u2212 15", "- 15"}, // blanks within are the field's to judge
      {"1.5", "1.5"},
      {"--3", "--3"},
      {"3 mm", "3 mm"},
      {"\u4E09", "\u4E09"},
      {"\u3000", ""},
      {"", ""},
      {"\xE2\x88", "\xE2\x88"},
      {"\xFF\xEF\xBC", "\xFF\xEF\xBC"},
  };
  for (const auto &row : rows)
    EXPECT_EQ(asciiNumber(row.typed), row.meant) << row.typed;
}

TEST(NumberText, BlanksAtTheEndsStayWhereOnlyTheDigitsMatter) {
  EXPECT_EQ(withAsciiDigits("\u3000\uFF11 \u2013 \uFF12,"), " 1 - 2,");
}

TEST(NumberText, AWholeNumberIsDigitsAfterAtMostOneSign) {
  for (const char *const number : {"0", "-0", "+5", "-12", "007", "99999999999999999999"})
    EXPECT_TRUE(isWholeNumber(number)) << number;
  for (const char *const other : {"", "-", "+", "--3", "1.5", "1 5", " 1", "a", "\uFF11"})
    EXPECT_FALSE(isWholeNumber(other)) << other;
}

TEST(NumberText, ANumberWithOneDecimalDigitHasTenths) {
  const std::pair<const char *, const char *> rows[] = {
      {"1.5", "15"}, {"-0.3", "-3"}, {"+2,5", "25"}, {"10.0", "100"}, {"1\uFF0E5", "15"}};
  for (const auto &[typed, tenths] : rows)
    EXPECT_EQ(tenthsIn(typed), tenths) << typed;
  for (const char *const other : {"15", "1.55", ".5", "1.", "a.5", "1.a", "99999.5", "", "1.5 mm"})
    EXPECT_FALSE(tenthsIn(other)) << other;
}

TEST(NumberText, ZerosInFrontAndAPlusSignDoNotMakeAnotherNumber) {
  const struct {
    const char *left, *right;
    bool isSame;
  } rows[] = {{"7", "7", true},   {"+07", "7", true},    {"-0", "0", true},  {"-007", "-7", true},
              {"7", "-7", false}, {"999", "200", false}, {"70", "7", false}, {"0", "000", true}};
  for (const auto &row : rows)
    EXPECT_EQ(isSameNumber(row.left, row.right), row.isSame) << row.left << " " << row.right;
}

} // namespace
