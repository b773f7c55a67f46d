#import "KeyScrollView.h"

#import "Theme.h"

#include <gtest/gtest.h>

using namespace imageposition;

namespace {

class ScrolledRows : public testing::Test {
protected:
  static void SetUpTestSuite() { installTheme(Appearance::Light); }

  void SetUp() override {
    window_ = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, 200, 200)
                                          styleMask:NSTitledWindowMask
                                            backing:NSBackingStoreBuffered
                                              defer:NO];
    [window_ setReleasedWhenClosed:NO];
    scroll_ = [[[KeyScrollView alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)] autorelease];
    [[window_ contentView] addSubview:scroll_];
    [scroll_ showRows:[[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 180, 1000)] autorelease]];
    [window_ orderFront:nil];
    [window_ display];
  }

  void TearDown() override {
    [window_ close];
    [window_ release];
  }

  /// How many rows of pixels of the scroller have another colour than its upper edge.
  int rowsOfKnob() {
    NSScroller *const scroller = [scroll_ verticalScroller];
    [scroller lockFocus];
    NSBitmapImageRep *const picture =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[scroller bounds]] autorelease];
    [scroller unlockFocus];
    const NSInteger middle = [picture pixelsWide] / 2;
    NSColor *const ground = [picture colorAtX:0 y:0];
    int rows = 0;
    for (NSInteger y = 0; y < [picture pixelsHigh]; y++)
      rows += [[picture colorAtX:middle y:y] isEqual:ground] ? 0 : 1;
    return rows;
  }

  NSWindow *window_ = nil;
  KeyScrollView *scroll_ = nil;
};

TEST_F(ScrolledRows, LeaveNoTraceOfTheKnobWhereItWas) {
  const int before = rowsOfKnob();
  ASSERT_GT(before, 10);
  for (const CGFloat top : {300.0, 100.0, 700.0}) {
    [[scroll_ contentView] scrollToPoint:NSMakePoint(0, top)];
    [scroll_ reflectScrolledClipView:[scroll_ contentView]];
    [window_ displayIfNeeded];
    EXPECT_NEAR(rowsOfKnob(), before, 2) << top;
  }
}

} // namespace
