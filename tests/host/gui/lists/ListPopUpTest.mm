#import "ListPopUp.h"

#import "TextBridge.h"
#import "Theme.h"

#include <gtest/gtest.h>

using namespace imageposition;

namespace {

class ClosedPopUp : public testing::Test {
protected:
  static void SetUpTestSuite() { installTheme(Appearance::Light); }

  void SetUp() override {
    window_ = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, 300, 60)
                                          styleMask:NSTitledWindowMask
                                            backing:NSBackingStoreBuffered
                                              defer:NO];
    [window_ setReleasedWhenClosed:NO];
    popUp_ = [[[ListPopUp alloc] initWithFrame:NSMakeRect(10, 10, 280, 24)
                                     pullsDown:NO] autorelease];
    [[window_ contentView] addSubview:popUp_];
    [window_ orderFront:nil];
  }

  void TearDown() override {
    [window_ close];
    [window_ release];
  }

  NSData *pictureOf(const std::string &title) {
    [popUp_ removeAllItems];
    [popUp_ addItemWithTitle:toString(title)];
    [window_ display];
    [popUp_ lockFocus];
    NSBitmapImageRep *const picture =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[popUp_ bounds]] autorelease];
    [popUp_ unlockFocus];
    return [NSData dataWithBytes:[picture bitmapData]
                          length:[picture bytesPerRow] * [picture pixelsHigh]];
  }

  NSWindow *window_ = nil;
  ListPopUp *popUp_ = nil;
};

TEST_F(ClosedPopUp, ShowsATitleInAnyScript) {
  // Without the characters, all of them are the same box.
  EXPECT_FALSE([pictureOf("日本") isEqualToData:pictureOf("会議")]);
  EXPECT_TRUE([pictureOf("日本") isEqualToData:pictureOf("日本")]);
}

TEST_F(ClosedPopUp, KeepsItsFontForOtherTitles) {
  NSFont *const font = [popUp_ font];
  pictureOf("日本");
  EXPECT_TRUE([[popUp_ font] isEqual:font]);
}

} // namespace
