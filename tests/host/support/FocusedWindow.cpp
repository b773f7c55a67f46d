#include "FocusedWindow.hpp"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace imageposition::test {

FocusedWindow FocusedWindow::find() {
  FocusedWindow found;
  Display *const display = XOpenDisplay(nullptr);
  if (display == nullptr)
    return found;
  // A window may disappear at any time.
  const auto before = XSetErrorHandler([](Display *, XErrorEvent *) { return 0; });
  Window window = None, child = None;
  int ignored;
  XGetInputFocus(display, &window, &ignored);
  XTextProperty title{};
  if (window != None && window != PointerRoot && XGetWMName(display, window, &title) != 0 &&
      XTranslateCoordinates(display, window, DefaultRootWindow(display), 0, 0, &found.x, &found.y,
                            &child) != False)
    found.title = reinterpret_cast<const char *>(title.value);
  if (title.value != nullptr)
    XFree(title.value);
  XCloseDisplay(display);
  XSetErrorHandler(before);
  return found;
}

} // namespace imageposition::test
