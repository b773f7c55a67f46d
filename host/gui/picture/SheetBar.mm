#import "SheetBar.h"

#import "Labels.h"
#import "MnemonicControls.h"
#include "PagesTexts.hpp"
#include "Phrases.hpp"
#include "PictureTexts.hpp"
#import "TextBridge.h"

#include <algorithm>
#include <cmath>

using namespace imageposition;

namespace imageposition {

namespace {

std::string sheetOfDocument(const SheetImages &images) {
  const SheetOrder &order = images.order();
  switch (images.state()) {
  case SheetImages::State::None:
    return {};
  case SheetImages::State::Failed:
    return messages::pagesNotShown(images.problem());
  default:
    if (order.sheets() == 0)
      return messages::kPagesAreLoaded;
    return messages::sheetOf(images.sheet() + 1, order.sheets(), order.pagesInWords(images.sheet()),
                             order.numberOfPages(images.sheet()) == 1);
  }
}

} // namespace

std::string sheetText(const SheetImages &images) {
  const std::string sheet = sheetOfDocument(images);
  return images.name().empty() || sheet.empty() ? sheet : messages::named(images.name(), sheet);
}

int sheetAfterKey(NSEvent *event, const SheetImages &images) {
  NSString *const characters = [event charactersIgnoringModifiers];
  const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
  switch (key) {
  case NSLeftArrowFunctionKey:
  case NSPageUpFunctionKey:
    return images.sheet() - 1;
  case NSRightArrowFunctionKey:
  case NSPageDownFunctionKey:
    return images.sheet() + 1;
  case NSHomeFunctionKey:
    return 0;
  case NSEndFunctionKey:
    return images.order().sheets() - 1;
  default:
    return images.sheet();
  }
}

int sheetsOfWheel(NSEvent *event) {
  const CGFloat up = [event deltaY];
  return up > 0 ? -1 : up < 0 ? 1 : 0;
}

} // namespace imageposition

namespace {

constexpr CGFloat kArrowWidth = 26;
constexpr CGFloat kGap = 4;

NSButton *makeArrow(const char *arrow, const std::string &meaning, id target, SEL action) {
  NSButton *const button = makeButton(arrow, target, action);
  [button setFrameSize:NSMakeSize(kArrowWidth, kButtonHeight)];
  [button setToolTip:toString(meaning)];
  return button;
}

/// GNUstep paints the control again even if nothing changes.
void enable(NSButton *button, bool isEnabled) {
  if ([button isEnabled] != isEnabled)
    [button setEnabled:isEnabled];
}

} // namespace

@interface SheetBar ()
- (void)showTextIn:(CGFloat)width;
- (void)layOut;
- (void)turn:(id)sender;
@end

@implementation SheetBar

- (id)initWithImages:(const SheetImages &)theImages target:(id<SheetTurning>)theTarget {
  if ((self = [super initWithFrame:NSMakeRect(0, 0, 0, kButtonHeight)]) == nil)
    return nil;
  images = &theImages;
  target = theTarget;
  shownText = new std::string;
  previous = makeArrow("◀", messages::kPreviousSheet, self, @selector(turn:));
  next = makeArrow("▶", messages::kNextSheet, self, @selector(turn:));
  label = makeLabel("");
  for (NSView *view : {(NSView *)previous, (NSView *)next, (NSView *)label})
    [self addSubview:view];
  return self;
}

- (void)dealloc {
  [previous setTarget:nil];
  [next setTarget:nil];
  delete shownText;
  shownText = nullptr;
  [super dealloc];
}

- (NSButton *)previousButton {
  return previous;
}

- (NSButton *)nextButton {
  return next;
}

- (void)setFrameSize:(NSSize)size {
  [super setFrameSize:size];
  if (shownText != nullptr) // not while the superclass initializes
    [self layOut];
}

/// If space is tight, shows the sheet's number without its pages.
- (void)showTextIn:(CGFloat)width {
  showCut(label, *shownText, width);
  const int sheets = images->order().sheets();
  if ([label toolTip] == nil || sheets == 0)
    return;
  showCut(label, messages::sheetOf(images->sheet() + 1, sheets, {}, false), width);
  [label setToolTip:toString(*shownText)];
}

- (void)layOut {
  [previous setFrameOrigin:NSMakePoint(0, 0)];
  [next setFrameOrigin:NSMakePoint(kArrowWidth + kGap, 0)];
  const bool hasArrows = ![previous isHidden];
  const CGFloat left = hasArrows ? NSMaxX([next frame]) + kGap + 2 : 0;
  [self showTextIn:std::max<CGFloat>(NSWidth([self bounds]) - left, 0)];
  [label
      setFrameOrigin:NSMakePoint(left, std::round((kButtonHeight - NSHeight([label frame])) / 2))];
  [self setNeedsDisplay:YES];
}

/// Called at each step of an offset, too: must not repaint what has not changed.
- (void)refresh {
  const std::string text = sheetText(*images);
  const int sheets = images->order().sheets();
  const bool isSame = text == *shownText && [previous isHidden] == (sheets < 2);
  *shownText = text;
  for (NSButton *button : {previous, next})
    [button setHidden:sheets < 2];
  enable(previous, images->sheet() > 0);
  enable(next, images->sheet() + 1 < sheets);
  if (!isSame)
    [self layOut];
}

- (void)turn:(id)sender {
  [target turnTo:images->sheet() + (sender == next ? 1 : -1)];
}

/// A button passes on the keys that it does not know.
- (void)keyDown:(NSEvent *)event {
  const int sheet = sheetAfterKey(event, *images);
  if (sheet != images->sheet())
    [target turnTo:sheet];
  else
    [super keyDown:event];
}

@end
