#import "Person.h"

#import "TestPool.h"

#import <GNUstepGUI/GSDisplayServer.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <csignal>
#include <stdexcept>

// The X server's headers and the platform's both define these.
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

// The next event, or none, and what is to be done before it is handled.
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

constexpr unsigned long kReleaseDelay = 20; // milliseconds by the X server's clock

struct Person::Server {
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

  // The platform calls a window visible before the server shows it.
  bool pointerIsIn(NSWindow *window) {
    const auto wanted = reinterpret_cast<Window>(
        [GSServerForWindow(window) windowDevice:static_cast<int>([window windowNumber])]);
    Window root, child = DefaultRootWindow(display);
    int rootX, rootY, x, y;
    unsigned int buttons;
    while (child != None && child != wanted) {
      if (!XQueryPointer(display, child, &root, &child, &rootX, &rootY, &x, &y, &buttons))
        return false;
    }
    return child == wanted;
  }

  void button(bool down, unsigned long delay) {
    XTestFakeButtonEvent(display, 1, down, delay);
    XFlush(display);
  }

  void key(const std::string &name, bool down) {
    XTestFakeKeyEvent(display, code(name), down, CurrentTime);
  }
};

Person::Person() : server_(std::make_unique<Server>()) {
  if (server_->display == nullptr)
    throw std::runtime_error("no display");
}

Person::~Person() { XCloseDisplay(server_->display); }

void Person::click(NSView *view, double x, double y) {
  const NSRect bounds = [view bounds];
  const double up = [view isFlipped] ? 1 - y : y;
  const NSPoint inView =
      NSMakePoint(NSMinX(bounds) + x * NSWidth(bounds), NSMinY(bounds) + up * NSHeight(bounds));
  NSWindow *const window = [view window];
  // Where the window is can change until its manager has placed it.
  handleUntil("pointer in the window",
              [&] {
                server_->moveTo([window convertBaseToScreen:[view convertPoint:inView toView:nil]],
                                [window screen]);
                return server_->pointerIsIn(window);
              },
              {});
  server_->button(true, CurrentTime);
  // The window manager sees each press first and holds the pointer meanwhile; and the platform
  // turns around a press and a release that it finds waiting together. So the release comes when
  // the press is about to be handled, which may last until then.
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
    server_->button(false, CurrentTime); // for whoever clicks next
    throw;
  }
  settle();
}

void Person::type(const std::string &text) {
  for (const char character : text)
    hit(character == '-' ? "minus" : std::string(1, character), {});
  settle();
}

void Person::press(const std::string &key, const std::string &held) {
  hit(key, held);
  settle();
}

void Person::hit(const std::string &key, const std::string &held) {
  if (!held.empty())
    server_->key(held, true);
  server_->key(key, true);
  server_->key(key, false);
  if (!held.empty())
    server_->key(held, false);
  XFlush(server_->display);
}

// Events arrive in their order: when this key has been pressed and released, so has all before it.
void Person::settle() {
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
  posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0); // its commentary
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
