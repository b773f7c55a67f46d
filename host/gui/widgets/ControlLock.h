/// Disables controls temporarily.
#ifndef IMAGEPOSITION_GUI_WIDGETS_CONTROLLOCK_H
#define IMAGEPOSITION_GUI_WIDGETS_CONTROLLOCK_H

#import <AppKit/AppKit.h>

#include <vector>

namespace imageposition {

/// Disables the controls of a view that a user can change or press. The destructor enables exactly
/// those again. Scrollers stay enabled. Main thread.
class ControlLock {
public:
  /// Locks everything below `root` except `exception`.
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
