#include "Units.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace imageposition;

TEST(Units, AnInchIsSeventyTwoPoints) {
  EXPECT_DOUBLE_EQ(toPoints({254}).count, 72);
  EXPECT_DOUBLE_EQ(toPoints({-254}).count, -72);
  EXPECT_EQ(toTenthMillimetres({72}).count, 254);
  EXPECT_EQ(toTenthMillimetres({595}).count, 2099); // A4 as printers describe it
}

TEST(Units, PointsAreRoundedToTheNearestTenth) {
  const struct {
    double tenths;
    std::int64_t expected;
  } rows[] = {{0.4, 0}, {0.6, 1}, {-0.4, 0}, {-0.6, -1}, {99.51, 100}};
  for (const auto &row : rows)
    EXPECT_EQ(toTenthMillimetres({row.tenths / kTenthMillimetresPerPoint}).count, row.expected)
        << row.tenths;
}

TEST(Units, EveryOffsetSurvivesConversionToPointsAndBack) {
  for (std::int64_t tenths = -200; tenths <= 200; tenths++)
    EXPECT_EQ(toTenthMillimetres(toPoints({tenths})).count, tenths);
}

TEST(Units, ALengthHasADecimalOnlyIfItIsNotZero) {
  const struct {
    std::int64_t tenths;
    const char *expected;
  } rows[] = {{0, "0 mm"},    {1, "0.1 mm"},    {-1, "-0.1 mm"}, {10, "1 mm"},      {25, "2.5 mm"},
              {-10, "-1 mm"}, {-25, "-2.5 mm"}, {200, "20 mm"},  {-105, "-10.5 mm"}};
  for (const auto &row : rows)
    EXPECT_EQ(lengthText({row.tenths}), row.expected);
}

TEST(Units, TheDifferenceOfExtremeOffsetsIsExact) {
  const TenthMillimetre least{std::numeric_limits<std::int32_t>::min()};
  const TenthMillimetre most{std::numeric_limits<std::int32_t>::max()};
  EXPECT_EQ((most - least).count, 4294967295);
  EXPECT_EQ((-least).count, 2147483648);
}

} // namespace
