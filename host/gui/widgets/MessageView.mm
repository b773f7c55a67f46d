#import "MessageView.h"

#import "Labels.h"

#include <algorithm>

/// Flipped: the text begins at the top.
@interface MessageLabel : NSTextField
@end

@implementation MessageLabel

- (BOOL)isFlipped {
  return YES;
}

@end

@implementation MessageView

- (id)initWithFrame:(NSRect)frame {
  if ((self = [super initWithFrame:frame]) == nil)
    return nil;
  [self setBorderType:NSNoBorder];
  label = [[[MessageLabel alloc] initWithFrame:NSZeroRect] autorelease];
  imageposition::makeIntoLabel(label, "", false);
  [[label cell] setWraps:YES];
  [self setStringValue:@""];
  return self;
}

- (void)setFrameSize:(NSSize)size {
  [super setFrameSize:size];
  if (label != nil) // not while the superclass initializes
    [self setStringValue:[label stringValue]];
}

- (BOOL)hasText {
  return [[label stringValue] length] > 0;
}

- (void)setStringValue:(NSString *)whole {
  constexpr NSUInteger kLongest = 10000;
  NSString *const text = imageposition::cutTo(kLongest, whole);
  // A scroller may appear and must not cover the text.
  const CGFloat width =
      std::max<CGFloat>(NSWidth([self frame]) - [NSScroller scrollerWidth] - 4, 50);
  [label setFont:imageposition::fontThatShows(text, [NSFont systemFontOfSize:0])];
  [label setStringValue:text];
  [label
      setFrame:NSMakeRect(0, 0, width, imageposition::paragraphHeight(text, [label font], width))];
  [self showRows:label];
  [[self contentView] scrollToPoint:NSZeroPoint];
  [self reflectScrolledClipView:[self contentView]];
  [self setNeedsDisplay:YES];
}

@end
