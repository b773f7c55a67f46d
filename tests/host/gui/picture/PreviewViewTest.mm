#import "PreviewView.h"

#import "PreviewDrawing.h"
#include "PreviewRequests.hpp"
#import "TextBridge.h"
#import "ViewOnScreen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace {

using namespace imageposition;
using imageposition::test::previewOf;

class PreviewViewOnScreen : public imageposition::test::ViewOnScreen {
protected:
  void SetUp() override {
    const NSSize size = [PreviewView preferredSize];
    view_ = [[PreviewView alloc] initWithFrame:NSMakeRect(0, 0, size.width, size.height)];
    open(view_);
  }

  void show(const Preview &preview) {
    [view_ showPreview:preview];
    look();
    const NSSize size = [view_ bounds].size;
    layout_ = layOutPreview(preview, {size.width, size.height, previewLineHeight()});
  }

  /// Where the outline of the content crosses a line, from left to right.
  std::vector<int> crossings(const PixelRectangle &page, double y, Rgb colour) const {
    std::vector<int> found;
    for (int x = static_cast<int>(page.x); x < page.right() + 4; x++)
      if (isNear(x, static_cast<int>(y), colour))
        found.push_back(x);
    return found;
  }

  PreviewView *view_ = nil; // owned by its window
  PreviewLayout layout_;
  const PreviewColours &colours_ = kLightPreview;
};

TEST_F(PreviewViewOnScreen, TheFrontsContentIsAtItsOffset) {
  for (const int offset : {-200, -100, -60, 0, 50, 100}) {
    SCOPED_TRACE(offset);
    const Preview preview = previewOf({{offset}, {0}}, {});
    show(preview);
    const PixelRectangle content = layout_.onPage(PreviewLayout::Front, preview.front.content);
    // Between the heading and the first paragraph there is nothing but the outline.
    const double line = content.y + 0.135 * content.height;
    const std::vector<int> found =
        crossings(layout_.pages[PreviewLayout::Front].page, line, colours_.front);
    std::vector<double> expected;
    for (const double edge : {std::round(content.x), std::round(content.right()) - 1})
      if (edge >= layout_.pages[PreviewLayout::Front].page.x)
        expected.push_back(edge);
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); i++)
      EXPECT_NEAR(found[i], expected[i], 1);
  }
}

TEST_F(PreviewViewOnScreen, DownIsDown) {
  const Preview preview = previewOf({{0}, {150}}, {});
  show(preview);
  const PixelRectangle content = layout_.onPage(PreviewLayout::Front, preview.front.content);
  const double middle = content.x + 0.7 * content.width;
  EXPECT_TRUE(isAround({middle, std::round(content.y)}, colours_.front));
  const PixelRectangle imageable = layout_.onPage(PreviewLayout::Front, preview.front.imageable);
  EXPECT_EQ(count({imageable.x, imageable.y + 1, imageable.width, 4}, colours_.front), 0);
}

TEST_F(PreviewViewOnScreen, TheWarningColourMarksTheLostAreaAndNothingElse) {
  show(previewOf({}, {}));
  EXPECT_EQ(count(whole(), colours_.lost), 0);
  const Preview preview = previewOf({{100}, {0}}, {});
  show(preview);
  const PixelRectangle page = layout_.pages[PreviewLayout::Front].page;
  const PixelRectangle lost = layout_.onPage(PreviewLayout::Front, preview.front.lost.at(0));
  EXPECT_GT(count(lost, colours_.lost), lost.width * lost.height / 8);
  EXPECT_EQ(count({page.x, page.y, lost.x - 1 - page.x, page.height}, colours_.lost), 0);
  EXPECT_EQ(count(layout_.pages[PreviewLayout::Back].page, colours_.lost), 0);
}

TEST_F(PreviewViewOnScreen, ALossIsToScale) {
  for (const int offset : {20, 50, 100}) {
    const Preview preview = previewOf({{offset}, {0}}, {});
    show(preview);
    const PixelRectangle lost = layout_.onPage(PreviewLayout::Front, preview.front.lost.at(0));
    const int y = static_cast<int>(lost.y + lost.height / 2);
    int first = 0, last = 0;
    for (int row = y - 4; row <= y + 4; row++)
      for (int x = static_cast<int>(lost.x) - 8; x < lost.right() + 8; x++)
        if (isNear(x, row, colours_.lost)) {
          first = first == 0 ? x : std::min(first, x);
          last = std::max(last, x);
        }
    EXPECT_NEAR(last - first + 1, lost.width, 2) << offset;
  }
}

TEST_F(PreviewViewOnScreen, ALossOfATenthOfAMillimetreIsVisible) {
  for (const Offset &offset :
       {Offset{{1}, {0}}, Offset{{-1}, {0}}, Offset{{0}, {1}}, Offset{{0}, {-1}}}) {
    show(previewOf(offset, {}));
    PixelRectangle around = layout_.pages[PreviewLayout::Front].page;
    around = {around.x - 4, around.y - 4, around.width + 8, around.height + 8};
    EXPECT_GT(count(around, colours_.lost), 50);
  }
}

