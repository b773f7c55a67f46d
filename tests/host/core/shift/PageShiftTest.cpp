#include "PageShift.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace imageposition {

namespace {

TEST(SideOf, CountsTheSidesThatThePrinterGets) {
  const struct {
    const char *what;
    SideOrder order;
    const char *sides; // of the pages in reading order
  } rows[] = {
      {"two-sided", {PrintedSides::Both, false}, "FBFBF"},
      {"two-sided, last page first", {PrintedSides::Both, true}, "BFBFB"},
      {"one-sided", {PrintedSides::FrontsOnly, false}, "FFFFF"},
      {"one-sided, last page first", {PrintedSides::FrontsOnly, true}, "FFFFF"},
      {"turned by hand", {PrintedSides::BacksOnly, false}, "BBBBB"},
      {"turned by hand, last page first", {PrintedSides::BacksOnly, true}, "BBBBB"},
  };
  for (const auto &row : rows) {
    std::string sides;
    for (std::size_t i = 0; i < 5; i++)
      sides += sideOf(row.order, i) == Side::Front ? 'F' : 'B';
    EXPECT_EQ(sides, row.sides) << row.what;
  }
}

TEST(SideOf, AgreesWithAReversedStreamThatIsPaddedToWholeSheets) {
  for (std::size_t pages = 1; pages < 9; pages++)
    for (std::size_t i = 0; i < pages; i++) {
      const std::size_t sides = pages + pages % 2;
      const std::size_t place = sides - 1 - i; // in the stream, from 0
      EXPECT_EQ(sideOf({PrintedSides::Both, true}, i), place % 2 == 0 ? Side::Front : Side::Back)
          << pages << " " << i;
    }
}

/// Where a rotated page shows a point of its user space, relative to where it shows the origin; to
/// the right and downwards.
Translation shown(const Translation &point, int rotation) {
  Translation seen{point.x, {-point.y.count}};
  for (; rotation > 0; rotation -= 90) // clockwise: what points to the right then points down
    seen = {{-seen.y.count}, seen.x};
  return seen;
}

TEST(TranslationOf, MovesTheShownPageByTheOffset) {
  const Offset offset{{25}, {-7}};
  for (const int rotation : {0, 90, 180, 270}) {
    const Translation seen = shown(translationOf(offset, rotation), rotation);
    EXPECT_NEAR(seen.x.count, 25 * 72 / 254.0, 1e-9) << rotation;
    EXPECT_NEAR(seen.y.count, -7 * 72 / 254.0, 1e-9) << rotation;
  }
}

TEST(TranslationOf, UnderstandsAnyRotation) {
  const Offset offset{{10}, {20}};
  const struct {
    long long rotation, same;
  } rows[] = {{360, 0},
              {450, 90},
              {-90, 270},
              {-360, 0},
              {36'000'090, 90},
              {45, 0},
              {std::numeric_limits<long long>::min(), 0}};
  for (const auto &row : rows) {
    const Translation one = translationOf(offset, row.rotation);
    const Translation other = translationOf(offset, row.same);
    EXPECT_TRUE(one.x == other.x && one.y == other.y) << row.rotation;
  }
}

TEST(TranslationOf, CountsInThePagesUnit) {
  const Offset offset{{254}, {508}};
  EXPECT_DOUBLE_EQ(translationOf(offset, 0, 2).x.count, 36);
  EXPECT_DOUBLE_EQ(translationOf(offset, 0, 0.5).y.count, -288);
  for (const double unusable : {0.0, -1.0, std::nan(""), 1e-320, 1e300, HUGE_VAL})
    EXPECT_DOUBLE_EQ(translationOf(offset, 0, unusable).x.count, 72);
}

} // namespace

} // namespace imageposition
