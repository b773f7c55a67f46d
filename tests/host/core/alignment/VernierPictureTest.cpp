#include "VernierPicture.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace imageposition {

namespace {

using testing::Contains;

bool isAcross(VernierIndex index) { return index == kFirstAcross || index == kSecondAcross; }

double along(SheetPoint point, VernierIndex index) { return isAcross(index) ? point.x : point.y; }

/// The places of a comb's lines, from left to right or top to bottom, without its spine.
std::vector<double> linesOf(const Figure &comb, VernierIndex index) {
  std::vector<double> lines;
  for (const FigureLine &line : comb.lines)
    if (along(line.from, index) == along(line.to, index))
      lines.push_back(along(line.from, index));
  std::sort(lines.begin(), lines.end());
  return lines;
}

/// As a reader finds it: which line of the front is next to the triangle, and which lines of the
/// back continue one of the front.
struct Seen {
  double zero = 0;
  std::vector<int> tenths;
  std::vector<double> places;
};

Seen look(const ScalePicture &picture, VernierIndex index) {
  Seen seen{along(picture.near.triangle->tip, index), {}, {}};
  const auto front = linesOf(picture.through, index), back = linesOf(picture.near, index);
  for (std::size_t i = 0; i < back.size(); i++)
    for (const double line : front)
      if (std::abs(back[i] - line) < 0.01) {
        seen.tenths.push_back(static_cast<int>(i) - vernier::kLargestTenth);
        seen.places.push_back(line);
      }
  return seen;
}

TEST(VernierPicture, ReadsItsDisplacement) {
  for (int i = 0; i < kVernierCount; i++)
    for (std::int64_t tenths = -105; tenths <= 105; tenths++) {
      const auto index = static_cast<VernierIndex>(i);
      const VernierReading reading = vernierReadingOf({tenths});
      const Seen seen = look(vernierPicture(index, {tenths}), index);
      EXPECT_NEAR(seen.zero - reading.whole, reading.tenths / 10.0, 1e-9) << tenths;
      EXPECT_THAT(seen.tenths, Contains(reading.tenths)) << tenths;
    }
}

TEST(VernierPicture, MarksTheLinesThatContinueEachOther) {
  for (int i = 0; i < kVernierCount; i++)
    for (const std::int64_t tenths : {-105, -50, -17, -5, 0, 3, 5, 17, 100}) {
      const auto index = static_cast<VernierIndex>(i);
      const ScalePicture picture = vernierPicture(index, {tenths});
      const Seen seen = look(picture, index);
      ASSERT_EQ(picture.marks.size(), seen.places.size()) << tenths;
      for (std::size_t mark = 0; mark < picture.marks.size(); mark++) {
        const SheetArea &area = picture.marks[mark];
        const double middle = isAcross(index) ? area.left + area.right : area.top + area.bottom;
        EXPECT_NEAR(middle / 2, seen.places[mark], 1e-9) << tenths;
      }
    }
}

TEST(VernierPicture, IsDrawnAsOnTheSheet) {
  const auto layout = layOutSheet({{595}, {842}, {{12}, {12}, {583}, {830}}}, Turning::LongEdge);
  for (int i = 0; i < kVernierCount; i++) {
    const auto index = static_cast<VernierIndex>(i);
    const Vernier &vernier = layout->verniers[index];
    const ScalePicture picture = vernierPicture(index, {});
    const Figure front = frontComb(vernier), back = backComb(vernier);
    const auto isMoved = [&](const std::vector<FigureLine> &lines,
                             const std::vector<FigureLine> &onSheet) {
      ASSERT_EQ(lines.size(), onSheet.size());
      for (std::size_t line = 0; line < lines.size(); line++) {
        EXPECT_NEAR(lines[line].from.x + vernier.zero.x, onSheet[line].from.x, 1e-9);
        EXPECT_NEAR(lines[line].from.y + vernier.zero.y, onSheet[line].from.y, 1e-9);
        EXPECT_NEAR(lines[line].to.x + vernier.zero.x, onSheet[line].to.x, 1e-9);
        EXPECT_NEAR(lines[line].to.y + vernier.zero.y, onSheet[line].to.y, 1e-9);
      }
    };
    isMoved(picture.through.lines, front.lines);
    isMoved(picture.near.lines, back.lines);
  }
}

TEST(VernierPicture, NamesItsCornerAndDirection) {
  const std::string names[] = {"A →", "A ↓", "B →", "B ↓"};
  for (int i = 0; i < kVernierCount; i++)
    EXPECT_EQ(vernierPicture(static_cast<VernierIndex>(i), {}).near.labels.back().text, names[i]);
}

TEST(VernierPicture, HasRoomForEveryDisplacement) {
  constexpr double kLetter = 1.3; // half a number's size
  const auto fits = [](const Figure &figure) {
    for (const FigureLine &line : figure.lines)
      for (const SheetPoint &end : {line.from, line.to})
        EXPECT_LE(std::max(std::abs(end.x), std::abs(end.y)), kPictureReach);
    for (const FigureLabel &label : figure.labels)
      EXPECT_LE(std::max(std::abs(label.centre.x), std::abs(label.centre.y)) + kLetter,
                kPictureReach)
          << label.text;
  };
  for (const std::int64_t tenths : {-105, -17, 0, 17, 105}) {
    for (const VernierIndex index : {kFirstAcross, kFirstDown}) {
      fits(vernierPicture(index, {tenths}).through);
      fits(vernierPicture(index, {tenths}).near);
    }
    for (const Direction direction : {Direction::Across, Direction::Down})
      fits(creasePicture(direction, {tenths}).near);
  }
}

TEST(CreasePicture, CrossesTheRulerAtItsPlace) {
  for (const std::int64_t tenths : {-105, -4, 0, 10}) {
    const FigureLine across = creasePicture(Direction::Across, {tenths}).through.lines.at(0);
    EXPECT_NEAR(across.from.x, static_cast<double>(tenths) / 10, 1e-9);
    EXPECT_NEAR(across.to.x, across.from.x, 1e-9);
    EXPECT_LT(across.from.y, -5);
    EXPECT_GT(across.to.y, 5);
    const FigureLine down = creasePicture(Direction::Down, {tenths}).through.lines.at(0);
    EXPECT_NEAR(down.from.y, static_cast<double>(tenths) / 10, 1e-9);
    EXPECT_NEAR(down.to.y, down.from.y, 1e-9);
  }
}

TEST(ScalePicture, IsTheSameOnlyForTheSameReading) {
  EXPECT_TRUE(vernierPicture(kFirstAcross, {3}) == vernierPicture(kFirstAcross, {3}));
  EXPECT_FALSE(vernierPicture(kFirstAcross, {3}) == vernierPicture(kFirstAcross, {4}));
  EXPECT_FALSE(vernierPicture(kFirstAcross, {3}) == vernierPicture(kSecondAcross, {3}));
  EXPECT_FALSE(creasePicture(Direction::Down, {3}) == creasePicture(Direction::Down, {4}));
}

} // namespace

} // namespace imageposition
