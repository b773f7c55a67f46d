#import "QuickStart.h"

#import "Replaced.h"

#import <AppKit/AppKit.h>

#include <algorithm>
#include <unistd.h>

namespace imageposition {

namespace {

id doNothing(id, SEL, ...) { return nil; }

void leaveOutOfClass(Class owner, SEL operation) {
  Replaced::classOperation(owner, operation).by(doNothing);
}

void leaveOut(Class owner, const char *operation) {
  Replaced::objectOperation(owner, sel_registerName(operation)).by(doNothing);
}

Replaced &sleeping() {
  static Replaced it = Replaced::classOperation([NSThread class], @selector(sleepUntilDate:));
  return it;
}

/// At startup, every caller that waits this way checks again and has its own deadline.
void sleepShortly(id, SEL, NSDate *date) {
  constexpr NSTimeInterval kLongest = 0.0002;
  const NSTimeInterval wanted = [date timeIntervalSinceNow];
  if (wanted > 0)
    usleep(static_cast<useconds_t>(std::min(wanted, kLongest) * 1e6));
}

} // namespace

void leaveOutIconAndServices() {
  for (const char *operation : {"_appIconInit", "applicationIconImage", "setApplicationIconImage:"})
    leaveOut([NSApplication class], operation);
  for (const char *operation : {"loadServices", "rebuildServices", "registerAsServiceProvider"})
    leaveOut(NSClassFromString(@"GSServicesManager"), operation);
  leaveOut([NSWindow class], "miniwindowImage");
  leaveOutOfClass([NSWorkspace class], @selector(sharedWorkspace));
}

ShortWaits::ShortWaits() { sleeping().by(sleepShortly); }
ShortWaits::~ShortWaits() { sleeping().restore(); }

} // namespace imageposition
