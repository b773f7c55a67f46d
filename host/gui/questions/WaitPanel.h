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
/// wait for a call is long enough to be noticed. Main thread.
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
      await([&] { return call.isDone() || call.isTooLate(); }, parent, [&] { return text; });
    return call.isDone();
  }

  /// The same for anything else: opens at once, until `isOver`, which it asks at each signal. Then
  /// shows `text` anew, too. Returns false if the user cancelled.
  bool await(const std::function<bool()> &isOver, NSWindow *parent,
             const std::function<std::string()> &text);

private:
  static constexpr std::chrono::milliseconds kUnnoticed{250};

  void look();

  std::function<bool()> isOver_; ///< Set while the window is open; so is the next.
  std::function<std::string()> text_;
  NSWindow *window_ = nil;   ///< Not owned; set while it is open.
  NSTextField *label_ = nil; ///< The window's.
  RunLoopWake wake_;
};

} // namespace imageposition

#endif
