#import "QuickStart.h"

#import "Replaced.h"

#import <AppKit/AppKit.h>

#include <X11/Xlib.h>

#include <dlfcn.h>

#include <optional>

namespace imageposition {

namespace {

using Opening = BOOL(id, SEL, Display *);
using Focusing = void(id, SEL, void *);

/// Operations of the class that the platform's back end has for input methods.
struct Input {
  explicit Input(Class owner)
      : open(Replaced::objectOperation(owner, sel_registerName("ximInit:"))),
        focus(Replaced::objectOperation(owner, sel_registerName("ximFocusICWindow:"))) {}

  Replaced open, focus;
  id server = nil; ///< Borrowed; lives as long as the application.
  Display *display = nullptr;
  void *window = nullptr; ///< The platform's record of the one that has the keyboard.
};

std::optional<Input> input;

BOOL openLater(id server, SEL, Display *display) {
  input->server = server;
  input->display = display;
  return YES;
}

void focusLater(id, SEL, void *window) { input->window = window; }

void openNow() {
  const auto open = input->open.before<Opening>();
  const auto focus = input->focus.before<Focusing>();
  input->open.restore();
  input->focus.restore();
  open(input->server, sel_registerName("ximInit:"), input->display);
  if (input->window != nullptr)
    focus(input->server, sel_registerName("ximFocusICWindow:"), input->window);
  input->server = nil;
}

} // namespace
} // namespace imageposition

@interface InputMethodDelay : NSObject
+ (void)bundleLoaded:(NSNotification *)notification;
@end

@implementation InputMethodDelay

+ (void)bundleLoaded:(NSNotification *)notification {
  using namespace imageposition;
  (void)notification;
  const Class owner = NSClassFromString(@"XIMInputServer");
  if (owner == Nil)
    return;
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  input.emplace(owner);
  if (!input->open.isThere() || !input->focus.isThere())
    return; // another release of the platform does it in another way
  input->open.by(openLater);
  input->focus.by(focusLater);
}

@end

namespace imageposition {

void openInputMethodWithFirstKey() {
  [[NSNotificationCenter defaultCenter] addObserver:[InputMethodDelay class]
                                           selector:@selector(bundleLoaded:)
                                               name:NSBundleDidLoadNotification
                                             object:nil];
}

} // namespace imageposition

/// In Xlib's place: the platform hands every event to this function before it looks at it, and the
/// linker takes the program's own.
extern "C" __attribute__((visibility("default"))) Bool XFilterEvent(XEvent *event, Window window) {
  using Filter = Bool (*)(XEvent *, Window);
  static const auto filter = reinterpret_cast<Filter>(dlsym(RTLD_NEXT, "XFilterEvent"));
  if (event->type == KeyPress && imageposition::input && imageposition::input->server != nil)
    imageposition::openNow();
  return filter != nullptr ? filter(event, window) : False;
}
