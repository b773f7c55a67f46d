/// Joins the dialog to the window of the application that asked for it.
#ifndef IMAGEPOSITION_GUI_WINDOW_JOINPARENT_H
#define IMAGEPOSITION_GUI_WINDOW_JOINPARENT_H

#include "CommandLine.hpp"

#import <AppKit/AppKit.h>

namespace imageposition {

/// Makes the window, which is on the screen, a modal dialog of the window that the command line
/// names. If that is a window of Wayland, which cannot be the parent of one of X11's, the title
/// names the job instead. Does nothing if the command line names no window.
void joinParent(NSWindow *window, const Arguments &arguments);

} // namespace imageposition

#endif
