#include "Measurement.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace imageposition {

namespace {

SheetLayout a4(Turning turning = Turning::LongEdge) {
  return *layOutSheet({{595}, {842}, {{12}, {12}, {583}, {830}}}, turning);
}

SheetReading reading(int x1, int y1, int x2, int y2) { return {{{x1}, {y1}}, {{x2}, {y2}}}; }

TEST(SheetReading, IsFourNumbersInMillimetres) {
  const auto read = readSheetReading("1.7,-0.3, 1.6;-0.2");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->first, (Offset{{17}, {-3}}));
  EXPECT_EQ(read->second, (Offset{{16}, {-2}}));
}

TEST(SheetReading, IsNothingElse) {
  for (const char *text : {"", "1", "1,2,3", "1,2,3,4,5", "1,2,3,x", "1,2,3,11", "1,2,3,nan"})
    EXPECT_FALSE(readSheetReading(text)) << text;
  EXPECT_FALSE(readCreaseReading("1"));
  EXPECT_FALSE(readCreaseReading("1,2,3"));
  EXPECT_EQ(readCreaseReading("-0.5, 1"), (Offset{{-5}, {10}}));
}

TEST(Measurement, MovesTheBackOntoTheFront) {
  const auto measured = measure(a4(), {reading(17, -3, 17, -3)});
  const auto moved = withBackMoved({{{5}, {1}}, {{2}, {4}}}, measured);
  EXPECT_EQ(moved.offsets.front, (Offset{{5}, {1}}));
  EXPECT_EQ(moved.offsets.back, (Offset{{-15}, {7}}));
  EXPECT_FALSE(moved.isLimited);
}

TEST(Measurement, IsTheMedianOfTheSheets) {
  const auto measured =
      measure(a4(), {reading(10, 0, 12, 2), reading(30, -8, 32, -6), reading(11, 1, 13, 3)});
  EXPECT_EQ(measured.right, 12);
  EXPECT_EQ(measured.down, 1);
  EXPECT_EQ(measured.spreadRight, 20);
  EXPECT_EQ(measured.spreadDown, 9);
  EXPECT_EQ(measured.sheets, 3);
}

TEST(Measurement, DoubtsASheetThatIsFarOffTheOthers) {
  const SheetReading usual = reading(17, -3, 16, -2), slip = reading(-16, -3, 16, -2);
  EXPECT_EQ(measure(a4(), {usual, slip, usual}).doubtful, 2);
  EXPECT_EQ(measure(a4(), {usual, usual, slip}).doubtful, 3);
  EXPECT_EQ(measure(a4(), {usual, reading(35, -3, 34, -2), usual}).doubtful, 0) << "scatter";
  EXPECT_EQ(measure(a4(), {usual, slip}).doubtful, 0) << "nobody knows which";
}

TEST(Measurement, FindsATurnedBack) {
  const SheetLayout layout = a4();
  constexpr double kAngle = 0.2; // degrees
  const double radians = kAngle * M_PI / 180;
  const auto tenths = [&](VernierIndex i) -> int {
    const SheetPoint zero = layout.verniers[i].zero;
    const bool isAcross = layout.verniers[i].direction == Direction::Across;
    return static_cast<int>(std::lround(
        10 * radians * (isAcross ? layout.height / 2 - zero.y : zero.x - layout.width / 2)));
  };
  const auto measured = measure(layout, {reading(tenths(kFirstAcross), tenths(kFirstDown),
                                                 tenths(kSecondAcross), tenths(kSecondDown))});
  EXPECT_NEAR(measured.angle, kAngle, 0.02);
  EXPECT_NEAR(measured.stretch, 0, 0.03);
  EXPECT_NEAR(measured.right, 0, 0.5);
  EXPECT_TRUE(measured.areCornersApart());
  EXPECT_NEAR(measured.left / 10, radians * std::hypot(210, 297) / 2, 0.1);
}

