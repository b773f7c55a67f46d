/// The window with the keyboard focus, according to the X server.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_FOCUSEDWINDOW_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_FOCUSEDWINDOW_HPP

#include <string>

namespace imageposition::test {

struct FocusedWindow {
  std::string title;
  int x = 0; ///< Of its content, from the display's upper left corner.
  int y = 0;

  /// The title is empty if no window has the focus.
  static FocusedWindow find();
};

} // namespace imageposition::test

#endif
