#import "UnmanagedWindow.h"

#import <GNUstepGUI/GSDisplayServer.h>

#include <X11/Xlib.h>

#include <cstdint>

namespace imageposition {

void hideFromWindowManager(NSWindow *window) {
  GSDisplayServer *const server = GSServerForWindow(window);
  auto *const display = static_cast<Display *>([server serverDevice]);
  void *const device = [server windowDevice:static_cast<int>([window windowNumber])];
  if (display == nullptr || device == nullptr)
    return;
  XSetWindowAttributes attributes{};
  attributes.override_redirect = True;
  XChangeWindowAttributes(display, static_cast<Window>(reinterpret_cast<std::uintptr_t>(device)),
                          CWOverrideRedirect, &attributes);
}

} // namespace imageposition
