#import "SheetBar.h"

#import "TextBridge.h"
#import "TurnedSheets.h"

#include <gtest/gtest.h>

namespace {

using namespace imageposition;
using imageposition::test::documentWith;

NSEvent *keyEvent(unichar key) {
  NSString *const character = [NSString stringWithCharacters:&key length:1];
  return [NSEvent keyEventWithType:NSKeyDown
                          location:NSZeroPoint
                     modifierFlags:0
                         timestamp:0
                      windowNumber:0
                           context:nil
                        characters:character
       charactersIgnoringModifiers:character
                         isARepeat:NO
                           keyCode:0];
}

class SheetControls : public testing::Test {
protected:
  void SetUp() override {
    turner_ = [[SheetTurner alloc] init];
    turner_->sheets = &sheets_;
    bar_ = [[SheetBar alloc] initWithImages:images_ target:turner_];
    [bar_ setFrameSize:NSMakeSize(400, 24)];
  }
  void TearDown() override {
    [bar_ release];
    [turner_ release];
  }

  void show(std::optional<DocumentPages> pages) {
    images_.show(documentWith(std::move(pages)));
    [bar_ refresh];
  }
  void showSheet(int sheet) {
    images_.turnTo(sheet);
    [bar_ refresh];
  }
  std::string text() const {
    std::string found;
    for (NSUInteger i = 0; i < [[bar_ subviews] count]; i++)
      if ([[[bar_ subviews] objectAtIndex:i] isKindOfClass:[NSTextField class]])
        found += toText([[[bar_ subviews] objectAtIndex:i] stringValue]);
    return found;
  }

  SheetImages images_{[] {}};
  const imageposition::test::TurnedSheets sheets_{images_};
  SheetTurner *turner_ = nil;
  SheetBar *bar_ = nil;
};

TEST_F(SheetControls, SayWhichPagesAreOnTheSheet) {
  [bar_ refresh];
  EXPECT_EQ(text(), "");
  show(std::nullopt);
  EXPECT_EQ(text(), "Loading the pages…");
  show(DocumentPages{7, 1, {}});
  EXPECT_EQ(text(), "Sheet 1 of 4 (pages 1 and 2)");
  showSheet(3);
  EXPECT_EQ(text(), "Sheet 4 of 4 (page 7)");
  show(DocumentPages{20, 2, {}});
  showSheet(1);
  EXPECT_EQ(text(), "Sheet 2 of 5 (pages 5-8)");
  images_.show(std::nullopt);
  [bar_ refresh];
  EXPECT_EQ(text(), "");
}

TEST_F(SheetControls, EndAtTheFirstAndTheLastSheet) {
  show(DocumentPages{5, 1, {}});
  const struct {
    int sheet;
    bool hasPrevious, hasNext;
  } rows[] = {{0, false, true}, {1, true, true}, {2, true, false}};
  for (const auto &row : rows) {
    showSheet(row.sheet);
    EXPECT_EQ([[bar_ previousButton] isEnabled], row.hasPrevious) << row.sheet;
    EXPECT_EQ([[bar_ nextButton] isEnabled], row.hasNext) << row.sheet;
  }
}

TEST_F(SheetControls, HaveNoArrowsForASingleSheet) {
  show(DocumentPages{3, 1, {}});
  EXPECT_FALSE([[bar_ previousButton] isHidden]);
  EXPECT_FALSE([[bar_ nextButton] isHidden]);
  show(DocumentPages{2, 1, {}});
  EXPECT_TRUE([[bar_ previousButton] isHidden]);
  EXPECT_TRUE([[bar_ nextButton] isHidden]);
  EXPECT_EQ(text(), "Sheet 1 of 1 (pages 1 and 2)");
}

TEST_F(SheetControls, TurnByTheirButtons) {
  show(DocumentPages{5, 1, {}});
  [[bar_ nextButton] performClick:nil];
  EXPECT_EQ(images_.sheet(), 1);
  [bar_ refresh];
  [[bar_ previousButton] performClick:nil];
  EXPECT_EQ(images_.sheet(), 0);
}

TEST_F(SheetControls, TurnByTheKeysThatAButtonPassesOn) {
  const struct {
    unichar key;
    int from, to;
  } rows[] = {
      {NSRightArrowFunctionKey, 0, 1}, {NSPageDownFunctionKey, 1, 2},
      {NSRightArrowFunctionKey, 3, 3}, {NSLeftArrowFunctionKey, 2, 1},
      {NSPageUpFunctionKey, 3, 2},     {NSLeftArrowFunctionKey, 0, 0},
      {NSEndFunctionKey, 1, 3},        {NSHomeFunctionKey, 2, 0},
      {NSUpArrowFunctionKey, 1, 1},    {'7', 1, 1},
  };
  show(DocumentPages{8, 1, {}});
  for (NSButton *button : {[bar_ previousButton], [bar_ nextButton]})
    for (const auto &row : rows) {
      showSheet(row.from);
      [button keyDown:keyEvent(row.key)];
      EXPECT_EQ(images_.sheet(), row.to) << std::hex << row.key << " from " << row.from;
    }
}

TEST_F(SheetControls, LeaveOutThePagesWhereThereIsLittleRoom) {
  show(DocumentPages{5, 1, {}});
  [bar_ setFrameSize:NSMakeSize(180, 24)];
  EXPECT_EQ(text(), "Sheet 1 of 3");
  [bar_ setFrameSize:NSMakeSize(400, 24)];
  EXPECT_EQ(text(), "Sheet 1 of 3 (pages 1 and 2)");
}

TEST_F(SheetControls, CutTheirTextWhereThereIsHardlyAnyRoom) {
  show(DocumentPages{5, 1, {}});
  for (const CGFloat width : {90.0, 70.0, 10.0, 0.0}) {
    [bar_ setFrameSize:NSMakeSize(width, 24)];
    EXPECT_NE(text().find("…"), std::string::npos) << width;
  }
}

} // namespace
