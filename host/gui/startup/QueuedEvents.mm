#import "QueuedEvents.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#include <X11/Xlib.h>
#include <cerrno>
#include <cstdint>
#include <sys/eventfd.h>
#include <system_error>
#include <unistd.h>

/// A descriptor that becomes readable when the run loop is about to wait although there are events.
@interface QueuedEvents : NSObject <RunLoopEvents> {
  Display *display;
  int descriptor;
}
@end

@implementation QueuedEvents

- (id)initWithDisplay:(Display *)theDisplay {
  if ((self = [super init]) == nil)
    return nil;
  display = theDisplay;
  descriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  if (descriptor < 0)
    throw std::system_error(errno, std::generic_category(), "eventfd");
  NSString *const modes[] = {NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                             NSEventTrackingRunLoopMode};
  for (NSString *mode : modes)
    [[NSRunLoop currentRunLoop]
        addEvent:reinterpret_cast<void *>( // NOLINT(performance-no-int-to-ptr)
                     static_cast<std::intptr_t>(descriptor))
            type:ET_RDESC
         watcher:self
         forMode:mode];
  return self;
}

/// The run loop asks before each wait.
- (BOOL)runLoopShouldBlock:(BOOL *)trigger {
  *trigger = YES;
  if (XEventsQueued(display, QueuedAfterReading) > 0) {
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(descriptor, &one, sizeof one);
  }
  return YES;
}

- (void)receivedEvent:(void *)data
                 type:(RunLoopEventType)type
                extra:(void *)extra
              forMode:(NSString *)mode {
  (void)data, (void)type, (void)extra, (void)mode;
  std::uint64_t count = 0;
  [[maybe_unused]] const auto ignored = read(descriptor, &count, sizeof count);
}

@end

namespace imageposition {

void deliverQueuedEvents() {
  auto *const display = static_cast<Display *>([GSCurrentServer() serverDevice]);
  // The run loop does not retain it.
  [[maybe_unused]] static QueuedEvents *const events =
      display != nullptr ? [[QueuedEvents alloc] initWithDisplay:display] : nil;
}

} // namespace imageposition
