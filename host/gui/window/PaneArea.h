/// The part of the window that shows one pane at a time.
#ifndef IMAGEPOSITION_GUI_WINDOW_PANEAREA_H
#define IMAGEPOSITION_GUI_WINDOW_PANEAREA_H

#import <AppKit/AppKit.h>

@interface PaneArea : NSView {
  NSView *shownPane; ///< Owned; null before the first.
}
/// Shows a pane in place of the one before. A pane that is larger than the area scrolls.
- (void)showPane:(NSView *)pane;
/// Whether the pane uses any room that it gets.
- (BOOL)usesMoreRoom;
@end

#endif
