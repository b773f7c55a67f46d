/// A list that scrolls by mouse and by keyboard.
#ifndef IMAGEPOSITION_GUI_WIDGETS_KEYSCROLLVIEW_H
#define IMAGEPOSITION_GUI_WIDGETS_KEYSCROLLVIEW_H

#import <AppKit/AppKit.h>

/// Accepts the focus when its content does not fit; then the arrow keys, Page Up, Page Down, Home
/// and End move the content. Scrolls vertically unless told otherwise.
@interface KeyScrollView : NSScrollView {
  BOOL isSideways;
  BOOL hasRoomForFocus;
}
/// Shows `rows`, a flipped view as high as its content, from the top.
- (void)showRows:(NSView *)rows;
/// Whether some of the content is out of sight.
- (BOOL)hasMore;
/// Shows exactly these scrollers. GNUstep finds out by itself which ones are needed, but in both
/// directions it may not come to an end.
- (void)scrollUpright:(BOOL)upright sideways:(BOOL)sideways;
/// Shows the focus around the content instead of on it.
- (void)leaveRoomForFocus;
/// Between the frame and the content, once there is room for the focus.
+ (CGFloat)roomForFocus;
@end

namespace imageposition {

/// Whether the view is in a `KeyScrollView` that hides a part of its content.
bool isScrollable(NSView *view);

} // namespace imageposition

#endif