TEST(Measurement, FindsAStretchedBack) {
  const SheetLayout layout = a4();
  constexpr double kStretch = 0.004;
  const auto tenths = [&](VernierIndex i) -> int {
    const SheetPoint zero = layout.verniers[i].zero;
    const bool isAcross = layout.verniers[i].direction == Direction::Across;
    return static_cast<int>(std::lround(
        10 * kStretch * (isAcross ? zero.x - layout.width / 2 : zero.y - layout.height / 2)));
  };
  const auto measured = measure(layout, {reading(tenths(kFirstAcross), tenths(kFirstDown),
                                                 tenths(kSecondAcross), tenths(kSecondDown))});
  EXPECT_NEAR(measured.stretch, 100 * kStretch, 0.05);
  EXPECT_NEAR(measured.angle, 0, 0.02);
}

TEST(Measurement, AcceptsCornersThatDisagreeByThreeTenths) {
  EXPECT_FALSE(measure(a4(), {reading(0, 0, 3, -3)}).areCornersApart());
  EXPECT_TRUE(measure(a4(), {reading(0, 0, 4, 0)}).areCornersApart());
  EXPECT_TRUE(measure(a4(), {reading(0, 0, 0, -4)}).areCornersApart());
}

TEST(Measurement, LeavesHalfATenth) {
  for (const int sign : {1, -1}) {
    const auto measured = measure(a4(), {reading(sign * 17, 0, sign * 16, sign)});
    const auto moved = withBackMoved({}, measured);
    EXPECT_EQ(moved.offsets.back, (Offset{{-sign * 16}, {0}}));
    const auto again = measure(a4(), {reading(sign, 0, 0, sign)});
    EXPECT_EQ(withBackMoved(moved.offsets, again).offsets, moved.offsets);
  }
}

TEST(Measurement, LimitsOffsetsToThePrinters) {
  const auto measured = measure(a4(), {reading(80, -60, 80, -60)});
  const auto moved = withBackMoved({}, measured, {50});
  EXPECT_EQ(moved.offsets.back, (Offset{{-50}, {50}}));
  EXPECT_TRUE(moved.isLimited);
  EXPECT_EQ(withBothMoved({}, {{60}, {0}}, a4(), {50}).offsets.front, (Offset{{50}, {0}}));
}

TEST(Measurement, LimitsOffsets) {
  const auto moved = withBackMoved({{}, {{-60}, {0}}}, measure(a4(), {reading(80, 0, 80, 0)}));
  EXPECT_EQ(moved.offsets.back, (Offset{{-100}, {0}}));
  EXPECT_TRUE(moved.isLimited);
}

// What the front's reader calls right is left for the reader of the back if the sheet turns about
// a vertical axis, and what is down is up if it turns about a horizontal one.
TEST(Crease, MovesTheBackWithTheFront) {
  const SideOffsets present{{{1}, {2}}, {{3}, {4}}};
  const auto longEdge = withBothMoved(present, {{5}, {7}}, a4());
  EXPECT_EQ(longEdge.offsets.front, (Offset{{6}, {9}}));
  EXPECT_EQ(longEdge.offsets.back, (Offset{{-2}, {11}}));
  const auto shortEdge = withBothMoved(present, {{5}, {7}}, a4(Turning::ShortEdge));
  EXPECT_EQ(shortEdge.offsets.front, (Offset{{6}, {9}}));
  EXPECT_EQ(shortEdge.offsets.back, (Offset{{8}, {-3}}));
}

TEST(OtherTurning, ChangesBothSignsOfTheBack) {
  const SideOffsets offsets{{{1}, {2}}, {{3}, {-4}}};
  EXPECT_EQ(forOtherTurning(offsets), (SideOffsets{{{1}, {2}}, {{-3}, {4}}}));
}

TEST(SideOffsets, AreReadAsPresetsAndUsersWriteThem) {
  PrintSettingsStore settings;
  settings.set("TopBottomMargin", "7");
  for (const char *const custom : {"Custom.-15", "custom.-15"}) {
    settings.set("LeftRightMargin", custom);
    EXPECT_EQ(sideOffsetsIn(settings), (SideOffsets{{{-15}, {7}}, {{-15}, {7}}})) << custom;
  }
  const SideOffsets both{{{1}, {2}}, {{-3}, {4}}};
  setSideOffsets(settings, both);
  EXPECT_EQ(sideOffsetsIn(settings), both);
}

} // namespace

} // namespace imageposition
