#include "EntryFilter.hpp"

#include <gtest/gtest.h>

#include <random>

namespace imageposition {
namespace {

struct Row {
  const char16_t *typed;
  const char *kept;
  const char *shown;
};

void expectRows(const ValueRange &range, std::initializer_list<Row> rows) {
  for (const Row &row : rows) {
    EXPECT_EQ(keepDigitsAndMinus(row.typed), row.kept) << testing::PrintToString(row.typed);
    EXPECT_EQ(filterEntry(row.typed, range), row.shown)
        << testing::PrintToString(row.typed) << " in " << range.min << ":" << range.max;
  }
}

TEST(EntryFilter, FiltersEntriesForMinusTenToTen) {
  expectRows({-10, 10}, {{u"12", "12", "10"},
                         {u"-15", "-15", "-10"},
                         {u"-3", "-3", "-3"},
                         {u"0x5", "05", "5"},
                         {u"7-2", "7-2", "7"},
                         {u"-", "-", "-"},
                         {u"-0", "-0", "-0"},
                         {u"--4", "--4", "0"},
                         {u"abc", "", "0"}});
}

TEST(EntryFilter, NumberBeyond32BitsShowsTheBound) {
  expectRows({-10, 10}, {{u"99999999999", "99999999999", "10"},
                         {u"-99999999999", "-99999999999", "-10"},
                         {u"4294967301", "4294967301", "10"},
                         {u"99999999999999999999", "99999999999999999999", "10"}});
  expectRows({INT32_MIN, INT32_MAX}, {{u"99999999999", "99999999999", "2147483647"},
                                      {u"-99999999999", "-99999999999", "-2147483648"}});
}

TEST(EntryFilter, PastedLettersAreDroppedBeforeTheNumberIsRead) {
  expectRows({-10, 100}, {{u"1a2b3", "123", "100"}});
}

TEST(EntryFilter, PlusSignIsDropped) { expectRows({-10, 10}, {{u"+5", "5", "5"}}); }

TEST(EntryFilter, LeadingZerosAreDropped) {
  expectRows({-10, 10}, {{u"007", "007", "7"}, {u"-07", "-07", "-7"}, {u"00", "00", "0"}});
}

TEST(EntryFilter, MinusZeroStaysUntilADigitFollows) {
  expectRows({-10, 10}, {{u"-0", "-0", "-0"}, {u"-05", "-05", "-5"}, {u"-00", "-00", "0"}});
}

TEST(EntryFilter, MinusAfterTheNumberIsDropped) { expectRows({-10, 10}, {{u"5-", "5-", "5"}}); }

TEST(EntryFilter, EmptyEntryShowsZero) { expectRows({-10, 10}, {{u"", "", "0"}}); }

TEST(EntryFilter, LoneMinusBecomesTheBoundWhenZeroIsOutOfRange) {
  expectRows({1, 10}, {{u"-", "-", "1"}, {u"-0", "-0", "1"}, {u"", "", "1"}});
  expectRows({-10, -1}, {{u"-", "-", "-1"}, {u"-0", "-0", "-1"}, {u"", "", "-1"}});
}

TEST(EntryFilter, BeforeARangeIsSetEverythingButALeadingMinusShowsZero) {
  expectRows({0, 0}, {{u"12", "12", "0"},
                      {u"-12", "-12", "0"},
                      {u"abc", "", "0"},
                      {u"", "", "0"},
                      {u"--", "--", "0"},
                      {u"-", "-", "-"},
                      {u"-0", "-0", "-0"}});
}

TEST(EntryFilter, InvertedRangeTestsTheMaximumFirst) {
  expectRows({10, 5}, {{u"7", "7", "5"}, {u"20", "20", "5"}, {u"3", "3", "10"}, {u"-", "-", "10"}});
}

TEST(EntryFilter, MinusAmongOtherCharactersKeepsItsPosition) {
  expectRows({-10, 10}, {{u"a-b4c", "-4", "-4"}, {u"x-", "-", "-"}, {u" - 0 ", "-0", "-0"}});
}

TEST(EntryFilter, OnlyAsciiDigitsAndMinusAreKept) {
  expectRows({-100, 100}, {{u"\uFF15", "", "0"},       // fullwidth five
                           {u"\u0665\u096B", "", "0"}, // Arabic-Indic and Devanagari five
                           {u"\u22124\u20135\u20146", "456", "100"}, // minus sign, dashes
                           {u"\uFF0D4", "4", "4"},                   // fullwidth minus
                           {u"\u00B2\u00BD", "", "0"},               // superscript two, one half
                           {u" \t\n1 2\u00A03", "123", "100"},
                           {u"1.5,/:e", "15", "15"}});
}

TEST(EntryFilter, UnitWhoseLowByteIsADigitOrMinusIsDropped) {
  // Truncated to bytes, these units would read "1", "9" and "-".
  expectRows({-10, 10}, {{u"\u0131\u3039\u012D", "", "0"}, {u"\u3031", "", "0"}});
}

TEST(EntryFilter, SurrogatesAreDroppedInPairsAndAlone) {
  const std::u16string pair = u"1\U0001D7D82"; // mathematical double-struck zero
  EXPECT_EQ(keepDigitsAndMinus(pair), "12");
  for (const char16_t surrogate : {char16_t(0xD800), char16_t(0xDC00), char16_t(0xD835),
                                   char16_t(0xDFFF), char16_t(0xD830), char16_t(0xD82D)}) {
    const std::u16string text = {u'-', surrogate, u'3', surrogate};
    EXPECT_EQ(keepDigitsAndMinus(text), "-3") << std::hex << unsigned(surrogate);
    EXPECT_EQ(filterEntry(text, {-10, 10}), "-3") << std::hex << unsigned(surrogate);
  }
}

TEST(EntryFilter, ZeroUnitDoesNotEndTheString) {
  EXPECT_EQ(keepDigitsAndMinus(std::u16string_view(u"1\0002", 3)), "12");
}

TEST(EntryFilter, EveryUnitExceptElevenIsDropped) {
  int kept = 0;
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
    kept += static_cast<int>(keepDigitsAndMinus(std::u16string(1, char16_t(unit))).size());
  EXPECT_EQ(kept, 11);
}

TEST(EntryFilter, FilteringTwiceChangesNothing) {
  std::mt19937 random(7);
  const std::u16string alphabet = u"0123456789--- +ax\u0131";
  for (int i = 0; i < 20000; ++i) {
    std::u16string text;
    for (unsigned length = random() % 8; length > 0; --length)
      text += alphabet[random() % alphabet.size()];
    const ValueRange range{static_cast<std::int32_t>(random() % 61) - 30,
                           static_cast<std::int32_t>(random() % 61) - 30};
    if (range.min > range.max)
      continue;
    const std::string shown = filterEntry(text, range);
    EXPECT_EQ(filterEntry(std::u16string(shown.begin(), shown.end()), range), shown)
        << testing::PrintToString(text) << " in " << range.min << ":" << range.max;
  }
}

struct CaretRow {
  const char16_t *text;
  std::size_t before;
  const char *shown;
  std::size_t after;
};

TEST(EntryFilter, InsertionPointStaysBeforeTheCharactersThatFollowedIt) {
  const CaretRow rows[] = {{u"-", 1, "-", 1},    {u"-3", 2, "-3", 2},   {u"1x2", 2, "12", 1},
                           {u"1x2", 1, "12", 1}, {u"1x2", 3, "12", 2},  {u"x12", 1, "12", 0},
                           {u"12x", 3, "12", 2}, {u"007", 3, "7", 1},   {u"007", 2, "7", 0},
                           {u"abc", 3, "0", 1},  {u"", 0, "0", 1},      {u"+5", 1, "5", 0},
                           {u"12", 0, "12", 0},  {u"1234", 0, "10", 0}, {u"12", 2, "10", 2}};
  for (const CaretRow &row : rows)
    EXPECT_EQ(caretAfterFilter(row.text, row.before, row.shown), row.after)
        << testing::PrintToString(row.text) << " at " << row.before << ", shown " << row.shown;
}

TEST(EntryFilter, InsertionPointBeyondTheEndCountsAsTheEnd) {
  EXPECT_EQ(caretAfterFilter(u"12", 99, "12"), 2u);
  EXPECT_EQ(caretAfterFilter(u"", 5, "0"), 1u);
}

} // namespace
} // namespace imageposition
