#import "WindowFocus.h"

#import <GNUstepGUI/GSDisplayServer.h>

#include <utility>

namespace imageposition {

void askForFocus(NSWindow *window) {
  if ([NSApp isActive] && [window isKeyWindow])
    [GSServerForWindow(window) setinputfocus:static_cast<int>([window windowNumber])];
}

void activateApplication() {
  static bool isLaunched = false;
  if (!std::exchange(isLaunched, true))
    [NSApp finishLaunching]; // no keys arrive before
  [NSApp activateIgnoringOtherApps:YES];
}

} // namespace imageposition
