/// The X server's side of windows.
#ifndef IMAGEPOSITION_GUI_WIDGETS_XWINDOW_H
#define IMAGEPOSITION_GUI_WIDGETS_XWINDOW_H

#import <AppKit/AppKit.h>

#include <cstdint>

namespace imageposition {

struct XWindow {
  void *display = nullptr;  ///< X11's Display, whose header defines macros such as None and Bool.
  unsigned long number = 0; ///< 0 if there is none, as for a deferred window that was never shown.
};

XWindow xWindowOf(NSWindow *window);

/// Makes the window a modal dialog of another program's window: the window manager keeps it above
/// that window and shows that they belong together. `parent` is the X server's number of that
/// window, which may be gone. Call it once the window is on the screen.
void makeModalDialogOf(NSWindow *window, std::uint32_t parent);

/// Tells the window manager that the window is a dialog, and whether it is modal for its parent.
/// Call it before the window is on the screen.
void describeAsDialog(NSWindow *window, bool isModal);

} // namespace imageposition

#endif
