/// A person at the display: real key and button events from the X server, and an event loop that
/// runs until something is seen.
#ifndef IMAGEPOSITION_TESTS_WINDOW_PERSON_H
#define IMAGEPOSITION_TESTS_WINDOW_PERSON_H

#import <AppKit/AppKit.h>

#include <functional>
#include <memory>
#include <string>

namespace imageposition::test {

/// Handles events until the condition holds; false when it does not within ten seconds.
bool runUntil(const std::function<bool()> &condition);

/// What a person does has been handled when the operation returns. Throws when it does not arrive.
class Person {
public:
  Person();
  ~Person();
  Person(const Person &) = delete;
  Person &operator=(const Person &) = delete;

  /// Clicks at a point of the view, given as fractions of its width and its height, which count
  /// upwards on the display.
  void click(NSView *view, double x = 0.5, double y = 0.5);
  /// Digits, minus signs and lower-case letters.
  void type(const std::string &text);
  /// A key by the X server's name for it: "Tab", "space", "Return", "BackSpace". The one in `held`
  /// is held meanwhile.
  void press(const std::string &key, const std::string &held = {});

private:
  void hit(const std::string &key, const std::string &held);
  /// Handles everything that was done so far.
  void settle();

  struct Server;
  std::unique_ptr<Server> server_;
};

/// Another program that owns the clipboard, and offers this text on it as long as it lives.
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
