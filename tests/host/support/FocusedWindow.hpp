/// The window that has the keyboard, as the X server knows it.
#ifndef IMAGEPOSITION_TESTS_HOST_FOCUSEDWINDOW_HPP
#define IMAGEPOSITION_TESTS_HOST_FOCUSEDWINDOW_HPP

#include <string>

namespace imageposition::test {

struct FocusedWindow {
  std::string title;
  int x = 0; ///< Of its content, from the display's upper left corner.
  int y = 0;

  /// Without a title when there is none.
  static FocusedWindow find();
};

} // namespace imageposition::test

#endif
