/// A list that scrolls by mouse and by keyboard.
#ifndef IMAGEPOSITION_GUI_WIDGETS_KEYSCROLLVIEW_H
#define IMAGEPOSITION_GUI_WIDGETS_KEYSCROLLVIEW_H

#import <AppKit/AppKit.h>

/// Accepts the focus when its content does not fit; then the arrow keys, Page Up, Page Down, Home
/// and End move the content. Scrolls vertically unless told otherwise.
@interface KeyScrollView : NSScrollView {
  BOOL isSideways;
}
/// Shows `rows`, a flipped view as high as its content, from the top.
- (void)showRows:(NSView *)rows;
/// Whether some of the content is out of sight.
- (BOOL)hasMore;
/// Scrolls content that is too wide, by mouse.
- (void)scrollSidewaysToo;
@end

#endif
