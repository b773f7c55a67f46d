/// Watches what programs draw on the display.
#ifndef IMAGEPOSITION_BENCH_WATCHEDSCREEN_HPP
#define IMAGEPOSITION_BENCH_WATCHEDSCREEN_HPP

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

#include <X11/Xlib.h>
#include <X11/extensions/XShm.h>

namespace imageposition::bench {

using Clock = std::chrono::steady_clock;

/// In pixels of the screen.
struct Rectangle {
  int left, top, width, height;
};

/// A screen's pixels, row by row.
struct Picture {
  int width = 0;
  std::vector<std::uint32_t> pixels;

  std::uint32_t at(int x, int y) const { return pixels[std::size_t(y) * width + x]; }
};

/// The display that DISPLAY names. The constructor throws std::runtime_error if it is not usable.
class WatchedScreen {
public:
  WatchedScreen();
  ~WatchedScreen();
  WatchedScreen(const WatchedScreen &) = delete;
  WatchedScreen &operator=(const WatchedScreen &) = delete;

  /// Returns false if nothing was drawn before the deadline.
  bool waitForDrawing(Clock::time_point deadline);
  Picture picture();
  /// The content area of the largest window that the window manager manages, if there is one.
  std::optional<Rectangle> largestWindow();

private:
  void shareImage();

  Display *display_;
  Window root_;
  XID damage_ = 0;
  int damageEvents_ = 0;
  XImage *image_ = nullptr;
  XShmSegmentInfo memory_{};
};

} // namespace imageposition::bench

#endif
