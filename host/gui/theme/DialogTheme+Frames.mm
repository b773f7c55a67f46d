#import "DialogTheme.h"

#include <cmath>

using namespace imageposition;

namespace {

/// `currentEditor` is null for a secure field, which uses a separate editor.
bool isBeingEdited(NSView *view) {
  id const responder = [[view window] firstResponder];
  return [view isKindOfClass:[NSTextField class]] &&
         ([(NSTextField *)view currentEditor] != nil ||
          ([responder isKindOfClass:[NSText class]] && [responder delegate] == view));
}

bool isUsable(NSView *view) {
  return ![view isKindOfClass:[NSControl class]] || [(NSControl *)view isEnabled];
}

} // namespace

@implementation DialogTheme (Frames)

- (void)drawWindowBackground:(NSRect)frame view:(NSView *)view {
  (void)view;
  [toColor(palette.window) set];
  NSRectFill(frame);
}

/// Draws text fields and other views with a bezel as a flat field with a thin edge.
- (void)drawBorderType:(NSBorderType)type frame:(NSRect)frame view:(NSView *)view {
  if (type == NSNoBorder)
    return;
  const bool usable = isUsable(view);
  drawRoundRect(frame, type == NSBezelBorder ? kCornerRadius : 0,
                usable ? palette.field : palette.disabledControl,
                usable ? palette.outline : palette.disabledOutline);
  if (isBeingEdited(view))
    drawFocusRing(frame, kCornerRadius, palette.focusRing);
}

- (void)drawBoxInClipRect:(NSRect)clip
                  boxType:(NSBoxType)boxType
               borderType:(NSBorderType)borderType
                   inView:(NSBox *)box {
  (void)clip;
  if (boxType == NSBoxSeparator) {
    const NSRect line = [box bounds];
    [toColor(palette.disabledOutline) set];
    NSRectFill(NSWidth(line) > NSHeight(line)
                   ? NSMakeRect(NSMinX(line), std::floor(NSMidY(line)), NSWidth(line), 1)
                   : NSMakeRect(std::floor(NSMidX(line)), NSMinY(line), 1, NSHeight(line)));
    return;
  }
  if (borderType != NSNoBorder)
    drawRoundRect([box borderRect], kCornerRadius, palette.window, palette.disabledOutline);
  if ([box titlePosition] != NSNoTitle) {
    [toColor(palette.window) set];
    NSRectFill([box titleRect]);
    [[box titleCell] drawWithFrame:[box titleRect] inView:box];
  }
}

- (void)drawScrollViewRect:(NSRect)rect inView:(NSView *)view {
  (void)rect;
  if ([(NSScrollView *)view borderType] != NSNoBorder)
    drawRoundRect([view bounds], kCornerRadius, palette.field, palette.disabledOutline);
}

- (float)defaultScrollerWidth {
  return 12;
}

/// Draws the knob on the background of what scrolls: GNUstep does not erase the knob where it was.
- (void)drawScrollerRect:(NSRect)rect
                  inView:(NSView *)view
                 hitPart:(NSScrollerPart)hitPart
            isHorizontal:(BOOL)isHorizontal {
  (void)rect;
  (void)isHorizontal;
  NSScroller *const scroller = (NSScroller *)view;
  NSScrollView *const owner = [scroller enclosingScrollView];
  const bool isOnField = [owner borderType] != NSNoBorder || [[owner documentView] isOpaque];
  [toColor(isOnField ? palette.field : palette.window) set];
  NSRectFill([scroller bounds]);
  const NSRect knob = [scroller rectForPart:NSScrollerKnob];
  if (NSIsEmptyRect(knob))
    return;
  const Rgb color = hitPart == NSScrollerKnob ? palette.accent : palette.scrollerKnob;
  drawRoundRect(NSInsetRect(knob, 2, 2), 4, color, color);
}

// The remaining frames, which GNUstep would draw in relief.

- (NSRect)drawGrayBezel:(NSRect)border withClip:(NSRect)clip {
  (void)clip;
  drawRoundRect(border, kCornerRadius, palette.field, palette.outline);
  return NSInsetRect(border, 2, 2);
}

- (NSRect)drawWhiteBezel:(NSRect)border withClip:(NSRect)clip {
  return [self drawGrayBezel:border withClip:clip];
}

- (NSRect)drawGroove:(NSRect)border withClip:(NSRect)clip {
  (void)clip;
  drawRoundRect(border, kCornerRadius, palette.window, palette.disabledOutline);
  return NSInsetRect(border, 2, 2);
}

- (NSRect)drawProgressIndicatorBezel:(NSRect)bounds withClip:(NSRect)clip {
  (void)clip;
  drawRoundRect(bounds, kCornerRadius, palette.disabledControl, palette.disabledOutline);
  return NSInsetRect(bounds, 1, 1);
}

- (void)drawProgressIndicatorBarDeterminate:(NSRect)bounds {
  drawRoundRect(bounds, kCornerRadius - 1, palette.accent, palette.accent);
}

@end
