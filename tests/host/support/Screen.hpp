/// What a window of print-dialog shows, and where on the display.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_SCREEN_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_SCREEN_HPP

#include <string>
#include <vector>

namespace imageposition::test {

/// A visible view. Pixels are counted from the display's upper left corner.
struct Control {
  std::string kind; ///< popup, item (of an open menu), button, stepper, field, label, progress,
                    ///< picture, drawing (of a scale), sheet (enlarged), scroller, viewport (the
                    ///< part of a window that scrolls).
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  bool isEnabled = false;
  bool isOn = false; ///< A ticked checkbox, or an item under the pointer.
  std::string text;  ///< A pop-up's chosen item, a button's title, or a field's content.

  int middleX() const { return x + width / 2; }
  int middleY() const { return y + height / 2; }
};

/// The state that the observer bundle wrote last.
struct Screen {
  bool isTracking = false; ///< A control follows the mouse, or a list is open.
  std::string keyWindow;   ///< Its title, once the program is active.
  int x = 0;               ///< Of the key window's content, according to the program.
  int y = 0;
  std::vector<Control> controls;

  /// Everything is empty if the file does not exist yet.
  static Screen read(const std::string &file);

  /// The first match; null if there is none.
  const Control *find(const std::string &kind, const std::string &text) const;
  /// The next control of that kind to the right of the label.
  const Control *beside(const std::string &label, const std::string &kind) const;
  /// Whether the list of a pop-up is open.
  bool isListOpen() const;
  /// Whether a label contains `text`.
  bool says(const std::string &text) const;
};

} // namespace imageposition::test

#endif
