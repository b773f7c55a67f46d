#include "DialogRun.hpp"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

namespace imageposition::bench {

namespace {

/// Slightly more than the pixels of a caret.
constexpr int kCaretPixels = 60;

struct Moment {
  double time, processor;
  Picture picture;
};

double milliseconds(Clock::duration duration) {
  return std::chrono::duration<double, std::milli>(duration).count();
}

class Program {
public:
  explicit Program(const std::string &command) : started_(Clock::now()), pid_(fork()) {
    if (pid_ != 0)
      return;
    setpgid(0, 0);
    const std::string line = "exec " + command;
    execl("/bin/sh", "sh", "-c", line.c_str(), nullptr);
    _exit(127);
  }
  ~Program() {
    kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
  }
  Program(const Program &) = delete;
  Program &operator=(const Program &) = delete;

  Clock::time_point started() const { return started_; }

  double processorTime() const {
    clockid_t clock;
    timespec time{};
    if (clock_getcpuclockid(pid_, &clock) == 0)
      clock_gettime(clock, &time);
    return time.tv_sec * 1e3 + time.tv_nsec / 1e6;
  }

  /// A value of the process's file in /proc, in mebibytes.
  double memory(const std::string &file, const std::string &name) const {
    std::ifstream lines("/proc/" + std::to_string(pid_) + "/" + file);
    for (std::string line; std::getline(lines, line);)
      if (line.compare(0, name.size(), name) == 0)
        return std::stod(line.substr(name.size())) / 1024;
    return 0;
  }

private:
  Clock::time_point started_;
  pid_t pid_;
};

struct Difference {
  int pixels = 0; ///< Pixels that differ from the later picture.
  int edges = 0;  ///< Those among them that are edges (a change of colour) in the later picture.
  int allEdges = 0;
};

Difference difference(const Picture &now, const Picture &later, const Rectangle &where) {
  Difference found;
  for (int y = where.top + 1; y < where.top + where.height; y++)
    for (int x = where.left + 1; x < where.left + where.width; x++) {
      const auto pixel = later.at(x, y);
      const bool isEdge = pixel != later.at(x - 1, y) || pixel != later.at(x, y - 1);
      const bool differs = pixel != now.at(x, y);
      found.allEdges += isEdge;
      found.pixels += differs;
      found.edges += isEdge && differs;
    }
  return found;
}

std::vector<Moment> watch(WatchedScreen &screen, const Program &program,
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
    if (measured.painted == 0 && left.edges * 4 <= left.allEdges) {
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
    const Program program(command);
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
