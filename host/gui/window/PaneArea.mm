#import "PaneArea.h"

#import "KeyScrollView.h"

#include <algorithm>
#include <cmath>

namespace {

/// The pane itself, or what scrolls it.
NSView *fitted(NSView *pane, NSSize area) {
  if ([pane isKindOfClass:[NSScrollView class]]) {
    [pane setFrameSize:area];
    return pane;
  }
  const NSSize size = [pane frame].size;
  NSScrollView *const enclosing = [pane enclosingScrollView];
  NSScrollView *const before = [enclosing documentView] == pane ? enclosing : nil;
  if (size.height <= area.height + 0.5 && size.width <= area.width + 0.5) {
    if (before != nil)
      [[pane retain] autorelease];
    [before setDocumentView:nil];
    return pane;
  }
  const CGFloat width = std::min(area.width, size.width + [NSScroller scrollerWidth] + 2);
  if (before != nil) {
    [before setFrameSize:NSMakeSize(width, area.height)];
    return before;
  }
  KeyScrollView *const scroll =
      [[[KeyScrollView alloc] initWithFrame:NSMakeRect(0, 0, width, area.height)] autorelease];
  [scroll setBorderType:NSNoBorder];
  [scroll setDocumentView:pane];
  [pane scrollRectToVisible:NSMakeRect(0, NSMaxY([pane bounds]) - 1, 1, 1)]; // its upper edge
  return scroll;
}

} // namespace

@implementation PaneArea

- (void)dealloc {
  [shownPane release];
  [super dealloc];
}

- (void)setFrameSize:(NSSize)size {
  [super setFrameSize:size];
  if (shownPane != nil && [shownPane isDescendantOf:self])
    [self showPane:shownPane];
}

- (BOOL)usesMoreRoom {
  return [shownPane isKindOfClass:[NSScrollView class]];
}

- (void)showPane:(NSView *)pane {
  const NSSize area = [self frame].size;
  [pane retain];
  [shownPane release];
  shownPane = pane;
  NSView *const shown = fitted(pane, area);
  NSArray *const before = [NSArray arrayWithArray:[self subviews]];
  for (NSUInteger i = 0; i < [before count]; i++)
    if ([before objectAtIndex:i] != shown)
      [[before objectAtIndex:i] removeFromSuperview];
  const CGFloat left = std::max<CGFloat>(0, std::floor((area.width - NSWidth([shown frame])) / 2));
  [shown setFrameOrigin:NSMakePoint(left, area.height - NSHeight([shown frame]))];
  if ([shown superview] != self)
    [self addSubview:shown];
  [self setNeedsDisplay:YES];
}

@end
