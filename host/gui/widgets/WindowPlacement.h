/// Where windows stand on the screen.
#ifndef IMAGEPOSITION_GUI_WIDGETS_WINDOWPLACEMENT_H
#define IMAGEPOSITION_GUI_WIDGETS_WINDOWPLACEMENT_H

#import <AppKit/AppKit.h>

namespace imageposition {

/// The largest content of a window that fits on the screen, in points.
NSSize roomOnScreen();

/// Moves the window to the middle of `parent`, but keeps it on the screen.
void placeOver(NSWindow *window, NSWindow *parent);
/// Moves the window to the side of `parent` that has more room, even if it then covers a part of
/// `parent`; keeps it on the screen, and off the buttons of `parent` if there is room.
void placeBeside(NSWindow *window, NSWindow *parent);

} // namespace imageposition

#endif
