/// Waits for a call on a background thread.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_WAITPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_WAITPANEL_H

#include "BackgroundCall.hpp"
#import "RunLoopWake.h"

#import <AppKit/AppKit.h>

#include <chrono>
#include <functional>
#include <string>

namespace imageposition {

/// A window that says what the program waits for, with a button that cancels. It opens only if the
/// wait is long enough to be noticed. Main thread.
class WaitPanel {
public:
  WaitPanel();

  /// Ends the wait. For any thread, at any time.
  std::function<void()> signal() const { return wake_.signal(); }

  /// Returns true once the call is done; false if the user cancelled or the call's timeout is over.
  /// `parent` may be null.
  template <typename Result>
  bool await(const BackgroundCall<Result> &call, NSWindow *parent, const std::string &text) {
    if (!call.waitFor(kUnnoticed))
      show(parent, text, [&] { return call.isDone() || call.isTooLate(); });
    return call.isDone();
  }

private:
  static constexpr std::chrono::milliseconds kUnnoticed{250};

  void show(NSWindow *parent, const std::string &text, const std::function<bool()> &isOver);

  std::function<bool()> isOver_; ///< Set while the window is open.
  NSWindow *window_ = nil;       ///< Not owned; set while it is open.
  RunLoopWake wake_;
};

} // namespace imageposition

#endif
