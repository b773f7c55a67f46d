/// Runs and measures a program that shows a dialog.
#ifndef IMAGEPOSITION_BENCH_DIALOGRUN_HPP
#define IMAGEPOSITION_BENCH_DIALOGRUN_HPP

#include "WatchedScreen.hpp"

#include <string>

namespace imageposition::bench {

/// Times in milliseconds since the program started; memory in mebibytes.
struct Measured {
  /// When three quarters of the edges in the window's final picture are painted: most text and
  /// controls. So an empty window does not count as painted, but one whose list is filled later
  /// does.
  double painted = 0;
  /// When nothing changes any more but a blinking caret.
  double complete = 0;
  double processorUntilPainted = 0; ///< User and system time of all threads.
  double processorUntilComplete = 0;
  double peakMemory = 0; ///< The peak resident memory, shared libraries included.
  double peakShare = 0;  ///< The proportional set size at the end.
};

/// Starts `command` through a shell's `exec`, watches it for `duration`, and kills it. Throws
/// std::runtime_error if it shows no window.
Measured runDialog(WatchedScreen &screen, const std::string &command,
                   std::chrono::milliseconds duration, bool isTracing);

} // namespace imageposition::bench

#endif
