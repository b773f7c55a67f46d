#import "ModalLook.h"

#import "TextBridge.h"

#include <gtest/gtest.h>

#include <vector>

@implementation ModalLook

- (void)lookAndClose {
  (*look)([NSApp modalWindow]);
  [NSApp abortModal];
}

@end

namespace imageposition::test {

void inModalWindow(const std::function<void()> &open, const std::function<void(NSWindow *)> &look) {
  ModalLook *const looker = [[[ModalLook alloc] init] autorelease];
  looker->look = &look;
  [looker performSelector:@selector(lookAndClose)
               withObject:nil
               afterDelay:0
                  inModes:[NSArray arrayWithObject:NSModalPanelRunLoopMode]];
  open();
}

void eachShown(NSView *view, const std::function<void(NSView *)> &look) {
  for (NSUInteger i = 0; i < [[view subviews] count]; i++) {
    NSView *const one = [[view subviews] objectAtIndex:i];
    if ([one isHidden])
      continue;
    look(one);
    if (![one isKindOfClass:[NSControl class]] && ![one isKindOfClass:[NSScrollView class]])
      eachShown(one, look);
  }
}

void expectNoOverlaps(NSWindow *window) {
  constexpr CGFloat kRounding = 1; // a window is whole pixels large
  std::vector<NSView *> views;
  eachShown([window contentView], [&](NSView *view) { views.push_back(view); });
  for (std::size_t i = 0; i < views.size(); i++) {
    const NSRect around = NSInsetRect([[views[i] superview] bounds], -kRounding, -kRounding);
    EXPECT_TRUE(NSContainsRect(around, [views[i] frame])) << toText([views[i] description]);
    for (std::size_t j = i + 1; j < views.size(); j++)
      EXPECT_FALSE([views[i] superview] == [views[j] superview] &&
                   NSIntersectsRect([views[i] frame], [views[j] frame]))
          << toText([views[i] description]) << " " << toText([views[j] description]);
  }
}

} // namespace imageposition::test
