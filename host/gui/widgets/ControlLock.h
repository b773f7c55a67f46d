/// Controls that nobody can use for a while.
#ifndef IMAGEPOSITION_HOST_CONTROLLOCK_H
#define IMAGEPOSITION_HOST_CONTROLLOCK_H

#import <AppKit/AppKit.h>

#include <vector>

namespace imageposition {

/// Disables what a person can change or press in a view; at its end the same controls, and no
/// others, can be used again. Scrollers stay usable. Main thread.
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
