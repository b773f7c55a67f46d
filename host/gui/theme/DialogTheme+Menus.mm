#import "DialogTheme.h"

using namespace imageposition;

/// The lists that pop-up buttons open.
@implementation DialogTheme (Menus)

- (NSColor *)menuBackgroundColor {
  return toColor(palette.menu);
}

- (NSColor *)menuItemBackgroundColor {
  return toColor(palette.menu);
}

- (NSColor *)menuBorderColor {
  return toColor(palette.outline);
}

- (NSColor *)menuSeparatorColor {
  return toColor(palette.disabledOutline);
}

- (CGFloat)menuItemHeight {
  return 24;
}

- (CGFloat)menuSeparatorHeight {
  return 9;
}

/// Draws the edge last: the items fill the whole menu.
- (void)drawMenuRect:(NSRect)rect
              inView:(NSView *)view
        isHorizontal:(BOOL)horizontal
           itemCells:(NSArray *)itemCells {
  [super drawMenuRect:rect inView:view isHorizontal:horizontal itemCells:itemCells];
  [toColor(palette.outline) set];
  NSFrameRect([view bounds]);
}

- (void)drawBackgroundForMenuView:(NSMenuView *)menuView
                        withFrame:(NSRect)bounds
                        dirtyRect:(NSRect)dirty
                       horizontal:(BOOL)horizontal {
  (void)menuView;
  (void)dirty;
  (void)horizontal;
  drawRoundRect(bounds, 0, palette.menu, palette.outline);
}

- (void)drawBorderAndBackgroundForMenuItemCell:(NSMenuItemCell *)cell
                                     withFrame:(NSRect)frame
                                        inView:(NSView *)view
                                         state:(GSThemeControlState)state
                                  isHorizontal:(BOOL)isHorizontal {
  (void)view;
  (void)isHorizontal;
  const bool isChosen = state == GSThemeSelectedState || state == GSThemeHighlightedState ||
                        ([cell isHighlighted] && [cell isEnabled]);
  [toColor(isChosen ? palette.accent : palette.menu) set];
  NSRectFill(NSInsetRect(frame, 1, 0));
}

@end
