#import "PaneArea.h"

#import "KeyScrollView.h"

#include <algorithm>
#include <cmath>

namespace {

/// The pane itself, or what scrolls it.
NSView *fitted(NSView *pane, NSSize area) {
  if (NSHeight([pane frame]) <= area.height + 0.5)
    return pane;
  NSScrollView *const before = [pane enclosingScrollView];
  if (before != nil && [before documentView] == pane)
    return before;
  const CGFloat width =
      std::min(area.width, NSWidth([pane frame]) + [NSScroller scrollerWidth] + 2);
  KeyScrollView *const scroll =
      [[[KeyScrollView alloc] initWithFrame:NSMakeRect(0, 0, width, area.height)] autorelease];
  [scroll setBorderType:NSNoBorder];
  [scroll setDocumentView:pane];
  [pane scrollRectToVisible:NSMakeRect(0, NSMaxY([pane bounds]) - 1, 1, 1)]; // its upper edge
  return scroll;
}

} // namespace

@implementation PaneArea

- (void)showPane:(NSView *)pane {
  const NSSize area = [self frame].size;
  NSView *const shown = fitted(pane, area);
  NSArray *const before = [NSArray arrayWithArray:[self subviews]];
  for (NSUInteger i = 0; i < [before count]; i++)
    if ([before objectAtIndex:i] != shown)
      [[before objectAtIndex:i] removeFromSuperview];
  const CGFloat left = std::floor((area.width - NSWidth([shown frame])) / 2);
  [shown setFrameOrigin:NSMakePoint(left, area.height - NSHeight([shown frame]))];
  if ([shown superview] != self)
    [self addSubview:shown];
  [self setNeedsDisplay:YES];
}

@end
