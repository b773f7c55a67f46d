/// Lets other threads wake the main thread.
#ifndef IMAGEPOSITION_GUI_WIDGETS_RUNLOOPWAKE_H
#define IMAGEPOSITION_GUI_WIDGETS_RUNLOOPWAKE_H

#import <Foundation/Foundation.h>

#include <functional>
#include <memory>

namespace imageposition {

/// Wakes the main run loop, also while a modal panel or a menu is open. Made and destroyed on the
/// main thread.
class RunLoopWake {
public:
  /// Calls `woken` on the main thread after each signal; several signals may lead to one call, but
  /// none is lost. `woken` must not raise. Throws `std::system_error` if no file descriptor is
  /// left.
  explicit RunLoopWake(const std::function<void()> &woken);
  ~RunLoopWake();
  RunLoopWake(const RunLoopWake &) = delete;
  RunLoopWake &operator=(const RunLoopWake &) = delete;

  /// Returns a function that signals, on any thread. It may outlive this object, and then does
  /// nothing.
  std::function<void()> signal() const;

private:
  class Event;

  const std::shared_ptr<const Event> event_; // shared with signals
  const std::function<void()> received_;
  id watcher_; // owned
};

} // namespace imageposition

#endif
