/// The keyboard focus of windows.
#ifndef IMAGEPOSITION_GUI_WIDGETS_WINDOWFOCUS_H
#define IMAGEPOSITION_GUI_WIDGETS_WINDOWFOCUS_H

#import <AppKit/AppKit.h>

namespace imageposition {

/// Asks the display for the keyboard focus again. GNUstep asks once, when it shows a window; the
/// display refuses if the window manager is slow and has not shown the window yet.
void askForFocus(NSWindow *window);

/// Lets the application's windows have the keyboard. Call it before the first window is shown.
/// Returns whether it was called before.
bool activateApplication();

} // namespace imageposition

#endif
