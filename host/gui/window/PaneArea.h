/// The part of the window that shows one pane at a time.
#ifndef IMAGEPOSITION_GUI_WINDOW_PANEAREA_H
#define IMAGEPOSITION_GUI_WINDOW_PANEAREA_H

#import <AppKit/AppKit.h>

@interface PaneArea : NSView
/// Shows a pane in place of the one before. A pane that is higher than the area scrolls.
- (void)showPane:(NSView *)pane;
@end

#endif
