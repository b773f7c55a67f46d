/// Windows that the window manager leaves alone.
#ifndef IMAGEPOSITION_GUI_LISTS_UNMANAGEDWINDOW_H
#define IMAGEPOSITION_GUI_LISTS_UNMANAGEDWINDOW_H

#import <AppKit/AppKit.h>

namespace imageposition {

/// Keeps the window manager from placing the window or giving it the focus, as it should with a
/// list (X's override-redirect). Call it before the window is shown; the window must not be
/// deferred.
void hideFromWindowManager(NSWindow *window);

} // namespace imageposition

#endif
