#import "RedrawRounding.h"

#import "Replaced.h"

#import <AppKit/AppKit.h>

#include <optional>

@interface NSView (RedrawRounding)
/// `rect`, extended to the whole invalid rectangle if it lacks only a rounding error of that.
- (NSRect)rectWithRoundedOffEdges:(NSRect)rect;
@end

@implementation NSView (RedrawRounding)

- (NSRect)rectWithRoundedOffEdges:(NSRect)rect {
  constexpr CGFloat kRounding = 0.01; // points: less than any pixel
  const NSRect needed = NSIntersectionRect(_invalidRect, [self visibleRect]);
  const bool isWhole = !NSIsEmptyRect(rect) && !NSIsEmptyRect(needed) &&
                       NSContainsRect(NSInsetRect(rect, -kRounding, -kRounding), needed);
  return isWhole ? NSUnionRect(rect, needed) : rect;
}

@end

namespace imageposition {

namespace {

std::optional<Replaced> drawing;

void displayAll(NSView *view, SEL operation, NSRect rect, NSGraphicsContext *context) {
  using Operation = void(id, SEL, NSRect, NSGraphicsContext *);
  drawing->before<Operation>()(view, operation, [view rectWithRoundedOffEdges:rect], context);
}

} // namespace

void drawOnceAtAnyScale() {
  if (drawing)
    return;
  drawing = Replaced::objectOperation([NSView class], @selector(displayRectIgnoringOpacity:
                                                                                 inContext:));
  drawing->by(displayAll);
}

} // namespace imageposition
