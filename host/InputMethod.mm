#import "host/QuickStart.h"

#import "host/Replaced.h"

#import <AppKit/AppKit.h>

#include <X11/Xlib.h>

#include <optional>

namespace imageposition {

namespace {

using Opening = BOOL(id, SEL, Display *);
using Focusing = void(id, SEL, void *);
using Filtering = BOOL(id, SEL, XEvent *);

/// Operations of the class that the platform's back end has for input methods.
struct Input {
  explicit Input(Class owner)
      : open(Replaced::objectOperation(owner, sel_registerName("ximInit:"))),
        focus(Replaced::objectOperation(owner, sel_registerName("ximFocusICWindow:"))),
        filter(Replaced::objectOperation(owner, sel_registerName("filterEvent:"))) {}

  Replaced open, focus, filter;
  Display *display = nullptr;
  void *window = nullptr; ///< The platform's record of the one that has the keyboard.
};

std::optional<Input> input;

BOOL openLater(id, SEL, Display *display) {
  input->display = display;
  return YES;
}

void focusLater(id, SEL, void *window) { input->window = window; }

BOOL openForKey(id server, SEL operation, XEvent *event) {
  const auto filter = input->filter.before<Filtering>();
  if (event->type != KeyPress || input->display == nullptr)
    return filter(server, operation, event);
  const auto open = input->open.before<Opening>();
  const auto focus = input->focus.before<Focusing>();
  input->open.restore();
  input->focus.restore();
  input->filter.restore();
  open(server, sel_registerName("ximInit:"), input->display);
  if (input->window != nullptr)
    focus(server, sel_registerName("ximFocusICWindow:"), input->window);
  return filter(server, operation, event);
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
  if (!input->open.isThere() || !input->focus.isThere() || !input->filter.isThere())
    return; // another release of the platform does it in another way
  input->open.by(openLater);
  input->focus.by(focusLater);
  input->filter.by(openForKey);
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
