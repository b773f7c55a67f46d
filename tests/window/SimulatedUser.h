/// A user at the display: real keyboard and mouse events from the X server, and an event loop that
/// runs until a condition holds.
#ifndef IMAGEPOSITION_TESTS_WINDOW_SIMULATEDUSER_H
#define IMAGEPOSITION_TESTS_WINDOW_SIMULATEDUSER_H

#import <AppKit/AppKit.h>

#include <functional>
#include <memory>
#include <string>

namespace imageposition::test {

/// Handles events until the condition holds; returns false if it does not within ten seconds.
bool runUntil(const std::function<bool()> &condition);

/// Each function returns once the program has handled its events, and throws if they do not arrive.
class SimulatedUser {
public:
  SimulatedUser();
  ~SimulatedUser();
  SimulatedUser(const SimulatedUser &) = delete;
  SimulatedUser &operator=(const SimulatedUser &) = delete;

  /// Clicks at a point of the view, given as fractions of its width and of its height from the
  /// bottom.
  void click(NSView *view, double x = 0.5, double y = 0.5);
  /// Types digits, minus signs and lower-case letters.
  void type(const std::string &text);
  /// Presses a key by its X keysym name ("Tab", "space", "Return", "BackSpace") while `held` is
  /// held.
  void press(const std::string &key, const std::string &held = {});

private:
  void hit(const std::string &key, const std::string &held);
  /// Waits until all events so far are handled.
  void settle();

  struct Server;
  std::unique_ptr<Server> server_;
};

/// Another program that owns the clipboard and offers this text.
class ClipboardOwner {
public:
  explicit ClipboardOwner(const std::string &text);
  ~ClipboardOwner();
  ClipboardOwner(const ClipboardOwner &) = delete;
  ClipboardOwner &operator=(const ClipboardOwner &) = delete;

private:
  int process_ = -1;
};

} // namespace imageposition::test

#endif
