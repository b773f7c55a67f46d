#import "WindowFocus.h"

#import <GNUstepGUI/GSDisplayServer.h>

namespace imageposition {

void askForFocus(NSWindow *window) {
  if ([NSApp isActive] && [window isKeyWindow])
    [GSServerForWindow(window) setinputfocus:static_cast<int>([window windowNumber])];
}

} // namespace imageposition
