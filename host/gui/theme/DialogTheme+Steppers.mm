#import "DialogTheme.h"

#include <algorithm>
#include <cmath>

using namespace imageposition;

namespace {

constexpr CGFloat kStepperWidth = 17;
constexpr CGFloat kStepperHeight = 22; // a text field's

/// Interface files give a stepper more room than it fills beside a text field.
NSRect stepperRect(NSRect frame) {
  const CGFloat height = std::min(NSHeight(frame), kStepperHeight);
  const CGFloat width = std::min(NSWidth(frame), kStepperWidth);
  return NSMakeRect(NSMinX(frame) + std::floor((NSWidth(frame) - width) / 2),
                    NSMinY(frame) + std::ceil((NSHeight(frame) - height) / 2), width, height);
}

} // namespace

@implementation DialogTheme (Steppers)

- (NSRect)stepperUpButtonRectWithFrame:(NSRect)frame {
  NSRect rect = stepperRect(frame);
  rect.size.height /= 2;
  rect.origin.y += NSHeight(rect);
  return rect;
}

- (NSRect)stepperDownButtonRectWithFrame:(NSRect)frame {
  NSRect rect = stepperRect(frame);
  rect.size.height /= 2;
  return rect;
}

- (void)drawStepperCell:(NSCell *)cell
              withFrame:(NSRect)frame
                 inView:(NSView *)view
            highlightUp:(BOOL)highlightUp
          highlightDown:(BOOL)highlightDown {
  const NSRect rect = stepperRect(frame);
  const bool isEnabled = [cell isEnabled];
  const Rgb edge = isEnabled ? palette.outline : palette.disabledOutline;
  drawRoundRect(rect, kCornerRadius, isEnabled ? palette.button : palette.disabledControl, edge);
  const NSRect halves[] = {[self stepperUpButtonRectWithFrame:frame],
                           [self stepperDownButtonRectWithFrame:frame]};
  const bool pressed[] = {highlightUp != NO, highlightDown != NO};
  const CGFloat middle = NSMinY(rect) + NSHeight(rect) / 2;
  for (int i = 0; i < 2; i++) {
    if (isEnabled && pressed[i])
      drawRoundRect(halves[i], kCornerRadius, palette.pressedButton, edge);
    drawChevron(NSMakePoint(NSMidX(halves[i]), NSMidY(halves[i])), 3, i == 0, [view isFlipped],
                isEnabled ? palette.text : palette.disabledText);
  }
  [toColor(edge) set];
  NSRectFill(NSMakeRect(NSMinX(rect), std::floor(middle), NSWidth(rect), 1));
}

@end
