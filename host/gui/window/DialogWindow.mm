#import "DialogWindow.h"

#import "Pool.h"
#import "PrintDialog.h"
#import "WindowPlacement.h"

#include <algorithm>

namespace imageposition {

namespace {

constexpr NSSize kSmallestPane = {470, 220};

NSSize largestPane(PanelSession &session) {
  NSSize size = kSmallestPane;
  for (const auto &panel : session.panels()) {
    if (!panel->hasView())
      continue;
    const NSSize wanted = [panel->view() frame].size;
    size.width = std::max(size.width, wanted.width);
    size.height = std::max(size.height, wanted.height);
  }
  return size;
}

} // namespace

bool runDialog(PrintSession &session, std::ostream &errors) {
  PrintDialog *dialog = nil;
  {
    const Pool pool;
    dialog = [[PrintDialog alloc] initWithSession:&session
                                           errors:&errors
                                             pane:largestPane(session.panels())
                                             room:roomOnScreen()];
  }
  const bool isPrinted = [dialog run];
  [dialog release];
  return isPrinted;
}

} // namespace imageposition
