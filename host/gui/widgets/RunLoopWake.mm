#import "RunLoopWake.h"

#import <AppKit/AppKit.h>

#include <cerrno>
#include <cstdint>
#include <sys/eventfd.h>
#include <system_error>
#include <unistd.h>

namespace imageposition {

/// A kernel counter whose descriptor is readable while the count is not zero.
class RunLoopWake::Event {
public:
  Event() : descriptor_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (descriptor_ < 0)
      throw std::system_error(errno, std::generic_category(), "eventfd");
  }
  ~Event() { close(descriptor_); }
  Event(const Event &) = delete;
  Event &operator=(const Event &) = delete;

  int descriptor() const noexcept { return descriptor_; }
  /// A full counter needs no further signal.
  void signal() const noexcept {
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(descriptor_, &one, sizeof one);
  }
  void clear() const noexcept {
    std::uint64_t count;
    [[maybe_unused]] const auto read = ::read(descriptor_, &count, sizeof count);
  }

private:
  int descriptor_;
};

} // namespace imageposition

/// Receives the run loop's events.
@interface RunLoopWatcher : NSObject <RunLoopEvents> {
@public
  const std::function<void()> *received; ///< Not owned.
}
@end

@implementation RunLoopWatcher

- (void)receivedEvent:(void *)data
                 type:(RunLoopEventType)type
                extra:(void *)extra
              forMode:(NSString *)mode {
  (void)data, (void)type, (void)extra, (void)mode;
  (*received)();
}

@end

namespace imageposition {

namespace {

NSString *const kModes[] = {NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                            NSEventTrackingRunLoopMode};

/// As the run loop takes a descriptor.
void *asData(int descriptor) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr)
  return reinterpret_cast<void *>(static_cast<std::intptr_t>(descriptor));
}

} // namespace

RunLoopWake::RunLoopWake(const std::function<void()> &woken)
    : event_(std::make_shared<const Event>()), received_([=] {
        event_->clear(); // first: a signal during `woken` must cause another call
        woken();
      }),
      watcher_([[RunLoopWatcher alloc] init]) {
  static_cast<RunLoopWatcher *>(watcher_)->received = &received_;
  for (NSString *mode : kModes)
    [[NSRunLoop currentRunLoop] addEvent:asData(event_->descriptor())
                                    type:ET_RDESC
                                 watcher:watcher_
                                 forMode:mode];
}

RunLoopWake::~RunLoopWake() {
  for (NSString *mode : kModes)
    [[NSRunLoop currentRunLoop] removeEvent:asData(event_->descriptor())
                                       type:ET_RDESC
                                    forMode:mode
                                        all:YES];
  [watcher_ release];
}

std::function<void()> RunLoopWake::signal() const {
  const std::shared_ptr<const Event> event = event_;
  return [event] { event->signal(); };
}

} // namespace imageposition
