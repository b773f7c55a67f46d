/// Looks at modal windows in tests.
#ifndef IMAGEPOSITION_TESTS_HOST_GUI_WINDOW_MODALLOOK_H
#define IMAGEPOSITION_TESTS_HOST_GUI_WINDOW_MODALLOOK_H

#import <AppKit/AppKit.h>

#include <functional>

/// Looks at the modal window, and closes it.
@interface ModalLook : NSObject {
@public
  const std::function<void(NSWindow *)> *look; ///< Not owned.
}
- (void)lookAndClose;
@end

namespace imageposition::test {

/// Calls `look` as soon as `open`, which returns once the window is closed, has opened one.
void inModalWindow(const std::function<void()> &open, const std::function<void(NSWindow *)> &look);

/// Calls `look` for all views in sight, but not for parts of controls.
void eachShown(NSView *view, const std::function<void(NSView *)> &look);

/// Fails for views that overlap their neighbours or leave the view that they are in.
void expectNoOverlaps(NSWindow *window);

} // namespace imageposition::test

#endif
