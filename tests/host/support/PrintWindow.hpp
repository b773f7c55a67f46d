/// Operates a window of print-dialog like a user, with real keys and clicks.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_PRINTWINDOW_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_PRINTWINDOW_HPP

#include "PlatformDefaults.hpp"
#include "ProcessRun.hpp"
#include "Screen.hpp"
#include "TemporaryFolder.hpp"

#include <functional>
#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

namespace imageposition::test {

/// Each action throws, with a description of the window, if the control that it needs does not
/// appear in time.
class PrintWindow {
public:
  /// Starts the program and waits until its window with that title has the keyboard focus.
  explicit PrintWindow(const std::vector<std::string> &words,
                       const std::vector<std::string> &environment = {},
                       const std::string &title = "Print");

  /// Has every print-dialog that starts describe its window, until the object is destroyed.
  static std::unique_ptr<PlatformDefaults> loadObserver();
  /// Takes over a window of a program that another one has started with OBSERVER_FILE set to
  /// `file`. Call neither `process` nor `ended`.
  PrintWindow(pid_t program, const std::string &file, const std::string &title = "Print");

  Screen screen() const { return Screen::read(file()); }
  /// Waits until the condition holds.
  bool becomes(const std::function<bool(const Screen &)> &condition) const;
  /// Waits until a label contains `text`.
  bool says(const std::string &text) const;
  /// The content of the field beside the label; "?" if there is none.
  std::string field(const std::string &label) const;

  /// Whether a window of the program has the keyboard focus, and is where the program believes it
  /// to be.
  bool hasKeyboard(const std::string &title) const;
  /// Moves the window's corner to that position.
  void moveTo(int x, int y);

  void press(const std::string &key);
  void write(const std::string &text);
  void click(const std::string &button);
  /// Chooses the item whose title begins with `item` in the pop-up beside the label.
  void choose(const std::string &label, const std::string &item);
  /// Clicks on an item of the open list, given the start of its title.
  void chooseInList(const std::string &item);
  /// Replaces the content of the field beside the label, and leaves the field.
  void enter(const std::string &label, const std::string &text);
  /// Clicks the upper or the lower half of the stepper beside the label.
  void step(const std::string &label, bool up);
  /// Ticks or clears a checkbox.
  void tick(const std::string &title, bool on);

  Process &process() { return *process_; }
  /// Waits for the program to exit and returns its result.
  const ProcessResult &ended();

private:
  const std::string &file() const { return file_; }
  bool hasEnded() const;
  void awaitKeyboard(const std::string &title);
  Control awaited(const std::string &what,
                  const std::function<const Control *(const Screen &)> &find) const;
  /// Holds the mouse button until the program has noticed it and `before` has run.
  void clickAt(int x, int y, const std::function<void()> &before = {});

  TemporaryFolder folder_;
  const std::string file_;
  const std::unique_ptr<PlatformDefaults> defaults_; // null if taken over
  const pid_t program_ = 0;
  const std::unique_ptr<Process> process_; // destroyed before the folder; null if taken over
};

} // namespace imageposition::test

#endif
