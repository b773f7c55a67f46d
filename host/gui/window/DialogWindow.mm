#import "DialogWindow.h"

#import "Panes.h"
#import "Pool.h"
#import "PrintDialog.h"
#import "WindowPlacement.h"

#include <algorithm>

namespace imageposition {

namespace {

void resize(NSWindow *window, const WindowSize &size) {
  const NSSize least = [window contentMinSize], room = roomOnScreen();
  [window setContentSize:NSMakeSize(
                             std::min(std::max<CGFloat>(size.width, least.width), room.width),
                             std::min(std::max<CGFloat>(size.height, least.height), room.height))];
}

} // namespace

bool runDialog(PrintSession &session, std::ostream &errors, std::optional<WindowSize> &size) {
  PrintDialog *dialog = nil;
  {
    const Pool pool;
    dialog = [[PrintDialog alloc] initWithSession:&session
                                           errors:&errors
                                             pane:largestPane(session.panels())
                                             room:roomOnScreen()];
    if (size)
      resize([dialog window], *size);
  }
  const NSSize before = [[[dialog window] contentView] frame].size;
  const bool isPrinted = [dialog run];
  const NSSize after = [[[dialog window] contentView] frame].size;
  if (!NSEqualSizes(before, after))
    size = WindowSize{after.width, after.height};
  [dialog release];
  return isPrinted;
}

} // namespace imageposition