TEST_F(PreviewViewOnScreen, AgainstTheLightTheFrontIsMirrored) {
  // The page's picture is at the lower left.
  const struct {
    Turning turning;
    bool isRight;
    bool isLow;
  } rows[] = {{Turning::LongEdge, true, true}, {Turning::ShortEdge, false, false}};
  for (const auto &row : rows) {
    show(previewOf({}, {}, row.turning));
    const auto inkAt = [this](PreviewLayout::Place place, bool right, bool low) {
      PixelRectangle area = layout_.pages[place].page;
      area.x += area.width * (right ? 0.6 : 0.1);
      area.y += area.height * (low ? 0.7 : 0.1);
      return ink({area.x, area.y, area.width * 0.3, area.height * 0.2});
    };
    const double most = inkAt(PreviewLayout::AgainstLight, row.isRight, row.isLow);
    EXPECT_NEAR(most, inkAt(PreviewLayout::Front, false, true), most / 10);
    for (const bool right : {false, true})
      for (const bool low : {false, true})
        if (right != row.isRight || low != row.isLow) {
          EXPECT_LT(inkAt(PreviewLayout::AgainstLight, right, low), most * 0.8)
              << right << " " << low;
        }
  }
}

TEST_F(PreviewViewOnScreen, TheMarksAreAtTheirOffsets) {
  const struct {
    Offset front;
    Offset back;
    Turning turning;
  } rows[] = {{{{5}, {-8}}, {{9}, {9}}, Turning::LongEdge},
              {{{5}, {-8}}, {{9}, {9}}, Turning::ShortEdge},
              {{{-200}, {100}}, {{150}, {-100}}, Turning::LongEdge},
              {{{10}, {0}}, {{0}, {0}}, Turning::LongEdge}};
  for (const auto &row : rows) {
    const Preview preview = previewOf(row.front, row.back, row.turning);
    show(preview);
    const Pixel front = layout_.mark(preview.frontSeenThrough->offset);
    EXPECT_TRUE(isAround(front, colours_.front)) << front.x << " " << front.y;
    EXPECT_TRUE(isAround({front.x + 11, front.y}, colours_.front)) << front.x << " " << front.y;
    const Pixel back = layout_.mark(preview.back->offset);
    for (const int side : {-1, 1}) {
      EXPECT_TRUE(isAround({back.x + side * 4, back.y - 4}, colours_.back)) << back.x;
      EXPECT_TRUE(isAround({back.x + side * 4, back.y + 4}, colours_.back)) << back.x;
    }
  }
}

TEST_F(PreviewViewOnScreen, EachTenthOfAMillimetreMovesAMarkUpToOneMillimetre) {
  std::set<int> places;
  for (int offset = 0; offset <= 10; offset++) {
    show(previewOf({{offset}, {0}}, {{0}, {10}}));
    const Pixel mark = layout_.mark({{-offset}, {0}});
    EXPECT_TRUE(isAround({mark.x, mark.y - 11}, colours_.front));
    places.insert(static_cast<int>(mark.x));
  }
  EXPECT_EQ(places.size(), 11u);
}

TEST_F(PreviewViewOnScreen, WithoutASecondSideThereIsNoBackAndNoGrid) {
  show(previewOf({{10}, {10}}, {}, Turning::OneSided));
  EXPECT_EQ(count(whole(), colours_.back), 0);
  EXPECT_EQ(count(layout_.grid, colours_.front), 0);
  EXPECT_EQ(count(layout_.grid, colours_.gridLine), 0);
  EXPECT_GT(count(layout_.grid, colours_.text), 20) << "does not say why";
}

TEST_F(PreviewViewOnScreen, IsRedrawnOnlyWhenThePreviewChanges) {
  show(previewOf({{1}, {0}}, {}));
  EXPECT_FALSE([view_ needsDisplay]);
  [view_ showPreview:previewOf({{1}, {0}}, {})];
  EXPECT_FALSE([view_ needsDisplay]);
  [view_ showPreview:previewOf({{2}, {0}}, {})];
  EXPECT_TRUE([view_ needsDisplay]);
}

TEST_F(PreviewViewOnScreen, IsEmptyUntilThereIsSomethingToShow) {
  [window_ display];
  EXPECT_EQ(toText([view_ accessibilityLabel]), "");
}

TEST_F(PreviewViewOnScreen, DescribesWhatItShows) {
  show(previewOf({{1}, {0}}, {{1}, {0}}, Turning::ShortEdge));
  const std::string text = toText([view_ accessibilityLabel]);
  EXPECT_EQ(
      text.rfind("Each side moves 0.1 mm to the right, as you look at that side. Against the light",
                 0),
      0u)
      << text;
  EXPECT_EQ(toText([view_ view:view_ stringForToolTip:0 point:NSZeroPoint userData:nullptr]), text);
}

TEST_F(PreviewViewOnScreen, DrawsInAnySize) {
  for (const double side : {0.0, 1.0, 30.0, 90.0, 700.0}) {
    [view_ setFrameSize:NSMakeSize(side, side / 2)];
    show(previewOf({{100}, {-100}}, {{3}, {4}}));
  }
}

TEST(PreviewArrows, PointWhereTheOffsetGoes) {
  EXPECT_EQ(arrowText({}), "");
  EXPECT_EQ(arrowText({{25}, {0}}), "→ 2.5 mm");
  EXPECT_EQ(arrowText({{-25}, {1}}), "← 2.5  ↓ 0.1 mm");
  EXPECT_EQ(arrowText({{0}, {-10}}), "↑ 1 mm");
}

} // namespace
