// The enlarged sheet, by its pixels.
#import "SheetView.h"

#import "KeyWindow.h"
#import "PreviewDrawing.h"
#include "PreviewRequests.hpp"
#import "TurnedSheets.h"
#import "ViewOnScreen.h"

#include <gtest/gtest.h>

#include <vector>

/// Counts how often its window would be closed.
@interface DismissalCounter : NSObject {
@public
  int dismissals;
}
@end

@implementation DismissalCounter

- (void)dismiss {
  dismissals++;
}

@end

namespace {

using namespace imageposition;
using imageposition::test::documentWith;
using imageposition::test::previewOf;

class EnlargedSheet : public imageposition::test::ViewOnScreen {
protected:
  void SetUp() override {
    turner_ = [[SheetTurner alloc] init];
    turner_->sheets = &sheets_;
    images_.show(documentWith(DocumentPages{7, 1, {}}));
  }
  void TearDown() override {
    ViewOnScreen::TearDown();
    [turner_ release];
  }

  void openSheet(double width, double height, const Preview &preview) {
    view_ = [[SheetView alloc] initWithFrame:NSMakeRect(0, 0, width, height)
                                      images:images_
                                     preview:preview
                                      target:turner_];
    open(view_);
    look();
  }

  /// The paper, by the long lines around it.
  PixelRectangle paper() const {
    std::vector<int> columns, rows;
    const PixelRectangle all = whole();
    constexpr Rgb kUnderGridLine = 0x606880;
    const auto isLong = [&](const PixelRectangle &line) {
      const int outline = count(line, kLightPreview.outline), covered = count(line, kUnderGridLine);
      return std::max(outline, covered) > [view_ pixelsPerPoint] * 200;
    };
    for (int x = 0; x < all.width; x++)
      if (isLong({x * 1.0, 0, 1, all.height}))
        columns.push_back(x);
    for (int y = 0; y < all.height; y++)
      if (isLong({0, y * 1.0, all.width, 1}))
        rows.push_back(y);
    if (columns.empty() || rows.empty())
      return {};
    return {columns.front() * 1.0, rows.front() * 1.0, columns.back() - columns.front() + 1.0,
            rows.back() - rows.front() + 1.0};
  }
  double pixelsPerMillimetre() const { return [view_ pixelsPerPoint] * 72 / 25.4; }

  /// The pixels in a row of the sheet's blank margin that are part of a line.
  std::vector<int> linesInMargin() const {
    const PixelRectangle sheet = paper();
    std::vector<int> lines;
    for (int x = static_cast<int>(sheet.x) + 1; x < sheet.right() - 1; x++)
      if (redOf(at(x, static_cast<int>(sheet.y) + 4)) < 250)
        lines.push_back(x);
    return lines;
  }

  void click(double x, double y) {
    const NSPoint inWindow = [view_ convertPoint:NSMakePoint(x, y) toView:nil];
    for (const NSEventType type : {NSLeftMouseDown, NSLeftMouseUp}) {
      NSEvent *const event = [NSEvent mouseEventWithType:type
                                                location:inWindow
                                           modifierFlags:0
                                               timestamp:0
                                            windowNumber:[window_ windowNumber]
                                                 context:nil
                                             eventNumber:0
                                              clickCount:1
                                                pressure:1];
      if (type == NSLeftMouseDown)
        [view_ mouseDown:event];
      else
        [view_ mouseUp:event];
    }
  }

  SheetImages images_{[] {}};
  const imageposition::test::TurnedSheets sheets_{images_};
  SheetTurner *turner_ = nil;
  SheetView *view_ = nil; // owned by its window
};

TEST_F(EnlargedSheet, FitsWithRoomForTheNumbers) {
  const struct { double width, height; } rows[] = {{600, 700}, {300, 700}, {900, 400}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.width);
    openSheet(row.width, row.height, previewOf({}, {}));
    const PixelRectangle sheet = paper();
    EXPECT_GE(sheet.x, 24);
    EXPECT_GE(sheet.y, previewLineHeight());
    EXPECT_LE(sheet.right(), row.width);
    EXPECT_LE(sheet.bottom(), row.height);
    EXPECT_NEAR(sheet.width / sheet.height, 595.0 / 842, 0.01);
    // One of its dimensions takes nearly all of the room.
    EXPECT_TRUE(sheet.height > row.height - 40 || sheet.width > row.width - 90)
        << sheet.width << " " << sheet.height;
    ViewOnScreen::TearDown();
    window_ = nil;
    bitmap_ = nil;
  }
}

TEST_F(EnlargedSheet, HasALineEachCentimetreWhereMillimetresAreTooNarrow) {
  openSheet(600, 700, previewOf({}, {}));
  ASSERT_LT(pixelsPerMillimetre(), 4);
  const std::vector<int> lines = linesInMargin();
  ASSERT_EQ(lines.size(), 20U); // A4 is 210 mm wide
  for (std::size_t i = 0; i < lines.size(); i++)
    EXPECT_NEAR(lines[i], paper().x + 10 * (static_cast<double>(i) + 1) * pixelsPerMillimetre(), 1);
}

