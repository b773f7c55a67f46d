#import "ControlLock.h"

namespace imageposition {

namespace {

/// Labels are not disabled, and so keep their colour.
bool canBeUsed(NSView *view) {
  if (![view isKindOfClass:[NSControl class]] || [view isKindOfClass:[NSScroller class]] ||
      ![(NSControl *)view isEnabled])
    return false;
  return ![view isKindOfClass:[NSTextField class]] || [(NSTextField *)view isEditable];
}

} // namespace

ControlLock::ControlLock(NSView *root, NSView *exception) { lock(root, exception); }

ControlLock::~ControlLock() {
  for (NSControl *control : locked_) {
    [control setEnabled:YES];
    [control release];
  }
}

void ControlLock::lock(NSView *view, NSView *exception) {
  if (view == exception)
    return;
  if (canBeUsed(view)) {
    NSControl *const control = (NSControl *)view;
    locked_.push_back([control retain]);
    [control setEnabled:NO];
  }
  NSArray *const children = [view subviews];
  for (NSUInteger i = 0; i < [children count]; i++)
    lock([children objectAtIndex:i], exception);
}

} // namespace imageposition
