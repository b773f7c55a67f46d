/// What a window of print-dialog shows, and where on the display.
#ifndef IMAGEPOSITION_TESTS_HOST_SCREEN_HPP
#define IMAGEPOSITION_TESTS_HOST_SCREEN_HPP

#include <string>
#include <vector>

namespace imageposition::test {

/// A view that is visible. Pixels count from the display's upper left corner.
struct Control {
  std::string
      kind; ///< popup, item (of an open menu), button, stepper, field, label, progress, picture.
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  bool isEnabled = false;
  bool isOn = false; ///< A checkbox that is ticked, an item under the pointer.
  std::string text;  ///< A pop-up's chosen item, a button's title, what a field holds.

  int middleX() const { return x + width / 2; }
  int middleY() const { return y + height / 2; }
};

/// As the bundle that observes the program wrote it down last.
struct Screen {
  bool isTracking = false; ///< A button of the mouse is held in one of the program's controls.
  std::string keyWindow;   ///< Its title, once the program is the active one.
  int x = 0;               ///< Of the key window's content, as the program knows it.
  int y = 0;
  std::vector<Control> controls;

  /// Everything is empty when there is no such file yet.
  static Screen read(const std::string &file);

  /// Null when there is none. Of several, the first.
  const Control *find(const std::string &kind, const std::string &text) const;
  /// The next control of that kind to the right of the label with that text.
  const Control *beside(const std::string &label, const std::string &kind) const;
  /// Whether a label contains the text.
  bool says(const std::string &text) const;
};

} // namespace imageposition::test

#endif
