#include "DialogRun.hpp"

#include "Difference.hpp"
#include "RunningProgram.hpp"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace imageposition::bench {

namespace {

/// Slightly more than the pixels of a caret.
constexpr int kCaretPixels = 60;

struct Moment {
  double time, processor;
  Picture picture;
};

std::vector<Moment> watch(WatchedScreen &screen, const RunningProgram &program,
                          std::chrono::milliseconds duration) {
  std::vector<Moment> moments;
  while (screen.waitForDrawing(program.started() + duration)) {
    Picture picture = screen.picture();
    moments.push_back({milliseconds(Clock::now() - program.started()), program.processorTime(),
                       std::move(picture)});
  }
  return moments;
}

void findTimes(const std::vector<Moment> &moments, const Rectangle &window, bool isTracing,
               Measured &measured) {
  for (const Moment &moment : moments) {
    const Difference left = difference(moment.picture, moments.back().picture, window);
    if (isTracing)
      std::fprintf(stderr, "%8.1f ms  %7d pixels, %5.1f %% of the edges left\n", moment.time,
                   left.pixels, 100.0 * left.edges / std::max(1, left.allEdges));
    if (measured.painted == 0 && left.isPainted()) {
      measured.painted = moment.time;
      measured.processorUntilPainted = moment.processor;
    }
    if (left.pixels > kCaretPixels)
      measured.complete = 0;
    else if (measured.complete == 0) {
      measured.complete = moment.time;
      measured.processorUntilComplete = moment.processor;
    }
  }
}

} // namespace

Measured runDialog(WatchedScreen &screen, const std::string &command,
                   std::chrono::milliseconds duration, bool isTracing) {
  Measured measured;
  std::vector<Moment> moments;
  std::optional<Rectangle> window;
  {
    const RunningProgram program(command);
    moments = watch(screen, program, duration);
    window = screen.largestWindow();
    measured.peakMemory = program.memory("status", "VmHWM:");
    measured.peakShare = program.memory("smaps_rollup", "Pss:");
  }
  if (!window || moments.empty())
    throw std::runtime_error("This command showed no window: " + command);
  findTimes(moments, *window, isTracing, measured);
  // Closing the window draws as well, which must not count for the next run.
  while (screen.largestWindow())
    screen.waitForDrawing(Clock::now() + std::chrono::milliseconds(20));
  while (screen.waitForDrawing(Clock::now() + std::chrono::milliseconds(200))) {
  }
  return measured;
}

} // namespace imageposition::bench
