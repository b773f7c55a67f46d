/// A person at a window of print-dialog: real keys and clicks, on what the window shows.
#ifndef IMAGEPOSITION_TESTS_HOST_PRINTWINDOW_HPP
#define IMAGEPOSITION_TESTS_HOST_PRINTWINDOW_HPP

#include "PlatformDefaults.hpp"
#include "ProcessRun.hpp"
#include "Screen.hpp"
#include "TemporaryFolder.hpp"

#include <functional>
#include <string>
#include <vector>

namespace imageposition::test {

/// Each act throws, with what the window shows, when what it needs does not show up in time.
class PrintWindow {
public:
  /// Starts the program and waits until its window, of that title, has the keyboard.
  explicit PrintWindow(const std::vector<std::string> &words,
                       const std::vector<std::string> &environment = {},
                       const std::string &title = "Print");

  Screen screen() const { return Screen::read(file()); }
  /// Waits until the window is as wanted.
  bool becomes(const std::function<bool(const Screen &)> &condition) const;
  /// Waits until a label contains the text.
  bool says(const std::string &text) const;
  /// What the field beside the label holds; "?" when there is none.
  std::string field(const std::string &label) const;

  /// Whether a window of the program has the keyboard, and is where the program believes it to be.
  bool hasKeyboard(const std::string &title) const;
  /// Puts the window's corner there.
  void moveTo(int x, int y);

  void press(const std::string &key);
  void write(const std::string &text);
  void click(const std::string &button);
  /// Chooses an item whose title begins so, of the pop-up beside the label.
  void choose(const std::string &label, const std::string &item);
  /// Replaces what the field beside the label holds, and leaves the field.
  void enter(const std::string &label, const std::string &text);
  /// Clicks the upper or the lower half of the stepper beside the label.
  void step(const std::string &label, bool up);
  /// Ticks a checkbox, or takes the tick away.
  void tick(const std::string &title, bool on);

  Process &process() { return process_; }
  /// How the program ended; it must end by itself.
  const ProcessResult &ended();

private:
  std::string file() const { return folder_.path("screen"); }
  Control awaited(const std::string &what,
                  const std::function<const Control *(const Screen &)> &find) const;
  /// Holds the button until the program has seen it, and `before` is done.
  void clickAt(int x, int y, const std::function<void()> &before = {});

  TemporaryFolder folder_;
  PlatformDefaults defaults_; // has the observer loaded
  Process process_;           // ends before the folder goes
};

} // namespace imageposition::test

#endif
