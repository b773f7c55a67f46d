// The document's pages in the picture, by their pixels.
#import "PreviewView.h"

#import "PreviewDrawing.h"
#include "PreviewRequests.hpp"
#import "TextBridge.h"
#import "Theme.h"
#import "ViewOnScreen.h"

#import <GNUstepGUI/GSTheme.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <ostream>

namespace {

using namespace imageposition;
using imageposition::test::previewOf;

using Side = std::shared_ptr<const PageInk>;

constexpr Rgb kFrontInk = 0x000000, kBackInk = 0xC000C0, kWhite = 0xFFFFFF;
constexpr Rgb kFrontThroughPaper = 0x8C8C8C;

/// On a page, from its upper left corner: in none of its corners or edges, nor in the middle.
constexpr PixelRectangle kFrontBlock = {20, 30, 9, 6};
constexpr PixelRectangle kBackBlock = {50, 80, 12, 8};

PixelRectangle mirrored(const PixelRectangle &block, const PixelRectangle &page, bool leftRight) {
  return leftRight
             ? PixelRectangle{page.width - block.right(), block.y, block.width, block.height}
             : PixelRectangle{block.x, page.height - block.bottom(), block.width, block.height};
}

PixelRectangle within(const PixelRectangle &page, const PixelRectangle &block, double right = 0,
                      double down = 0) {
  return {page.x + block.x + right, page.y + block.y + down, block.width, block.height};
}

void expectAt(const std::optional<PixelRectangle> &found, const PixelRectangle &expected,
              double tolerance) {
  ASSERT_TRUE(found.has_value());
  EXPECT_NEAR(found->x, expected.x, tolerance);
  EXPECT_NEAR(found->y, expected.y, tolerance);
  EXPECT_NEAR(found->right(), expected.right(), tolerance);
  EXPECT_NEAR(found->bottom(), expected.bottom(), tolerance);
}

class PagesInThePicture : public imageposition::test::ViewOnScreen {
protected:
  void SetUp() override {
    const NSSize size = [PreviewView preferredSize];
    view_ = [[PreviewView alloc] initWithFrame:NSMakeRect(0, 0, size.width, size.height)];
    open(view_);
    layout_ = layOutPreview(previewOf({}, {}), {size.width, size.height, previewLineHeight()});
  }

  const PixelRectangle &page(PreviewLayout::Place place) const { return layout_.pages[place].page; }

  /// A white page with a block, in the picture's own resolution.
  Side sideWith(const PixelRectangle &block, Rgb ink, double scale = 1) const {
    RenderedPage side;
    side.width = static_cast<int>(std::round(page(PreviewLayout::Front).width * scale));
    side.height = static_cast<int>(std::round(page(PreviewLayout::Front).height * scale));
    side.pageWidth = {595 * scale};
    side.pageHeight = {842 * scale};
    for (int y = 0; y < side.height; y++)
      for (int x = 0; x < side.width; x++) {
        const bool isInk = block.contains({x * 1.0, y * 1.0});
        side.pixels.push_back(0xFF000000U | static_cast<std::uint32_t>(isInk ? ink : kWhite));
      }
    return std::make_shared<const PageInk>(inkOn(std::move(side)));
  }
  Side blank() const { return sideWith({}, kWhite); }

  void show(const Preview &preview, const Side &front, const Side &back) {
    [view_ showPreview:preview];
    [view_ showSheet:SheetSideImages{front, back} named:""];
    look();
  }
  void showMarks(const Preview &preview) {
    show(preview, sideWith(kFrontBlock, kFrontInk), sideWith(kBackBlock, kBackInk));
  }

  double toPixels(int tenths) const { return tenths * 72 / 254.0 * layout_.pixelsPerPoint; }

  /// All pixels, for comparisons.
  std::vector<Rgb> pixels() const {
    std::vector<Rgb> all;
    for (int y = 0; y < whole().height; y++)
      for (int x = 0; x < whole().width; x++)
        all.push_back(at(x, y));
    return all;
  }

