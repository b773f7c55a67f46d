// A click is finished as soon as the button is released.
#import "QueuedEvents.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#include <cstdint>
#include <gtest/gtest.h>

#include <X11/Xlib.h> // last: its macros have gtest's names

/// Lets Xlib read an event while the run loop is about to wait.
@interface EventReader : NSObject {
@public
  Display *display;
  Window window;
}
@end

@implementation EventReader

- (void)read:(NSTimer *)timer {
  (void)timer;
  XEvent event{};
  event.xbutton.type = ButtonRelease;
  event.xbutton.display = display;
  event.xbutton.window = window;
  event.xbutton.button = Button1;
  XPutBackEvent(display, &event);
}

@end

namespace {

TEST(QueuedEvents, EndTheWaitForThem) {
  [NSApplication sharedApplication];
  imageposition::deliverQueuedEvents();
  NSWindow *const window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 100, 100)
                                                       styleMask:NSBorderlessWindowMask
                                                         backing:NSBackingStoreBuffered
                                                           defer:NO];
  GSDisplayServer *const server = GSServerForWindow(window);
  EventReader *const reader = [[EventReader alloc] init];
  reader->display = static_cast<Display *>([server serverDevice]);
  reader->window = static_cast<Window>(reinterpret_cast<std::uintptr_t>(
      [server windowDevice:static_cast<int>([window windowNumber])]));
  NSTimer *const timer = [NSTimer timerWithTimeInterval:0
                                                 target:reader
                                               selector:@selector(read:)
                                               userInfo:nil
                                                repeats:NO];
  [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSEventTrackingRunLoopMode];
  NSDate *const deadline = [NSDate dateWithTimeIntervalSinceNow:30];
  NSEvent *const event = [NSApp nextEventMatchingMask:NSLeftMouseUpMask
                                            untilDate:deadline
                                               inMode:NSEventTrackingRunLoopMode
                                              dequeue:YES];
  EXPECT_TRUE(event != nil);
  EXPECT_GT([deadline timeIntervalSinceNow], 0) << "only another event has ended the wait";
  [reader release];
  [window release];
}

} // namespace
