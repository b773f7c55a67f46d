/// Key events for a list.
#ifndef IMAGEPOSITION_GUI_LISTS_LISTKEYEVENT_H
#define IMAGEPOSITION_GUI_LISTS_LISTKEYEVENT_H

#import <AppKit/AppKit.h>

#include "ListKeys.hpp"

#include <string>
#include <vector>

namespace imageposition {

/// What a key means for a list.
struct ListKey {
  enum class Kind {
    Other,
    Leave,  ///< Takes the item, and is then for the window: Tab, or a letter with Alt.
    Toggle, ///< Opens or closes the list.
    Blank,  ///< Opens the list, or chooses, unless the user is typing a title.
    Choose,
    Dismiss,
    Move,
    Letters, ///< The start of a title.
  };
  Kind kind = Kind::Other;
  ListMove move = ListMove::Down; ///< For `Move`.
  std::string letters = {};       ///< For `Letters` and `Blank`, folded.
};

ListKey listKeyOf(NSEvent *event);

/// The items for the keyboard. `isEnabled` decides on the item at an index.
ListItem listItem(NSString *title, bool isEnabled);

} // namespace imageposition

#endif
