/// Runs a program that shows a document's pages, and measures when they are on the screen.
#ifndef IMAGEPOSITION_BENCH_PAGERUN_HPP
#define IMAGEPOSITION_BENCH_PAGERUN_HPP

#include "RunningProgram.hpp"
#include "WatchedScreen.hpp"

#include <X11/keysym.h>
#include <optional>
#include <string>

namespace imageposition::bench {

/// Times in milliseconds. Each action throws std::runtime_error if the screen does not change as
/// expected within ten seconds.
class PageRun {
public:
  PageRun(WatchedScreen &screen, const std::string &command);
  ~PageRun();

  struct FirstPage {
    double window = 0; ///< From the start until the window is painted.
    double page = 0;   ///< From then until the first page is there.
  };
  FirstPage awaitFirstPage();
  /// Waits until nothing has been drawn for this long.
  void awaitSilence(std::chrono::milliseconds duration = std::chrono::milliseconds(400));

  /// Presses Up in the focused offset field. From the key until the last change of the picture.
  double step();
  /// Moves the focus to where Page Down turns sheets, and goes back to the first sheet.
  void focusSheets();
  /// Presses the key; from then until `page` is the front.
  double turn(KeySym key, int page);
  /// Enlarges the sheet; returns when nothing changes any more.
  void enlarge();

  /// In mebibytes, shared libraries included.
  double peakMemory() const { return program_.memory("status", "VmHWM:"); }

private:
  void press(KeySym key, KeySym with = NoSymbol);
  bool becomes(int page, Clock::time_point deadline);

  WatchedScreen &screen_;
  Display *const keys_;
  RunningProgram program_;
};

/// Runs the command for a while.
double peakMemoryOf(WatchedScreen &screen, const std::string &command);

} // namespace imageposition::bench

#endif
