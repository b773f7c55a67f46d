/// Gives GNUstep what another program drags.
#ifndef IMAGEPOSITION_GUI_STARTUP_DRAGPASTEBOARD_H
#define IMAGEPOSITION_GUI_STARTUP_DRAGPASTEBOARD_H

#import <AppKit/AppKit.h>

/// The pasteboard of one drag, in place of GNUstep's, whose daemon does not pass on what other
/// programs drag. Has only NSFilenamesPboardType, and requests it when it is first asked.
@interface DragPasteboard : NSPasteboard {
  NSArray *files; ///< Owned; null before they are requested.
}
@end

#endif
