#import "MnemonicControls.h"

#import "Checkbox.h"
#import "Labels.h"
#include "Mnemonic.hpp"
#import "TextBridge.h"

#include <algorithm>
#include <cmath>

using imageposition::isCheckbox;
using imageposition::MnemonicText;
using imageposition::toString;

namespace {

/// The line below one letter of a title.
struct Underline {
  CGFloat left;
  CGFloat width; ///< 0 without a line.
};

Underline underlineOf(const MnemonicText &mnemonic, NSFont *font) {
  if (mnemonic.key.empty())
    return {0, 0};
  const auto width = [=](const std::string &text) {
    return text.empty() ? 0 : [font widthOfString:toString(text)];
  };
  // Includes the key: AppKit does not measure a trailing space.
  const std::string upToKey = mnemonic.text.substr(0, mnemonic.keyAt) + mnemonic.key;
  return {width(upToKey) - width(mnemonic.key), width(mnemonic.key)};
}

/// On whole pixels, one below the baseline of a title that fills `text` in a flipped view.
void drawUnderline(const Underline &line, NSRect text, NSFont *font, NSColor *color) {
  if (line.width <= 0)
    return;
  const CGFloat baseline = NSMinY(text) + [font ascender];
  const CGFloat thickness = std::max<CGFloat>(1, std::round([font pointSize] / 14));
  [color set];
  NSRectFill(NSMakeRect(std::round(NSMinX(text) + line.left), std::round(baseline) + 1,
                        std::max<CGFloat>(3, std::round(line.width)), thickness));
}

} // namespace

@interface MnemonicTitle : NSTextField {
  Underline underline;
}
- (void)setUnderline:(Underline)theUnderline;
@end

@implementation MnemonicTitle

- (void)setUnderline:(Underline)theUnderline {
  underline = theUnderline;
}

- (void)drawRect:(NSRect)dirty {
  [super drawRect:dirty];
  NSTextFieldCell *const cell = [self cell];
  drawUnderline(underline, [cell titleRectForBounds:[self bounds]], [cell font], [cell textColor]);
}

@end

@interface MnemonicButtonCell : NSButtonCell {
  Underline underline;
}
- (void)setUnderline:(Underline)theUnderline;
@end

@implementation MnemonicButtonCell

- (void)setUnderline:(Underline)theUnderline {
  underline = theUnderline;
}

- (NSRect)drawTitle:(NSAttributedString *)title withFrame:(NSRect)frame inView:(NSView *)view {
  const NSRect drawn = [super drawTitle:title withFrame:frame inView:view];
  const NSSize size = [title size];
  NSRect text = frame;
  text.origin.x +=
      isCheckbox(self) ? 3 : (NSWidth(frame) - size.width) / 2; // as the theme moves it
  text.origin.y = NSMidY(frame) - size.height / 2;
  drawUnderline(underline, text, [self font], [self textColor]);
  return drawn;
}

@end

@interface MnemonicButton : NSButton
@end

@implementation MnemonicButton

+ (Class)cellClass {
  return [MnemonicButtonCell class];
}

@end

namespace imageposition {

namespace {

void setMarkedTitle(NSButton *button, const std::string &marked) {
  const MnemonicText mnemonic = readMnemonic(marked);
  [button setTitle:toString(mnemonic.text)];
  [(MnemonicButtonCell *)[button cell] setUnderline:underlineOf(mnemonic, [button font])];
}

NSButton *newButton(const std::string &marked, id target, SEL action) {
  NSButton *const button = [[[MnemonicButton alloc] initWithFrame:NSZeroRect] autorelease];
  setMarkedTitle(button, marked);
  [button setTarget:target];
  [button setAction:action];
  return button;
}

} // namespace

NSTextField *makeTitle(const std::string &marked) {
  const MnemonicText mnemonic = readMnemonic(marked);
  MnemonicTitle *const title = [[[MnemonicTitle alloc] initWithFrame:NSZeroRect] autorelease];
  makeIntoLabel(title, mnemonic.text, false);
  [title setUnderline:underlineOf(mnemonic, [title font])];
  return title;
}

NSButton *makeButton(const std::string &marked, id target, SEL action) {
  NSButton *const button = newButton(marked, target, action);
  [button setBezelStyle:NSRoundedBezelStyle];
  retitle(button, marked);
  return button;
}

void retitle(NSButton *button, const std::string &marked) {
  setMarkedTitle(button, marked);
  [button sizeToFit];
  const CGFloat width = std::max(kButtonWidth, NSWidth([button frame]) + 16);
  [button setFrameSize:NSMakeSize(width, kButtonHeight)];
}

NSButton *makeSwitch(const std::string &marked, id target, SEL action) {
  NSButton *const button = newButton(marked, target, action);
  [button setButtonType:NSSwitchButton];
  [button sizeToFit];
  [button setFrameSize:NSMakeSize(NSWidth([button frame]) + 12, kButtonHeight)];
  return button;
}

} // namespace imageposition
