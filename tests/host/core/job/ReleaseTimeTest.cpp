#include "ReleaseTime.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace {

using namespace imageposition;

/// Sets the time zone for one test.
class ReleaseTimeTest : public testing::Test {
protected:
  ReleaseTimeTest() { setZone("Europe/Berlin"); }
  ~ReleaseTimeTest() override {
    unsetenv("TZ");
    tzset();
  }
  static void setZone(const char *zone) {
    setenv("TZ", zone, 1);
    tzset();
  }

  static constexpr std::time_t kSummerNoon = 1783936800;        // 2026-07-13 10:00 UTC, 12:00 local
  static constexpr std::time_t kNightBeforeWinter = 1792882800; // 2026-10-24 23:00 UTC, 01:00 local
};

TEST_F(ReleaseTimeTest, IsUtcForCupsAndLocalForUsers) {
  EXPECT_EQ(holdUntil({18, 30}, kSummerNoon), "16:30");
  EXPECT_EQ(holdUntil({1, 5}, kSummerNoon), "23:05");
  EXPECT_EQ(localReleaseTime("16:30", kSummerNoon)->text(), "18:30");
  EXPECT_EQ(localReleaseTime("23:05:59", kSummerNoon)->text(), "01:05");
}

TEST_F(ReleaseTimeTest, FollowsTheChangeOfTheClock) {
  EXPECT_EQ(holdUntil({1, 30}, kNightBeforeWinter), "23:30");
  EXPECT_EQ(holdUntil({12, 0}, kNightBeforeWinter), "11:00");
  EXPECT_EQ(localReleaseTime("11:00", kNightBeforeWinter)->text(), "12:00");
}

TEST_F(ReleaseTimeTest, IsNoneForNamesAndNonsense) {
  for (const char *value :
       {"night", "", "24:00", "12:60", "12", "12:", "12:30x", "12:30:", "-1:30"})
    EXPECT_FALSE(localReleaseTime(value, kSummerNoon)) << value;
}

} // namespace
