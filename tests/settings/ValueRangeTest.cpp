#include "ValueRange.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace imageposition {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

struct ClampRow {
  ValueRange range;
  std::int32_t value;
  std::int32_t clamped;
};

void expectClamped(std::initializer_list<ClampRow> rows) {
  for (const ClampRow &row : rows)
    EXPECT_EQ(row.range.clamp(row.value), row.clamped)
        << row.value << " in " << row.range.min << ":" << row.range.max;
}

TEST(ValueRange, IsZeroToZeroByDefault) {
  EXPECT_EQ(ValueRange().min, 0);
  EXPECT_EQ(ValueRange().max, 0);
  EXPECT_EQ(ValueRange().clamp(5), 0);
  EXPECT_EQ(ValueRange().clamp(-5), 0);
}

TEST(ValueRange, ClampsToTheNearestBound) {
  expectClamped({{{-20, 20}, 25, 20},
                 {{-20, 20}, -25, -20},
                 {{-20, 20}, 20, 20},
                 {{-20, 20}, -20, -20},
                 {{-20, 20}, 19, 19},
                 {{-20, 20}, 0, 0},
                 {{3, 3}, 2, 3},
                 {{3, 3}, 4, 3},
                 {{-20, 20}, kLargest, 20},
                 {{-20, 20}, kSmallest, -20},
                 {{kSmallest, kLargest}, kLargest, kLargest},
                 {{kSmallest, kLargest}, kSmallest, kSmallest}});
}

TEST(ValueRange, InvertedBoundsClampToTheMaximumAboveItAndOtherwiseToTheMinimum) {
  expectClamped({{{10, 5}, 7, 5},
                 {{10, 5}, 20, 5},
                 {{10, 5}, 10, 5},
                 {{10, 5}, 6, 5},
                 {{10, 5}, 5, 10},
                 {{10, 5}, 3, 10},
                 {{10, 5}, -100, 10},
                 {{5, -5}, 0, -5},
                 {{5, -5}, -5, 5}});
}

TEST(ValueRange, ContainsBothBounds) {
  const ValueRange range{-10, 10};
  EXPECT_TRUE(range.contains(-10));
  EXPECT_TRUE(range.contains(0));
  EXPECT_TRUE(range.contains(10));
  EXPECT_FALSE(range.contains(-11));
  EXPECT_FALSE(range.contains(11));
}

TEST(ValueRange, InvertedBoundsContainNothing) {
  const ValueRange range{10, 5};
  for (std::int32_t value : {kSmallest, 3, 5, 7, 10, 20, kLargest})
    EXPECT_FALSE(range.contains(value)) << value;
}

struct IntervalRow {
  const char *text;
  std::int32_t lower;
  std::int32_t upper;
};

TEST(ValueRange, IntervalIsLowerColonUpper) {
  const IntervalRow rows[] = {
      {"-20:20", -20, 20},   {"10:5", 10, 5},
      {"5:-5", 5, -5},       {" 3: 4", 3, 4},
      {"+1:+2", 1, 2},       {"05:007", 5, 7},
      {"1:2:3", 1, 2},       {"1:2:", 1, 2},
      {"1::3", 1, 0},        {":5", 0, 5},
      {"5:", 5, 0},          {":", 0, 0},
      {"::", 0, 0},          {"a:b", 0, 0},
      {"12abc:-7x", 12, -7}, {"-3000000000:3000000000", kSmallest, kLargest}};
  for (const IntervalRow &row : rows) {
    const auto range = readInterval(row.text);
    ASSERT_TRUE(range.has_value()) << row.text;
    EXPECT_EQ(range->min, row.lower) << row.text;
    EXPECT_EQ(range->max, row.upper) << row.text;
  }
}

TEST(ValueRange, StringWithoutColonIsNotAnInterval) {
  for (const char *text : {"", "5", "-20 20", "-20;20", "abc", "1-2"})
    EXPECT_FALSE(readInterval(text).has_value()) << text;
}

TEST(ValueRange, FullwidthColonIsNotASeparator) {
  EXPECT_FALSE(readInterval("1\xEF\xBC\x9A"
                            "2")
                   .has_value());
}

} // namespace
} // namespace imageposition
