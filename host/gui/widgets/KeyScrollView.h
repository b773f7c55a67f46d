/// A list that scrolls, by keys as well.
#ifndef IMAGEPOSITION_HOST_KEYSCROLLVIEW_H
#define IMAGEPOSITION_HOST_KEYSCROLLVIEW_H

#import <AppKit/AppKit.h>

/// Takes the focus where its content does not fit; then the arrow keys, Page Up, Page Down, Home
/// and End move it. It scrolls up and down only.
@interface KeyScrollView : NSScrollView
/// Shows rows from the top; `rows` is flipped and as high as they are.
- (void)showRows:(NSView *)rows;
- (BOOL)hasMore;
@end

#endif
