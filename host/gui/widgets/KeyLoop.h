/// The order in which Tab visits the controls of a window.
#ifndef IMAGEPOSITION_GUI_WIDGETS_KEYLOOP_H
#define IMAGEPOSITION_GUI_WIDGETS_KEYLOOP_H

#import <AppKit/AppKit.h>

namespace imageposition {

/// Puts a pane's controls between `before` and `after`, in the order of the pane's interface file,
/// or in reading order where that gives none. Returns the first control, or `after` when the pane
/// has none.
NSView *linkPane(NSView *pane, NSView *before, NSView *after);

} // namespace imageposition

#endif
