#import "DialogTheme.h"

#import "Checkbox.h"

using namespace imageposition;

namespace {

bool hasFocus(GSThemeControlState state) {
  return state == GSThemeFirstResponderState || state == GSThemeHighlightedFirstResponderState ||
         state == GSThemeSelectedFirstResponderState;
}

bool isPressed(GSThemeControlState state) {
  return state == GSThemeHighlightedState || state == GSThemeHighlightedFirstResponderState ||
         state == GSThemeSelectedState || state == GSThemeSelectedFirstResponderState;
}

bool isDefault(NSCell *cell, NSView *view) {
  return cell != nil && [[view window] defaultButtonCell] == cell;
}

/// Interface files give a rounded button a larger frame than its bezel fills.
NSRect bezelRect(NSRect frame, int style) {
  if (style == NSRoundedBezelStyle && NSHeight(frame) >= 30)
    return NSIntegralRect(NSInsetRect(frame, 6, 3));
  return frame;
}

} // namespace

@implementation DialogTheme (Buttons)

- (void)drawButton:(NSRect)frame
                in:(NSCell *)cell
              view:(NSView *)view
             style:(int)style
             state:(GSThemeControlState)state {
  const NSRect rect = bezelRect(frame, style);
  const bool isEnabled = [cell isEnabled];
  const bool isAccent = isEnabled && isDefault(cell, view);
  Rgb fill = isAccent ? palette.accent : palette.button;
  if (!isEnabled)
    fill = palette.disabledControl;
  else if (isPressed(state))
    fill = isAccent ? palette.pressedAccent : palette.pressedButton;
  const Rgb edge = isEnabled ? (isAccent ? fill : palette.outline) : palette.disabledOutline;
  drawRoundRect(rect, kCornerRadius, fill, edge);
  if (!isEnabled || !hasFocus(state))
    return;
  drawFocusRing(rect, kCornerRadius, palette.focusRing);
  if (isAccent) // the ring's colour is close to the button's
    drawRoundRect(NSInsetRect(rect, 2, 2), kCornerRadius - 2, fill, palette.onAccent);
}

/// GNUstep adds a margin to these.
- (GSThemeMargins)buttonMarginsForCell:(NSCell *)cell
                                 style:(int)style
                                 state:(GSThemeControlState)state {
  (void)cell;
  (void)style;
  (void)state;
  return {4, 4, 3, 3};
}

/// Buttons with a bezel and checkboxes draw their own focus ring.
- (void)drawFocusFrame:(NSRect)frame view:(NSView *)view {
  const bool isButton = [view isKindOfClass:[NSButton class]];
  if (!isButton || (![(NSButton *)view isBordered] && !isCheckbox([(NSButton *)view cell])))
    drawFocusRing(NSIntersectionRect(NSInsetRect(frame, -2, -2), [view bounds]), kCornerRadius,
                  palette.focusRing);
}

/// The colour marks the default button, so no key symbol is drawn.
- (void)setKeyEquivalent:(NSString *)key forButtonCell:(NSButtonCell *)cell {
  (void)key;
  (void)cell;
}

@end
