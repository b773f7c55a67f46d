#import "RedrawRounding.h"

#import "Replaced.h"

#import <AppKit/AppKit.h>

#include <optional>

@interface NSView (RedrawRounding)
/// With all that is still to be drawn, when that is in `rect` but for rounding; or else `rect`.
- (NSRect)allThatIsMeantBy:(NSRect)rect;
@end

@implementation NSView (RedrawRounding)

- (NSRect)allThatIsMeantBy:(NSRect)rect {
  constexpr CGFloat kRounding = 0.01; // points: less than any pixel
  const NSRect needed = NSIntersectionRect(_invalidRect, [self visibleRect]);
  const bool isAll = !NSIsEmptyRect(rect) && !NSIsEmptyRect(needed) &&
                     NSContainsRect(NSInsetRect(rect, -kRounding, -kRounding), needed);
  return isAll ? NSUnionRect(rect, needed) : rect;
}

@end

namespace imageposition {

namespace {

std::optional<Replaced> drawing;

void displayAll(NSView *view, SEL operation, NSRect rect, NSGraphicsContext *context) {
  using Operation = void(id, SEL, NSRect, NSGraphicsContext *);
  drawing->before<Operation>()(view, operation, [view allThatIsMeantBy:rect], context);
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
