#import "Theme.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSTheme.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

using namespace imageposition;

/// An invisible view that holds the focus.
@interface FocusHolder : NSView
@end

@implementation FocusHolder

- (BOOL)acceptsFirstResponder {
  return YES;
}

@end

namespace {

using Pixel = std::array<double, 3>; // red, green and blue, each 0 to 1

/// As defined by WCAG 2.
double luminance(const Pixel &pixel) {
  const auto linear = [](double c) {
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(pixel[0]) + 0.7152 * linear(pixel[1]) + 0.0722 * linear(pixel[2]);
}

double contrast(const Pixel &one, const Pixel &other) {
  const double a = luminance(one);
  const double b = luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

bool differ(const Pixel &one, const Pixel &other) {
  for (int i = 0; i < 3; i++)
    if (std::abs(one[i] - other[i]) > 0.02)
      return true;
  return false;
}

/// The pixels of a window's content, row by row.
struct Picture {
  long width = 0;
  std::vector<Pixel> pixels;

  const Pixel &corner() const { return pixels.front(); }
  double largestContrastTo(const Pixel &ground) const {
    double largest = 1;
    for (const Pixel &pixel : pixels)
      largest = std::max(largest, contrast(pixel, ground));
    return largest;
  }
};

/// Describes the pixels that differ between two pictures of the same size.
struct Difference {
  long count = 0;
  double contrast = 1; ///< The largest between before and after.
};

Difference difference(const Picture &before, const Picture &after) {
  Difference found;
  for (std::size_t i = 0; i < std::min(before.pixels.size(), after.pixels.size()); i++) {
    if (!differ(before.pixels[i], after.pixels[i]))
      continue;
    found.count++;
    found.contrast = std::max(found.contrast, contrast(before.pixels[i], after.pixels[i]));
  }
  return found;
}

class Theme : public testing::TestWithParam<Appearance> {
protected:
  void SetUp() override {
    installTheme(GetParam());
    window = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, 240, 80)
                                         styleMask:NSTitledWindowMask
                                           backing:NSBackingStoreBuffered
                                             defer:NO];
    [window setReleasedWhenClosed:NO];
    elsewhere = [[[FocusHolder alloc] initWithFrame:NSZeroRect] autorelease];
    [[window contentView] addSubview:elsewhere];
    [window makeKeyAndOrderFront:nil];
    [window makeFirstResponder:elsewhere];
  }

  void TearDown() override {
    [window close];
    [window release];
  }

  template <typename View> View *add(View *view) {
    [view setFrame:NSMakeRect(20, 20, 200, 24)];
    [[window contentView] addSubview:view];
    return [view autorelease];
  }

  NSButton *addButton() {
    NSButton *const button = add([[NSButton alloc] initWithFrame:NSZeroRect]);
    [button setTitle:@"Print"];
    [button setBezelStyle:NSRoundedBezelStyle];
    return button;
  }

  NSButton *addCheckbox() {
    NSButton *const button = addButton();
    [button setButtonType:NSSwitchButton];
    return button;
  }

  NSTextField *addLabel(NSColor *color) {
    NSTextField *const label = add([[NSTextField alloc] initWithFrame:NSZeroRect]);
    [label setEditable:NO];
    [label setBezeled:NO];
    [label setBordered:NO];
    [label setDrawsBackground:NO];
    [label setTextColor:color];
    [label setFont:[NSFont systemFontOfSize:12]];
    [label setStringValue:@"HEIMLICH"];
    return label;
  }

  Picture picture() {
    [window display];
    return shown();
  }

  /// Does not redraw anything.
  Picture shown() {
    NSView *const view = [window contentView];
    [view lockFocus];
    NSBitmapImageRep *const bitmap =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
    [view unlockFocus];
    Picture picture;
    picture.width = [bitmap pixelsWide];
    for (NSInteger y = 0; y < [bitmap pixelsHigh]; y++)
      for (NSInteger x = 0; x < [bitmap pixelsWide]; x++) {
        NSColor *const color = [[bitmap colorAtX:x
                                               y:y] colorUsingColorSpaceName:NSDeviceRGBColorSpace];
        picture.pixels.push_back(
            {[color redComponent], [color greenComponent], [color blueComponent]});
      }
    return picture;
  }

  Difference whenDisabled(NSControl *control) {
    [control setEnabled:YES];
    const Picture enabled = picture();
    [control setEnabled:NO];
    return difference(enabled, picture());
  }

  Difference whenFocused(NSView *view) {
    [window makeFirstResponder:elsewhere];
    const Picture before = picture();
    EXPECT_TRUE([window makeFirstResponder:view]);
    return difference(before, picture());
  }

  NSWindow *window = nil;
  FocusHolder *elsewhere = nil;
};

/// GNUstep rounds at fractional scales. These tests run at several scales, each of which must be
/// set before the application object exists.
const bool isScaled = [] {
  NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
  const char *const scale = std::getenv("PRINT_DIALOG_TEXT_SCALE");
  if (scale != nullptr)
    setTextScale(std::atof(scale));
  [pool release];
  return scale != nullptr;
}();

class ScaledTheme : public Theme {
protected:
  /// The pixel columns at which something other than the background begins.
  static std::vector<long> beginnings(const Picture &picture) {
    std::vector<long> found;
    bool wasGround = true;
    for (long x = 0; x < picture.width; x++) {
      bool isGround = true;
      for (std::size_t i = x; i < picture.pixels.size(); i += picture.width)
        isGround = isGround && !differ(picture.pixels[i], picture.corner());
      if (wasGround && !isGround)
        found.push_back(x);
      wasGround = isGround;
    }
    return found;
  }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Light, Theme, testing::Values(Appearance::Light));
INSTANTIATE_TEST_SUITE_P(Dark, Theme, testing::Values(Appearance::Dark));
INSTANTIATE_TEST_SUITE_P(Light, ScaledTheme, testing::Values(Appearance::Light));
INSTANTIATE_TEST_SUITE_P(Dark, ScaledTheme, testing::Values(Appearance::Dark));

TEST_P(Theme, TheWindowIsAsLightOrDarkAsAsked) {
  const double ground = luminance(picture().corner());
  if (GetParam() == Appearance::Dark)
    EXPECT_LT(ground, 0.1);
  else
    EXPECT_GT(ground, 0.8);
}

TEST_P(Theme, BlackTextOfAPanelIsLegible) {
  const Picture empty = picture();
  addLabel([NSColor blackColor]);
  EXPECT_GE(picture().largestContrastTo(empty.corner()), 7);
}

TEST_P(Theme, LightGrayTextOfAPanelLooksDisabledAndIsLegible) {
  const Picture empty = picture();
  addLabel([NSColor lightGrayColor]);
  const double shown = picture().largestContrastTo(empty.corner());
  EXPECT_GE(shown, 3);
  EXPECT_LT(shown, 4.5);
}

TEST_P(Theme, EveryColourForTextIsLegible) {
  const Pixel ground = picture().corner();
  for (NSColor *const color : {[NSColor controlTextColor],
                               [NSColor textColor],
                               secondaryTextColor(),
                               warningTextColor()}) {
    NSTextField *const label = addLabel(color);
    EXPECT_GE(picture().largestContrastTo(ground), 4.5) << [[color description] UTF8String];
    [label removeFromSuperview];
  }
}

TEST_P(Theme, AButtonsTitleIsLegible) {
  NSButton *const button = addButton();
  [button setTitle:@""];
  const Picture bare = picture();
  [button setTitle:@"HEIMLICH"];
  EXPECT_GE(difference(bare, picture()).contrast, 4.5);
  [window setDefaultButtonCell:[button cell]];
  [button setTitle:@""];
  const Picture bareDefault = picture();
  [button setTitle:@"HEIMLICH"];
  EXPECT_GE(difference(bareDefault, picture()).contrast, 4.5);
}

TEST_P(Theme, TypedTextIsLegible) {
  NSTextField *const field = add([[NSTextField alloc] initWithFrame:NSZeroRect]);
  [field setTextColor:[NSColor blackColor]];
  const Picture empty = picture();
  [field setStringValue:@"HEIMLICH"];
  EXPECT_GE(difference(empty, picture()).contrast, 4.5);
}

TEST_P(Theme, TheDefaultButtonIsDistinct) {
  NSButton *const button = addButton();
  const Picture plain = picture();
  [window setDefaultButtonCell:[button cell]];
  const Difference found = difference(plain, picture());
  EXPECT_GT(found.count, 2000);
  EXPECT_GE(found.contrast, 1.5);
}

TEST_P(Theme, ADisabledStepperLooksDisabled) {
  NSStepper *const stepper = add([[NSStepper alloc] initWithFrame:NSZeroRect]);
  EXPECT_GT(whenDisabled(stepper).count, 100);
}

TEST_P(Theme, OtherDisabledControlsLookDisabled) {
  NSButton *const button = addButton();
  EXPECT_GT(whenDisabled(button).count, 1000);
  [button removeFromSuperview];
  NSButton *const checkbox = addCheckbox();
  EXPECT_GT(whenDisabled(checkbox).count, 100);
  [checkbox removeFromSuperview];
  EXPECT_GT(whenDisabled(add([[NSTextField alloc] initWithFrame:NSZeroRect])).count, 1000);
}

TEST_P(Theme, ATickIsVisible) {
  NSButton *const checkbox = addCheckbox();
  const Picture off = picture();
  [checkbox setState:NSOnState];
  const Difference found = difference(off, picture());
  EXPECT_GT(found.count, 80);
  EXPECT_GE(found.contrast, 3);
}

TEST_P(Theme, TheMarksOfAMenuAreVisible) {
  NSMenu *const menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
  id<NSMenuItem> const item = [menu addItemWithTitle:@"Item" action:nullptr keyEquivalent:@""];
  NSMenuView *const view = add([[NSMenuView alloc] initWithFrame:NSZeroRect]);
  [view setMenu:menu];
  [view sizeToFit];
  const Picture off = picture();
  for (const NSInteger state : {NSOnState, NSMixedState}) {
    [item setState:state];
    const Difference found = difference(off, picture());
    EXPECT_GT(found.count, 10) << state;
    EXPECT_GE(found.contrast, 3) << state;
  }
}

TEST_P(Theme, TheFocusIsVisible) {
  NSButton *const button = addButton();
  EXPECT_GE(whenFocused(button).contrast, 1.5);
  EXPECT_GT(whenFocused(button).count, 300);
  [window setDefaultButtonCell:[button cell]];
  EXPECT_GE(whenFocused(button).contrast, 3) << "default button";
  [window setDefaultButtonCell:nil];
  [button removeFromSuperview];
  NSButton *const checkbox = addCheckbox();
  EXPECT_GE(whenFocused(checkbox).contrast, 3) << "checkbox";
  [checkbox removeFromSuperview];
  NSTextField *const field = add([[NSTextField alloc] initWithFrame:NSZeroRect]);
  EXPECT_GE(whenFocused(field).contrast, 3) << "field";
  EXPECT_GT(whenFocused(field).count, 300) << "field";
}

TEST_P(Theme, TheSystemColoursMatch) {
  NSColor *const color =
      [[NSColor windowBackgroundColor] colorUsingColorSpaceName:NSDeviceRGBColorSpace];
  const Pixel named = {[color redComponent], [color greenComponent], [color blueComponent]};
  EXPECT_FALSE(differ(named, picture().corner()));
}

TEST_P(Theme, StaysWhenAUserDefaultChanges) {
  GSTheme *const before = [GSTheme theme];
  [[NSNotificationCenter defaultCenter] postNotificationName:NSUserDefaultsDidChangeNotification
                                                      object:[NSUserDefaults standardUserDefaults]];
  EXPECT_EQ([GSTheme theme], before);
}

TEST_P(ScaledTheme, RedrawingChangesNothing) {
  NSView *const panel = add([[NSView alloc] initWithFrame:NSZeroRect]);
  [panel setFrame:NSMakeRect(7, 3, 227, 71)];
  std::vector<NSView *> views;
  for (int i = 0; i < 4; i++) {
    NSView *const view = i < 2 ? static_cast<NSView *>(addLabel([NSColor blackColor]))
                               : static_cast<NSView *>(addCheckbox());
    [view setFrame:NSMakeRect(5 + i * 7, 1 + i * 17, 103 + i * 31, 17)];
    [panel addSubview:view];
    views.push_back(view);
  }
  const Picture once = picture();
  for (NSView *const view : views) {
    [view setNeedsDisplay:YES];
    [window displayIfNeeded];
    EXPECT_EQ(difference(once, shown()).count, 0);
  }
}

// GNUstep draws sixteen letters at a time, and positions the next ones by the measured width.
TEST_P(ScaledTheme, LettersAreSpacedAsMeasured) {
  [addLabel([NSColor blackColor]) setStringValue:@"l l l l l l l l l l l l"];
  const std::vector<long> begun = beginnings(picture());
  ASSERT_EQ(begun.size(), 12u);
  const double usual = (begun[7] - begun[0]) / 7.0;
  for (std::size_t i = 1; i < begun.size(); i++)
    EXPECT_NEAR(begun[i] - begun[i - 1], usual, 1.01) << i;
}
