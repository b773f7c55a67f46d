#import "JoinParent.h"

#include "ParentWindow.hpp"
#import "TextBridge.h"
#include "WindowTexts.hpp"
#import "XWindow.h"

namespace imageposition {

void joinParent(NSWindow *window, const Arguments &arguments) {
  const auto parent = readParent(arguments.parent);
  if (parent && parent->x11 != 0)
    makeModalDialogOf(window, parent->x11);
  else if (parent && !arguments.title.empty())
    [window setTitle:toString(messages::printWindowOf(arguments.title))];
}

} // namespace imageposition
