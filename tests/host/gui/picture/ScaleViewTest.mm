// The drawing of a scale, by its pixels.
#import "ScaleView.h"

#include "PreviewColours.hpp"
#import "ViewOnScreen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using namespace imageposition;

class ScaleViewOnScreen : public imageposition::test::ViewOnScreen {
protected:
  void SetUp() override {
    const NSSize size = [ScaleView preferredSize];
    view_ = [[ScaleView alloc] initWithFrame:NSMakeRect(0, 0, size.width, size.height)];
    open(view_);
  }

  void show(const ScalePicture &picture) {
    [view_ showPicture:picture];
    look();
  }

  /// From 0, white, to 1, at a place in millimetres along and across a scale's lines.
  double darkness(Direction direction, int along, int depth) const {
    NSUInteger pixel[5] = {};
    const bool isAcross = direction == Direction::Across;
    [bitmap_ getPixel:pixel atX:isAcross ? along : depth y:isAcross ? depth : along];
    return 1 - static_cast<double>(pixel[0]) / 255;
  }

  int side() const { return static_cast<int>([view_ bounds].size.width); }
  double centre() const { return std::floor(side() / 2.0) + 0.5; }

  /// The middles of the dark runs at a depth, in millimetres from the middle.
  std::vector<double> linesAt(Direction direction, double depth) const {
    constexpr double kDark = 0.25; // more than a mark behind the lines
    const int row = static_cast<int>(centre() + depth * kScalePointsPerMillimetre);
    std::vector<double> lines;
    double weight = 0, moment = 0;
    for (int along = 2; along < side() - 2; along++) {
      const double dark = darkness(direction, along, row);
      if (dark > kDark) {
        weight += dark;
        moment += dark * (along + 0.5);
      } else if (weight > 0) {
        lines.push_back((moment / weight - centre()) / kScalePointsPerMillimetre);
        weight = moment = 0;
      }
    }
    return lines;
  }

  ScaleView *view_ = nil; // owned by its window
};

constexpr double kInFront = -6, kInBack = 6; // depths where only one comb has lines
constexpr double kExact = 0.08;              // millimetres: half a pixel
constexpr int kLines[] = {31, 11};

TEST_F(ScaleViewOnScreen, TheLinesAreWhereTheDisplacementPutsThem) {
  for (const VernierIndex index : {kFirstAcross, kSecondDown})
    for (const std::int64_t tenths : {-105, -38, -17, -5, 0, 1, 3, 5, 10, 17, 52, 105}) {
      SCOPED_TRACE(tenths);
      const Direction direction = index == kFirstAcross ? Direction::Across : Direction::Down;
      const ScalePicture picture = vernierPicture(index, {tenths});
      show(picture);
      const auto front = linesAt(direction, kInFront);
      ASSERT_EQ(front.size(), static_cast<std::size_t>(kLines[0]));
      for (std::size_t i = 0; i < front.size(); i++)
        EXPECT_NEAR(front[i], static_cast<double>(i) - 15, kExact);
      // The comb's name stands beside it.
      auto back = linesAt(direction, kInBack);
      const double zero = static_cast<double>(tenths) / 10;
      back.erase(std::remove_if(back.begin(), back.end(),
                                [=](double line) { return std::abs(line - zero) > 5; }),
                 back.end());
      ASSERT_EQ(back.size(), static_cast<std::size_t>(kLines[1]));
      for (std::size_t i = 0; i < back.size(); i++)
        EXPECT_NEAR(back[i], zero + 0.9 * (static_cast<double>(i) - 5), kExact);
    }
}

TEST_F(ScaleViewOnScreen, TheLinesThatContinueEachOtherAreMarked) {
  for (const std::int64_t tenths : {-17, 0, 3, 5, 44}) {
    SCOPED_TRACE(tenths);
    const ScalePicture picture = vernierPicture(kFirstAcross, {tenths});
    show(picture);
    ASSERT_FALSE(picture.marks.empty());
    const auto isMarked = [this](double along) {
      NSUInteger pixel[5] = {};
      const double x = centre() + along * kScalePointsPerMillimetre;
      [bitmap_ getPixel:pixel
                    atX:static_cast<NSInteger>(x)
                      y:static_cast<NSInteger>(centre() + 6 * kScalePointsPerMillimetre)];
      return pixel[2] > pixel[0] + 10; // bluish
    };
    int marked = 0;
    for (int line = -15; line <= 15; line++)
      marked += isMarked(line - 0.25) && isMarked(line + 0.25) ? 1 : 0;
    EXPECT_EQ(marked, static_cast<int>(picture.marks.size()));
    for (const SheetArea &mark : picture.marks)
      EXPECT_TRUE(isMarked((mark.left + mark.right) / 2 - 0.25));
  }
}

TEST_F(ScaleViewOnScreen, TheCreaseCrossesItsRuler) {
  for (const std::int64_t tenths : {-83, -4, 0, 26}) {
    show(creasePicture(Direction::Across, {tenths}));
    const auto crease = linesAt(Direction::Across, -5);
    ASSERT_EQ(crease.size(), 1U);
    EXPECT_NEAR(crease[0], static_cast<double>(tenths) / 10, kExact);
  }
}

TEST_F(ScaleViewOnScreen, IsRedrawnOnlyWhenThePictureChanges) {
  show(vernierPicture(kFirstAcross, {3}));
  EXPECT_FALSE([view_ needsDisplay]);
  [view_ showPicture:vernierPicture(kFirstAcross, {3})];
  EXPECT_FALSE([view_ needsDisplay]);
  [view_ showPicture:vernierPicture(kFirstAcross, {4})];
  EXPECT_TRUE([view_ needsDisplay]);
}

} // namespace
