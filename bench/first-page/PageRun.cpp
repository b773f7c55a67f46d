#include "PageRun.hpp"

#include "ColouredPages.hpp"
#include "Difference.hpp"

#include <X11/extensions/XTest.h>
#include <algorithm>
#include <stdexcept>
#include <vector>

namespace imageposition::bench {

namespace {

using Pause = std::chrono::milliseconds;

constexpr std::chrono::seconds kPatience{10};
constexpr Pause kAfterKey{150};
constexpr int kMostControls = 40;

struct Moment {
  Clock::time_point time;
  Picture picture;
};

[[noreturn]] void fail(const std::string &what) { throw std::runtime_error(what); }

} // namespace

PageRun::PageRun(WatchedScreen &screen, const std::string &command)
    : screen_(screen), keys_(XOpenDisplay(nullptr)), program_(command) {}

/// Closing the window draws as well, which must not count for the next run.
PageRun::~PageRun() {
  program_.end();
  while (screen_.largestWindow())
    screen_.waitForDrawing(Clock::now() + Pause(20));
  awaitSilence(Pause(200));
  XCloseDisplay(keys_);
}

PageRun::FirstPage PageRun::awaitFirstPage() {
  std::vector<Moment> before;
  const auto end = program_.started() + kPatience;
  while (screen_.waitForDrawing(end)) {
    Picture picture = screen_.picture();
    const auto now = Clock::now();
    if (placeOfPage(picture, 0).width == 0) {
      before.push_back({now, std::move(picture)});
      continue;
    }
    const auto window = screen_.largestWindow();
    auto painted = now; // if the page comes with the window
    if (window)
      for (auto moment = before.rbegin(); moment != before.rend(); ++moment)
        if (difference(moment->picture, before.back().picture, *window).isPainted())
          painted = moment->time;
    return {milliseconds(painted - program_.started()), milliseconds(now - painted)};
  }
  fail("The first page was not shown.");
}

void PageRun::awaitSilence(Pause duration) {
  const auto end = Clock::now() + kPatience; // a caret blinks for ever
  while (Clock::now() < end && screen_.waitForDrawing(Clock::now() + duration)) {
  }
}

double PageRun::step() {
  const Picture before = screen_.picture();
  const Rectangle page = placeOfPage(before, 0);
  const auto window = screen_.largestWindow();
  if (page.width == 0 || !window)
    fail("There is no page to move.");
  // The picture and its scale are on the right.
  const int left = page.left - page.width;
  const Rectangle where{left, window->top, window->left + window->width - left, window->height};
  const auto start = Clock::now();
  press(XK_Up);
  double last = 0;
  Picture shown = before;
  while (screen_.waitForDrawing(start + kAfterKey)) {
    Picture picture = screen_.picture();
    const auto now = Clock::now();
    if (difference(shown, picture, where).pixels > 0)
      last = milliseconds(now - start);
    shown = std::move(picture);
  }
  if (last == 0)
    fail("The picture did not follow the offset.");
  return last;
}

bool PageRun::becomes(int page, Clock::time_point deadline) {
  do {
    if (placeOfPage(screen_.picture(), page).width > 0)
      return true;
  } while (screen_.waitForDrawing(deadline));
  return false;
}

/// Page Down turns the sheet wherever the focus is, Left only where the sheets have it.
void PageRun::focusSheets() {
  turn(XK_Page_Down, 2);
  for (int control = 0; control < kMostControls; control++) {
    press(XK_Tab);
    awaitSilence(Pause(50));
    press(XK_Left);
    if (!becomes(0, Clock::now() + Pause(200)))
      continue;
    awaitSilence();
    return;
  }
  fail("The arrow keys turn no sheet.");
}

double PageRun::turn(KeySym key, int page) {
  const auto start = Clock::now();
  press(key);
  if (!becomes(page, start + kPatience))
    fail("The sheet was not turned.");
  return milliseconds(Clock::now() - start);
}

void PageRun::enlarge() {
  press(XK_n, XK_Alt_L);
  awaitSilence(Pause(1000));
}

void PageRun::press(KeySym key, KeySym with) {
  for (const bool isDown : {true, false}) {
    if (with != NoSymbol && isDown)
      XTestFakeKeyEvent(keys_, XKeysymToKeycode(keys_, with), True, CurrentTime);
    XTestFakeKeyEvent(keys_, XKeysymToKeycode(keys_, key), isDown, CurrentTime);
    if (with != NoSymbol && !isDown)
      XTestFakeKeyEvent(keys_, XKeysymToKeycode(keys_, with), False, CurrentTime);
  }
  XFlush(keys_);
}

double peakMemoryOf(WatchedScreen &screen, const std::string &command) {
  PageRun run(screen, command);
  screen.waitForDrawing(Clock::now() + kPatience);
  run.awaitSilence(Pause(1000));
  return run.peakMemory();
}

} // namespace imageposition::bench