  PreviewView *view_ = nil; // owned by its window
  PreviewLayout layout_;
};

TEST_F(PagesInThePicture, EachSideIsOnItsPage) {
  showMarks(previewOf({}, {}));
  expectAt(boxOf(kFrontInk, page(PreviewLayout::Front)),
           within(page(PreviewLayout::Front), kFrontBlock), 0);
  expectAt(boxOf(kBackInk, page(PreviewLayout::Back)),
           within(page(PreviewLayout::Back), kBackBlock), 0);
  EXPECT_EQ(count(page(PreviewLayout::Front), kBackInk), 0);
  EXPECT_EQ(count(page(PreviewLayout::Back), kFrontInk), 0);
}

TEST_F(PagesInThePicture, AgainstTheLightTheFrontIsMirroredAndWeakAndTheBackIsAsItIs) {
  for (const Turning turning : {Turning::LongEdge, Turning::ShortEdge}) {
    SCOPED_TRACE(turning == Turning::LongEdge ? "long edge" : "short edge");
    showMarks(previewOf({}, {}, turning));
    const PixelRectangle &both = page(PreviewLayout::AgainstLight);
    expectAt(boxOf(kBackInk, both), within(both, kBackBlock), 0);
    EXPECT_EQ(count(both, kFrontInk), 0);
    const PixelRectangle front = mirrored(kFrontBlock, both, turning == Turning::LongEdge);
    const int all = static_cast<int>(front.width * front.height);
    EXPECT_EQ(count(within(both, front), kFrontThroughPaper), all);
    EXPECT_EQ(count(within(both, kFrontBlock), kWhite), all);
  }
}

TEST_F(PagesInThePicture, EachSideMovesAsItsReaderSeesIt) {
  const struct {
    Offset front;
    Offset back;
  } rows[] = {{{{100}, {0}}, {}},
              {{{0}, {100}}, {}},
              {{{-60}, {-90}}, {{80}, {40}}},
              {{}, {{-100}, {100}}}};
  for (const auto &row : rows)
    for (const Turning turning : {Turning::LongEdge, Turning::ShortEdge}) {
      const bool isLong = turning == Turning::LongEdge;
      SCOPED_TRACE(testing::Message() << row.front.right.count << " " << row.front.down.count
                                      << ", " << row.back.right.count << " " << row.back.down.count
                                      << (isLong ? " long edge" : " short edge"));
      showMarks(previewOf(row.front, row.back, turning));
      const double right = toPixels(static_cast<int>(row.front.right.count));
      const double down = toPixels(static_cast<int>(row.front.down.count));
      const double backRight = toPixels(static_cast<int>(row.back.right.count));
      const double backDown = toPixels(static_cast<int>(row.back.down.count));
      expectAt(boxOf(kFrontInk, page(PreviewLayout::Front)),
               within(page(PreviewLayout::Front), kFrontBlock, right, down), 0.5);
      expectAt(boxOf(kBackInk, page(PreviewLayout::Back)),
               within(page(PreviewLayout::Back), kBackBlock, backRight, backDown), 0.5);
      const PixelRectangle &both = page(PreviewLayout::AgainstLight);
      expectAt(boxOf(kBackInk, both), within(both, kBackBlock, backRight, backDown), 0.5);
      const PixelRectangle through = within(both, mirrored(kFrontBlock, both, isLong),
                                            isLong ? -right : right, isLong ? down : -down);
      const PixelRectangle inner = {std::ceil(through.x) + 1, std::ceil(through.y) + 1,
                                    through.width - 3, through.height - 3};
      EXPECT_EQ(count(inner, kFrontThroughPaper), static_cast<int>(inner.width * inner.height));
    }
}

TEST_F(PagesInThePicture, NothingOfAPageIsDrawnOutsideThePaper) {
  const Preview preview = previewOf({{200}, {-200}}, {{-200}, {200}});
  show(preview, blank(), blank());
  const std::vector<Rgb> before = pixels();
  const Side full = sideWith({0, 0, 10000, 10000}, kFrontInk);
  show(preview, full, full);
  const std::vector<Rgb> after = pixels();
  int inside = 0, outside = 0;
  std::size_t i = 0;
  for (int y = 0; y < whole().height; y++)
    for (int x = 0; x < whole().width; x++, i++) {
      bool isOnPage = false;
      for (const PagePlace &place : layout_.pages)
        isOnPage = isOnPage || place.page.contains({x * 1.0, y * 1.0});
      if (before[i] != after[i])
        (isOnPage ? inside : outside)++;
    }
  EXPECT_GT(inside, 1000);
  EXPECT_EQ(outside, 0);
}

TEST_F(PagesInThePicture, WhatCannotBePrintedIsHatched) {
  const Preview preview = previewOf({{100}, {0}}, {});
  showMarks(preview);
  const PixelRectangle lost = layout_.onPage(PreviewLayout::Front, preview.front.lost.at(0));
  EXPECT_GT(count(lost, kLightPreview.lost), lost.width * lost.height / 8);
  EXPECT_EQ(count(page(PreviewLayout::Back), kLightPreview.lost), 0);
}

TEST_F(PagesInThePicture, ASideThatIsNotThereIsBlankPaper) {
  show(previewOf({}, {}), sideWith(kFrontBlock, kFrontInk), nullptr);
  PixelRectangle inner = page(PreviewLayout::Back);
  inner = {inner.x + 5, inner.y + 5, inner.width - 10, inner.height - 10}; // without outlines
  EXPECT_EQ(ink(inner), 0);
  EXPECT_GT(count(page(PreviewLayout::Front), kFrontInk), 0);
}

TEST_F(PagesInThePicture, ASideThatIsNotThereYetHasASamplePage) {
  const PixelRectangle &back = page(PreviewLayout::Back);
  const auto inkOfBack = [&] { return back.width * back.height - count(back, kWhite); };
  show(previewOf({}, {}), blank(), blank());
  const double blankBack = inkOfBack();
  [view_ showSheet:std::nullopt named:""];
  look();
  const double sample = inkOfBack();
  ASSERT_GT(sample, blankBack);
  [view_ showSheet:SheetSideImages{blank(), nullptr, true, false} named:""];
  look();
  EXPECT_EQ(inkOfBack(), sample);
}

TEST_F(PagesInThePicture, WithoutASheetThereAreSamplePages) {
  [view_ showPreview:previewOf({{10}, {0}}, {})];
  look();
  const std::vector<Rgb> sample = pixels();
  showMarks(previewOf({{10}, {0}}, {}));
  EXPECT_NE(pixels(), sample);
  [view_ showSheet:std::nullopt named:""];
  look();
  EXPECT_EQ(pixels(), sample);
}

TEST_F(PagesInThePicture, ASmallerPageIsInTheMiddleOfTheSheet) {
  const Side half = sideWith({0, 0, 10000, 10000}, kFrontInk, 0.5);
  show(previewOf({}, {}), half, nullptr);
  const PixelRectangle &sheet = page(PreviewLayout::Front);
  expectAt(boxOf(kFrontInk, sheet),
           within(sheet, {sheet.width / 4, sheet.height / 4, sheet.width / 2, sheet.height / 2}),
           1);
}

TEST_F(PagesInThePicture, AnImageInAnotherResolutionHasTheSameSize) {
  PageInk fine = *sideWith({40, 60, 18, 12}, kFrontInk, 2);
  fine.pageWidth = {595};
  fine.pageHeight = {842};
  show(previewOf({}, {}), std::make_shared<const PageInk>(fine), nullptr);
  expectAt(boxOf(kFrontInk, page(PreviewLayout::Front)),
           within(page(PreviewLayout::Front), kFrontBlock), 1);
}

TEST_F(PagesInThePicture, PrintedOnOneSideThereIsNoBack) {
  showMarks(previewOf({}, {}, Turning::OneSided));
  EXPECT_GT(count(page(PreviewLayout::Front), kFrontInk), 0);
  EXPECT_EQ(count(whole(), kBackInk), 0);
}

TEST_F(PagesInThePicture, AreRedrawnOnlyWhenTheyChange) {
  const Side front = sideWith(kFrontBlock, kFrontInk), other = blank();
  show(previewOf({}, {}), front, nullptr);
  EXPECT_FALSE([view_ needsDisplay]);
  [view_ showSheet:SheetSideImages{front, nullptr} named:"Sheet 1 of 2"];
  EXPECT_FALSE([view_ needsDisplay]);
  [view_ showSheet:SheetSideImages{front, other} named:"Sheet 1 of 2"];
  EXPECT_TRUE([view_ needsDisplay]);
}

TEST_F(PagesInThePicture, TheDescriptionBeginsWithTheSheet) {
  [view_ showPreview:previewOf({{1}, {0}}, {{1}, {0}})];
  [view_ showSheet:std::nullopt named:"Sheet 1 of 2 (pages 1 and 2)"];
  EXPECT_EQ(toText([view_ accessibilityLabel]).rfind("Sheet 1 of 2 (pages 1 and 2)\nEach side", 0),
            0U)
      << toText([view_ accessibilityLabel]);
}

class PagesInADarkWindow : public PagesInThePicture {
protected:
  void SetUp() override {
    before_ = [[GSTheme theme] retain];
    installTheme(Appearance::Dark);
    PagesInThePicture::SetUp();
  }
  void TearDown() override {
    PagesInThePicture::TearDown();
    [GSTheme setTheme:before_];
    [before_ release];
  }

private:
  GSTheme *before_ = nil;
};

TEST_F(PagesInADarkWindow, LookLikePaper) {
  showMarks(previewOf({}, {}));
  expectAt(boxOf(kFrontInk, page(PreviewLayout::Front)),
           within(page(PreviewLayout::Front), kFrontBlock), 0);
  expectAt(boxOf(kBackInk, page(PreviewLayout::Back)),
           within(page(PreviewLayout::Back), kBackBlock), 0);
  PixelRectangle paper = page(PreviewLayout::Front);
  paper = {paper.x + 5, paper.y + 40, paper.width - 10, paper.height - 45};
  EXPECT_EQ(count(paper, kDarkPaper.paper), static_cast<int>(paper.width * paper.height));
}

TEST_F(PagesInADarkWindow, HaveLinesThatStandOutFromPaper) {
  const Preview preview = previewOf({{100}, {0}}, {});
  showMarks(preview);
  const PixelRectangle lost = layout_.onPage(PreviewLayout::Front, preview.front.lost.at(0));
  EXPECT_GT(count(lost, kLightPreview.lost), lost.width * lost.height / 8);
  EXPECT_GT(count(page(PreviewLayout::Front), kLightPreview.front), 100);
  EXPECT_GT(count(page(PreviewLayout::Back), kLightPreview.back), 100);
  const PixelRectangle &both = page(PreviewLayout::AgainstLight);
  EXPECT_GT(count({both.right() - 3, both.y, 4, both.height}, kLightPreview.text), both.height);
  EXPECT_GT(count(layout_.pages[PreviewLayout::Front].title, kDarkPreview.front), 20);
}

} // namespace
