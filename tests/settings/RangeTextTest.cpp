#include "RangeText.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace imageposition {
namespace {

TEST(RangeText, PlaceholdersBecomeTheBounds) {
  EXPECT_EQ(composeRangeText("min-mark to max-mark", "max-mark", "min-mark", {-20, 20}),
            "-20 to 20");
}

TEST(RangeText, EveryOccurrenceIsReplaced) {
  EXPECT_EQ(composeRangeText("MAX MIN MAX MINMAX", "MAX", "MIN", {-1, 2}), "2 -1 2 -12");
}

TEST(RangeText, TemplateWithoutPlaceholdersStaysUnchanged) {
  EXPECT_EQ(composeRangeText("any value", "MAX", "MIN", {-1, 2}), "any value");
  EXPECT_EQ(composeRangeText("", "MAX", "MIN", {-1, 2}), "");
}

TEST(RangeText, MaximumIsInsertedFirstAndSearchedForTheMinimumsPlaceholder) {
  EXPECT_EQ(composeRangeText("X", "X", "1", {5, 10}), "50");
}

TEST(RangeText, InsertedMinimumIsNotSearchedForTheMaximumsPlaceholder) {
  EXPECT_EQ(composeRangeText("X", "5", "X", {5, 10}), "5");
}

TEST(RangeText, PlaceholderThatContainsTheOtherIsReplacedInOrder) {
  // The maximum's placeholder is replaced first, also inside the longer one.
  EXPECT_EQ(composeRangeText("M MM", "M", "MM", {-1, 2}), "2 22");
  EXPECT_EQ(composeRangeText("M MM", "MM", "M", {-1, 2}), "-1 2");
}

TEST(RangeText, OccurrencesAreReplacedFromTheLeftWithoutOverlap) {
  EXPECT_EQ(composeRangeText("aaa", "aa", "MIN", {0, 7}), "7a");
}

TEST(RangeText, EqualPlaceholdersBothBecomeTheMaximum) {
  EXPECT_EQ(composeRangeText("#..#", "#", "#", {-1, 2}), "2..2");
}

TEST(RangeText, EmptyPlaceholderReplacesNothing) {
  EXPECT_EQ(composeRangeText("MIN to MAX", "", "MIN", {-1, 2}), "-1 to MAX");
  EXPECT_EQ(composeRangeText("MIN to MAX", "MAX", "", {-1, 2}), "MIN to 2");
}

TEST(RangeText, PlaceholdersAndTemplateMayBeAnyString) {
  EXPECT_EQ(
      composeRangeText("\xEF\xBC\xBBmin\xE3\x80\x9Cmax mm\xEF\xBC\xBD", "max", "min", {-3, 3}),
      "\xEF\xBC\xBB-3\xE3\x80\x9C"
      "3 mm\xEF\xBC\xBD");
  EXPECT_EQ(composeRangeText("%d %@ $& MAX", "MAX", "%@", {-3, 3}), "%d -3 $& 3");
}

TEST(RangeText, BoundsAreShownUnchanged) {
  EXPECT_EQ(composeRangeText("MIN..MAX", "MAX", "MIN", {5, -5}), "5..-5");
  EXPECT_EQ(composeRangeText("MIN..MAX", "MAX", "MIN",
                             {std::numeric_limits<std::int32_t>::min(),
                              std::numeric_limits<std::int32_t>::max()}),
            "-2147483648..2147483647");
}

} // namespace
} // namespace imageposition
