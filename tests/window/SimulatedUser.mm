#import "SimulatedUser.h"

#import "TestPool.h"

#import <GNUstepGUI/GSDisplayServer.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <csignal>
#include <stdexcept>

// X11's headers and GNUstep's both define these.
#define BOOL XlibBOOL
#define Cursor XlibCursor
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#undef BOOL
#undef Cursor

extern char **environ;

namespace imageposition::test {

namespace {

constexpr double kDeadline = 10; // seconds

// Handles the next event, if there is one; calls `before` first.
void handleEvent(const std::function<void(NSEvent *)> &before = {}) {
  Pool pool;
  NSEvent *event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                      untilDate:[NSDate dateWithTimeIntervalSinceNow:0.01]
                                         inMode:NSDefaultRunLoopMode
                                        dequeue:YES];
  if (event != nil) {
    if (before)
      before(event);
    [NSApp sendEvent:event];
  }
  [NSApp updateWindows];
}

void handleUntil(const char *awaited, const std::function<bool()> &condition,
                 const std::function<void(NSEvent *)> &before) {
  NSDate *deadline = [NSDate dateWithTimeIntervalSinceNow:kDeadline];
  while (!condition()) {
    if ([deadline timeIntervalSinceNow] < 0)
      throw std::runtime_error(std::string("no ") + awaited + " arrives");
    handleEvent(before);
  }
}

} // namespace

bool runUntil(const std::function<bool()> &condition) {
  NSDate *deadline = [NSDate dateWithTimeIntervalSinceNow:kDeadline];
  while (!condition()) {
    if ([deadline timeIntervalSinceNow] < 0)
      return false;
    handleEvent();
  }
  return true;
}

constexpr unsigned long kReleaseDelay = 20; // in milliseconds of the X server's clock

struct SimulatedUser::Server {
  Display *display = XOpenDisplay(nullptr);

  KeyCode code(const std::string &name) {
    const KeySym symbol = XStringToKeysym(name.c_str());
    const KeyCode result = XKeysymToKeycode(display, symbol);
    if (result == 0)
      throw std::runtime_error("the keyboard has no key " + name);
    return result;
  }

  void moveTo(NSPoint place, NSScreen *screen) {
    XTestFakeMotionEvent(display, -1, int(std::lround(place.x)),
                         int(std::lround(NSHeight([screen frame]) - place.y)), CurrentTime);
    XFlush(display);
  }

  // AppKit reports a window as visible before the X server shows it.
  bool pointerIsIn(NSWindow *window) {
    const auto target = reinterpret_cast<Window>(
        [GSServerForWindow(window) windowDevice:static_cast<int>([window windowNumber])]);
    Window root, child = DefaultRootWindow(display);
    int rootX, rootY, x, y;
    unsigned int buttons;
    while (child != None && child != target) {
      if (!XQueryPointer(display, child, &root, &child, &rootX, &rootY, &x, &y, &buttons))
        return false;
    }
    return child == target;
  }

  void button(bool down, unsigned long delay) {
    XTestFakeButtonEvent(display, 1, down, delay);
    XFlush(display);
  }

  void key(const std::string &name, bool down) {
    XTestFakeKeyEvent(display, code(name), down, CurrentTime);
  }
};

SimulatedUser::SimulatedUser() : server_(std::make_unique<Server>()) {
  if (server_->display == nullptr)
    throw std::runtime_error("no display");
}

SimulatedUser::~SimulatedUser() { XCloseDisplay(server_->display); }

void SimulatedUser::click(NSView *view, double x, double y) {
  const NSRect bounds = [view bounds];
  const double up = [view isFlipped] ? 1 - y : y;
  const NSPoint inView =
      NSMakePoint(NSMinX(bounds) + x * NSWidth(bounds), NSMinY(bounds) + up * NSHeight(bounds));
  NSWindow *const window = [view window];
  // The window's position can change until the window manager has placed it.
  handleUntil("pointer in the window",
              [&] {
                server_->moveTo([window convertBaseToScreen:[view convertPoint:inView toView:nil]],
                                [window screen]);
                return server_->pointerIsIn(window);
              },
              {});
  server_->button(true, CurrentTime);
  // The window manager receives each press first and grabs the pointer meanwhile, and GNUstep swaps
  // a press and a release that wait in the queue together. So send the release when the press is
  // about to be handled; handling it may take until the release arrives.
  bool pressed = false;
  try {
    handleUntil(
        "press of the button", [&] { return pressed; },
        [&](NSEvent *event) {
          if ([event type] != NSLeftMouseDown)
            return;
          pressed = true;
          server_->button(false, kReleaseDelay);
        });
  } catch (...) {
    server_->button(false, CurrentTime); // for the next click
    throw;
  }
  settle();
}

void SimulatedUser::type(const std::string &text) {
  for (const char character : text)
    hit(character == '-' ? "minus" : std::string(1, character), {});
  settle();
}

void SimulatedUser::press(const std::string &key, const std::string &held) {
  hit(key, held);
  settle();
}

void SimulatedUser::hit(const std::string &key, const std::string &held) {
  if (!held.empty())
    server_->key(held, true);
  server_->key(key, true);
  server_->key(key, false);
  if (!held.empty())
    server_->key(held, false);
  XFlush(server_->display);
}

// Events arrive in order: once this key was pressed and released, all earlier events were handled.
void SimulatedUser::settle() {
  server_->key("Control_L", true);
  server_->key("Control_L", false);
  XFlush(server_->display);
  bool pressed = false;
  bool released = false;
  handleUntil(
      "key", [&] { return released; },
      [&](NSEvent *event) {
        if ([event type] != NSFlagsChanged)
          return;
        const bool held = ([event modifierFlags] & NSControlKeyMask) != 0;
        released = pressed && !held;
        pressed = pressed || held;
      });
}

ClipboardOwner::ClipboardOwner(const std::string &text) {
  int ends[2];
  if (pipe(ends) != 0)
    throw std::runtime_error("cannot make a pipe");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[0], 0);
  posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0); // discard its messages
  posix_spawn_file_actions_addclose(&actions, ends[0]);
  posix_spawn_file_actions_addclose(&actions, ends[1]);
  const char *const arguments[] = {"xclip", "-quiet", "-selection", "clipboard", nullptr};
  const int failed = posix_spawnp(&process_, "xclip", &actions, nullptr,
                                  const_cast<char *const *>(arguments), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(ends[0]);
  const bool written = write(ends[1], text.data(), text.size()) == ssize_t(text.size());
  close(ends[1]);
  if (failed != 0 || !written)
    throw std::runtime_error("cannot run xclip");
  Display *display = XOpenDisplay(nullptr);
  const Atom clipboard = XInternAtom(display, "CLIPBOARD", False);
  const bool owned = runUntil([&] { return XGetSelectionOwner(display, clipboard) != None; });
  XCloseDisplay(display);
  if (!owned)
    throw std::runtime_error("xclip does not take the clipboard");
}

ClipboardOwner::~ClipboardOwner() {
  kill(process_, SIGTERM);
  waitpid(process_, nullptr, 0);
}

} // namespace imageposition::test
