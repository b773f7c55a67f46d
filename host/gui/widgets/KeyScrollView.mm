#import "KeyScrollView.h"

#import "Theme.h"

#include <algorithm>

namespace {

constexpr CGFloat kLine = 20;
constexpr CGFloat kRoomForFocus = 6;
constexpr CGFloat kNotch = 75; // of the mouse's wheel: about three rows of controls

/// How far a key moves the content, downwards; 0 for other keys.
CGFloat movementOf(NSEvent *event, CGFloat page) {
  NSString *const characters = [event characters];
  switch ([characters length] == 1 ? [characters characterAtIndex:0] : 0) {
  case NSUpArrowFunctionKey:
    return -kLine;
  case NSDownArrowFunctionKey:
    return kLine;
  case NSPageUpFunctionKey:
    return -page;
  case NSPageDownFunctionKey:
    return page;
  case NSHomeFunctionKey:
    return -1e6;
  case NSEndFunctionKey:
    return 1e6;
  default:
    return 0;
  }
}

} // namespace

@implementation KeyScrollView

- (id)initWithFrame:(NSRect)frame {
  if ((self = [super initWithFrame:frame]) != nil) {
    [self setHasVerticalScroller:YES];
    [self setAutohidesScrollers:YES];
    [self setDrawsBackground:NO];
    [self setVerticalLineScroll:kNotch];
  }
  return self;
}

- (void)setHasVerticalScroller:(BOOL)has {
  [super setHasVerticalScroller:has];
  [[self verticalScroller] setArrowsPosition:NSScrollerArrowsNone]; // the theme draws none
}

/// GNUstep would add one to a view that hides its scrollers automatically.
- (void)setHasHorizontalScroller:(BOOL)has {
  if (!isSideways)
    return;
  [super setHasHorizontalScroller:has];
  [[self horizontalScroller] setArrowsPosition:NSScrollerArrowsNone];
}

- (void)scrollUpright:(BOOL)upright sideways:(BOOL)sideways {
  [self setAutohidesScrollers:NO];
  isSideways = YES;
  if ([self hasVerticalScroller] != upright)
    [self setHasVerticalScroller:upright];
  if ([self hasHorizontalScroller] != sideways)
    [self setHasHorizontalScroller:sideways];
}

- (void)leaveRoomForFocus {
  hasRoomForFocus = YES;
  [self setAutohidesScrollers:NO]; // GNUstep would count without the room
  [self setHasVerticalScroller:NO];
  [self tile];
}

+ (CGFloat)roomForFocus {
  return kRoomForFocus;
}

- (void)tile {
  [super tile];
  if (!hasRoomForFocus)
    return;
  NSView *const clip = [self contentView];
  const NSRect frame = NSInsetRect([clip frame], kRoomForFocus, kRoomForFocus);
  [clip setFrameOrigin:frame.origin];
  [clip setFrameSize:frame.size];
}

- (BOOL)hasMore {
  return NSHeight([[self documentView] frame]) > NSHeight([[self contentView] frame]) + 0.5;
}

- (void)showRows:(NSView *)rows {
  NSRect frame = [rows frame];
  frame.size.height = std::max(NSHeight(frame), [self contentSize].height);
  [rows setFrame:frame];
  [self setDocumentView:rows];
  if (hasRoomForFocus)
    [self setHasVerticalScroller:[self hasMore]];
}

- (BOOL)acceptsFirstResponder {
  return [self hasMore];
}

- (BOOL)becomeFirstResponder {
  [self setNeedsDisplay:YES];
  return YES;
}

- (BOOL)resignFirstResponder {
  [self setNeedsDisplay:YES];
  return YES;
}

- (void)keyDown:(NSEvent *)event {
  const CGFloat page = std::max(kLine, [self contentSize].height - kLine);
  const CGFloat movement = movementOf(event, page);
  if (movement == 0 || ![self hasMore]) { // NSScrollView would keep the keys that scroll
    [[self nextResponder] keyDown:event];
    return;
  }
  NSClipView *const clip = [self contentView];
  NSPoint origin = [clip bounds].origin;
  origin.y += movement;
  [clip scrollToPoint:[clip constrainScrollPoint:origin]];
  [self reflectScrolledClipView:clip];
}

- (void)drawRect:(NSRect)dirty {
  [super drawRect:dirty];
  if ([[self window] firstResponder] != self)
    return;
  [imageposition::accentColor() set];
  NSFrameRectWithWidth([self bounds], 2);
}

@end

bool imageposition::isScrollable(NSView *view) {
  for (NSScrollView *outer = [view enclosingScrollView]; outer != nil;
       outer = [outer enclosingScrollView])
    if ([outer isKindOfClass:[KeyScrollView class]] && [(KeyScrollView *)outer hasMore])
      return true;
  return false;
}
