#import "WindowFocus.h"

#import <GNUstepGUI/GSDisplayServer.h>

#include <utility>

namespace imageposition {

void askForFocus(NSWindow *window) {
  if ([NSApp isActive] && [window isKeyWindow])
    [GSServerForWindow(window) setinputfocus:static_cast<int>([window windowNumber])];
}

bool activateApplication() {
  static bool isLaunched = false;
  const bool wasLaunched = std::exchange(isLaunched, true);
  if (!wasLaunched)
    [NSApp finishLaunching]; // no keys arrive before
  [NSApp activateIgnoringOtherApps:YES];
  return wasLaunched;
}

} // namespace imageposition
