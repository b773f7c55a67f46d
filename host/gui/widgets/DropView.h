/// The content of a window on which files can be dropped.
#ifndef IMAGEPOSITION_GUI_WIDGETS_DROPVIEW_H
#define IMAGEPOSITION_GUI_WIDGETS_DROPVIEW_H

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

/// Messages to the window's delegate.
@protocol FileReceiver <NSObject>
/// Whether files can be dropped now.
- (BOOL)takesFiles;
/// The user has dropped these files, at least one.
- (void)takeFiles:(const std::vector<std::string> &)paths;
@end

/// Takes what is dragged over any of its subviews: GNUstep asks only the innermost view under the
/// pointer, and not those around it. The delegate of its window is a `FileReceiver`.
@interface DropView : NSView
@end

#endif
