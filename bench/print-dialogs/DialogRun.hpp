/// One start of a program that shows a dialog.
#ifndef IMAGEPOSITION_BENCH_DIALOGRUN_HPP
#define IMAGEPOSITION_BENCH_DIALOGRUN_HPP

#include "WatchedScreen.hpp"

#include <string>

namespace imageposition::bench {

/// Milliseconds since the program was started, and mebibytes.
struct Measured {
  /// Three quarters of all edges of the window's later picture are there: text and controls, so
  /// that an empty window is not yet a dialog; a list that is filled later does not count.
  double painted = 0;
  /// Nothing changes any more but a blinking caret.
  double complete = 0;
  double processorUntilPainted = 0; ///< User and system, all threads of the program.
  double processorUntilComplete = 0;
  double peakMemory = 0; ///< Resident at most, shared libraries included.
  double peakShare = 0;  ///< Resident at the end, what is shared divided by who shares it.
};

/// Starts `command` by a shell's `exec`, watches it for `duration`, and ends it. Throws a
/// std::runtime_error when it shows no window.
Measured runDialog(WatchedScreen &screen, const std::string &command,
                   std::chrono::milliseconds duration, bool isTracing);

} // namespace imageposition::bench

#endif
