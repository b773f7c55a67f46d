#include "SheetLayout.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

namespace imageposition {

namespace {

constexpr double kPointsPerMillimetre = 72 / 25.4;

PageShape page(double width, double height, double margin = 5) {
  const auto points = [](double length) -> Point { return {length * kPointsPerMillimetre}; };
  return {points(width),
          points(height),
          {points(margin), points(margin), points(width - margin), points(height - margin)}};
}

SheetArea areaOf(const Vernier &vernier) {
  const bool isAcross = vernier.direction == Direction::Across;
  const double x = isAcross ? vernier::kHalfWidth : vernier::kHalfDepth;
  const double y = isAcross ? vernier::kHalfDepth : vernier::kHalfWidth;
  return {vernier.zero.x - x, vernier.zero.y - y, vernier.zero.x + x, vernier.zero.y + y};
}

bool overlap(const SheetArea &a, const SheetArea &b) {
  constexpr double kRounding = 1e-6;
  return a.left < b.right - kRounding && b.left < a.right - kRounding &&
         a.top < b.bottom - kRounding && b.top < a.bottom - kRounding;
}

struct Paper {
  const char *name;
  double width;
  double height;
};

constexpr Paper kPapers[] = {
    {"A4", 210, 297}, {"Letter", 215.9, 279.4},         {"A5", 148, 210}, {"A6", 105, 148},
    {"A3", 297, 420}, {"A5 long edge first", 210, 148}, {"DL", 110, 220}};

TEST(SheetLayout, FitsThePapersOfPrintersWithoutOverlaps) {
  for (const Paper &paper : kPapers)
    for (const Turning turning : {Turning::LongEdge, Turning::ShortEdge}) {
      SCOPED_TRACE(paper.name);
      const auto layout = layOutSheet(page(paper.width, paper.height), turning);
      ASSERT_TRUE(layout);
      std::vector<SheetArea> areas{layout->backTop, layout->backBottom};
      for (const Vernier &vernier : layout->verniers)
        areas.push_back(areaOf(vernier));
      if (layout->middle)
        areas.push_back(*layout->middle);
      for (std::size_t i = 0; i < areas.size(); i++) {
        EXPECT_GE(areas[i].left, 5);
        EXPECT_GE(areas[i].top, 5);
        EXPECT_LE(areas[i].right, paper.width - 5);
        EXPECT_LE(areas[i].bottom, paper.height - 5);
        for (std::size_t j = 0; j < i; j++)
          EXPECT_FALSE(overlap(areas[i], areas[j])) << i << " and " << j;
      }
    }
}

TEST(SheetLayout, LeavesTheFrontsWordsBesideTheVerniersThatShineThrough) {
  for (const Turning turning : {Turning::LongEdge, Turning::ShortEdge}) {
    const auto layout = layOutSheet(page(210, 297), turning);
    ASSERT_TRUE(layout);
    for (const Vernier &vernier : layout->verniers) {
      const SheetArea seen = areaOf(vernier);
      const SheetPoint a = throughTheSheet(*layout, {seen.left, seen.top});
      const SheetPoint b = throughTheSheet(*layout, {seen.right, seen.bottom});
      const SheetArea onFront{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
                              std::max(a.y, b.y)};
      EXPECT_FALSE(overlap(onFront, layout->frontTop));
      EXPECT_FALSE(overlap(onFront, layout->frontBottom));
    }
  }
}

TEST(SheetLayout, MeasuresAtOppositeCorners) {
  const auto layout = layOutSheet(page(210, 297), Turning::LongEdge);
  ASSERT_TRUE(layout);
  const auto &verniers = layout->verniers;
  for (const auto &[first, second] :
       {std::pair(kFirstAcross, kSecondAcross), std::pair(kFirstDown, kSecondDown)}) {
    EXPECT_NEAR(verniers[first].zero.x + verniers[second].zero.x, 210, 1e-6);
    EXPECT_NEAR(verniers[first].zero.y + verniers[second].zero.y, 297, 1e-6);
  }
  EXPECT_GT(verniers[kSecondAcross].zero.y - verniers[kFirstAcross].zero.y, 200);
}

TEST(SheetLayout, NeedsPaperOfAboutA6) {
  EXPECT_FALSE(layOutSheet(page(74, 105), Turning::LongEdge));
  EXPECT_FALSE(layOutSheet(page(55, 85), Turning::LongEdge));
}

TEST(SheetLayout, ReadsEveryTenthInOneWay) {
  for (int tenths = -105; tenths <= 105; tenths++) {
    const VernierReading reading = vernierReadingOf({tenths});
    EXPECT_EQ(displacementOf(reading).count, tenths);
    EXPECT_LE(std::abs(reading.tenths), vernier::kLargestTenth) << tenths;
    EXPECT_LE(std::abs(reading.whole), vernier::kLargestWhole) << tenths;
  }
}

} // namespace

} // namespace imageposition