TEST_F(EnlargedSheet, HasALineEachMillimetreWhereThereIsRoom) {
  PreviewRequest card;
  card.page = {{298}, {420}, {{12}, {12}, {286}, {408}}, true, true}; // 105 mm wide
  openSheet(620, 800, makePreview(card));
  ASSERT_GE(pixelsPerMillimetre(), 4);
  const std::vector<int> lines = linesInMargin();
  ASSERT_EQ(lines.size(), 104U); // the last one would be on the edge
  const int row = static_cast<int>(paper().y) + 4;
  for (std::size_t i = 0; i < lines.size(); i++) {
    const double millimetre = static_cast<double>(i) + 1;
    EXPECT_NEAR(lines[i], paper().x + millimetre * pixelsPerMillimetre(), 1);
    const bool isCentimetre = (i + 1) % 10 == 0;
    EXPECT_EQ(redOf(at(lines[i], row)) < 215, isCentimetre) << millimetre;
  }
}

TEST_F(EnlargedSheet, HasNumbersEachTwoCentimetres) {
  openSheet(600, 700, previewOf({}, {}));
  const PixelRectangle sheet = paper();
  const auto hasNumber = [&](double x, double y) {
    return count({x - 7, y - 4, 14, 8}, kLightPreview.secondaryText) > 0;
  };
  for (int millimetre = 0; millimetre <= 200; millimetre += 10)
    EXPECT_EQ(hasNumber(sheet.x + millimetre * pixelsPerMillimetre(), sheet.y - 8),
              millimetre % 20 == 0)
        << millimetre;
  for (int millimetre = 10; millimetre <= 290; millimetre += 10)
    EXPECT_EQ(hasNumber(sheet.x - 11, sheet.y + millimetre * pixelsPerMillimetre()),
              millimetre % 20 == 0)
        << millimetre;
}

TEST_F(EnlargedSheet, HasFewerNumbersWhereTheyWouldTouch) {
  openSheet(300, 320, previewOf({}, {}));
  const PixelRectangle sheet = paper();
  const Rgb ground = at(0, 0);
  constexpr int kApart = 5; // more than the digits of a number
  std::vector<int> numbers; // where they end
  for (int x = static_cast<int>(sheet.x) - 10; x < sheet.right() + 10; x++)
    for (int y = static_cast<int>(sheet.y) - 10; y < sheet.y - 3; y++)
      if (at(x, y) != ground) {
        if (numbers.empty() || x - numbers.back() > kApart)
          numbers.push_back(x);
        numbers.back() = x;
      }
  EXPECT_EQ(numbers.size(), 5U); // from 0 to 200
}

TEST_F(EnlargedSheet, ShowsWhetherItHasTheFocus) {
  openSheet(500, 600, previewOf({}, {}));
  const PixelRectangle sheet = paper();
  const auto inkAround = [&] { return ink({sheet.x + 50, sheet.bottom(), 100, 2}); };
  [window_ makeFirstResponder:nil];
  look();
  const double before = inkAround();
  [window_ makeFirstResponder:view_];
  EXPECT_TRUE([view_ needsDisplay]);
  look();
  EXPECT_GT(inkAround(), before + 2000);
  [window_ makeFirstResponder:nil];
  look();
  EXPECT_EQ(inkAround(), before);
}

TEST_F(EnlargedSheet, ShowsThePlaceThatIsChosen) {
  openSheet(500, 600, previewOf({}, {}));
  EXPECT_EQ(count(paper(), kLightPreview.back), 0);
  [view_ showPlace:PreviewLayout::Back];
  look();
  EXPECT_GT(count(paper(), kLightPreview.back), 50);
  EXPECT_EQ(count(paper(), kLightPreview.text), 0);
  [view_ showPlace:PreviewLayout::AgainstLight];
  look();
  EXPECT_GT(count(whole(), kLightPreview.text), 500) << "the edge about which it is turned";
}

TEST_F(EnlargedSheet, TurnsByKeys) {
  openSheet(300, 400, previewOf({}, {}));
  EXPECT_TRUE([view_ acceptsFirstResponder]);
  const struct {
    unichar key;
    int from, to;
  } rows[] = {{NSRightArrowFunctionKey, 0, 1}, {NSPageDownFunctionKey, 2, 3},
              {NSRightArrowFunctionKey, 3, 3}, {NSLeftArrowFunctionKey, 2, 1},
              {NSPageUpFunctionKey, 1, 0},     {NSEndFunctionKey, 0, 3},
              {NSHomeFunctionKey, 3, 0}};
  for (const auto &row : rows) {
    images_.turnTo(row.from);
    NSString *const character = [NSString stringWithCharacters:&row.key length:1];
    [view_ keyDown:[NSEvent keyEventWithType:NSKeyDown
                                          location:NSZeroPoint
                                     modifierFlags:0
                                         timestamp:0
                                      windowNumber:[window_ windowNumber]
                                           context:nil
                                        characters:character
                       charactersIgnoringModifiers:character
                                         isARepeat:NO
                                           keyCode:0]];
    EXPECT_EQ(images_.sheet(), row.to) << std::hex << row.key;
  }
}

TEST_F(EnlargedSheet, IsClosedByAClickOnTheSheetOnly) {
  openSheet(600, 700, previewOf({}, {}));
  DismissalCounter *const counter = [[[DismissalCounter alloc] init] autorelease];
  [window_ setDelegate:(id)counter];
  const PixelRectangle sheet = paper();
  click(5, 5);
  click(sheet.x - 5, sheet.y + 50);
  EXPECT_EQ(counter->dismissals, 0);
  click(sheet.x + sheet.width / 2, sheet.y + sheet.height / 2);
  EXPECT_EQ(counter->dismissals, 1);
  [window_ setDelegate:nil];
}

} // namespace
