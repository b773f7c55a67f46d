#import "UnmanagedWindow.h"

#import "XWindow.h"

#include <X11/Xlib.h>

namespace imageposition {

void hideFromWindowManager(NSWindow *window) {
  const XWindow own = xWindowOf(window);
  if (own.number == 0)
    return;
  XSetWindowAttributes attributes{};
  attributes.override_redirect = True;
  XChangeWindowAttributes(static_cast<Display *>(own.display), own.number, CWOverrideRedirect,
                          &attributes);
}

} // namespace imageposition
