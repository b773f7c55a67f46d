#import "XWindow.h"

#import <GNUstepGUI/GSDisplayServer.h>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace imageposition {

XWindow xWindowOf(NSWindow *window) {
  GSDisplayServer *const server = GSServerForWindow(window);
  void *const display = [server serverDevice];
  void *const device = [server windowDevice:static_cast<int>([window windowNumber])];
  if (display == nullptr || device == nullptr)
    return {};
  return {display, static_cast<Window>(reinterpret_cast<std::uintptr_t>(device))};
}

void makeModalDialogOf(NSWindow *window, std::uint32_t parent) {
  const XWindow own = xWindowOf(window);
  if (own.number == 0)
    return;
  auto *const display = static_cast<Display *>(own.display);
  XSetTransientForHint(display, own.number, parent);
  constexpr long kAdd = 1, kFromApplication = 1; // of the window manager's specification
  XEvent request{};
  request.xclient.type = ClientMessage;
  request.xclient.window = own.number;
  request.xclient.message_type = XInternAtom(display, "_NET_WM_STATE", False);
  request.xclient.format = 32;
  request.xclient.data.l[0] = kAdd;
  request.xclient.data.l[1] = static_cast<long>(XInternAtom(display, "_NET_WM_STATE_MODAL", False));
  request.xclient.data.l[3] = kFromApplication;
  XSendEvent(display, DefaultRootWindow(display), False,
             SubstructureNotifyMask | SubstructureRedirectMask, &request);
  XFlush(display);
}

void describeAsDialog(NSWindow *window, bool isModal) {
  const XWindow own = xWindowOf(window);
  if (own.number == 0)
    return;
  auto *const display = static_cast<Display *>(own.display);
  const auto set = [&](const char *property, const char *value) {
    const Atom atom = XInternAtom(display, value, False);
    XChangeProperty(display, own.number, XInternAtom(display, property, False), XA_ATOM, 32,
                    PropModeReplace, reinterpret_cast<const unsigned char *>(&atom), 1);
  };
  set("_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DIALOG");
  if (isModal)
    set("_NET_WM_STATE", "_NET_WM_STATE_MODAL");
}

} // namespace imageposition
