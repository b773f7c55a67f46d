/// Disables controls for a while.
#ifndef IMAGEPOSITION_GUI_WIDGETS_CONTROLLOCK_H
#define IMAGEPOSITION_GUI_WIDGETS_CONTROLLOCK_H

#import <AppKit/AppKit.h>

#include <vector>

namespace imageposition {

/// Disables what a user can change or press in a view, and enables the same controls, and no
/// others, when it is destroyed. Scrollers stay enabled. Main thread.
class ControlLock {
public:
  /// All below `root` but `exception`.
  ControlLock(NSView *root, NSView *exception);
  ~ControlLock();
  ControlLock(const ControlLock &) = delete;
  ControlLock &operator=(const ControlLock &) = delete;

private:
  void lock(NSView *view, NSView *exception);

  std::vector<NSControl *> locked_; // owned
};

} // namespace imageposition

#endif
