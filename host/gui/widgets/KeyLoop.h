/// The order in which Tab visits the controls of a window.
#ifndef IMAGEPOSITION_HOST_KEYLOOP_H
#define IMAGEPOSITION_HOST_KEYLOOP_H

#import <AppKit/AppKit.h>

namespace imageposition {

/// Puts a pane's controls between `before` and `after`, in the order that the pane's interface file
/// gave them, or in reading order where it gave none. Answers the first of them; `after` when the
/// pane has none.
NSView *linkPane(NSView *pane, NSView *before, NSView *after);

} // namespace imageposition

#endif
