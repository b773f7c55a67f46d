/// The open list of a pop-up.
#ifndef IMAGEPOSITION_GUI_LISTS_OPENLIST_H
#define IMAGEPOSITION_GUI_LISTS_OPENLIST_H

#import "ChoiceListView.h"
#import "KeyScrollView.h"

#include "ListKeys.hpp"

/// Shows the items of a pop-up below it, or above it if there is more room, and follows the mouse
/// and the keys until the user chooses or leaves. Follows changes of the items.
@interface OpenList : NSObject {
  NSPopUpButton *popUp; ///< Owned; so below.
  NSArray *titles;
  NSWindow *window;
  KeyScrollView *scroll;
  ChoiceListView *list;
  std::vector<imageposition::ListItem> *items;
  imageposition::TypeAhead *typeAhead;
  NSPoint pressed; ///< On the screen.
  BOOL isPressed;  ///< Since the list was opened, without a release.
  BOOL hasEntered; ///< The pointer has been on an item.
  BOOL isOpen;
  BOOL isStale; ///< The items have changed.
  NSInteger chosen;
}

- (id)initWithPopUp:(NSPopUpButton *)thePopUp;
/// Returns when the list is closed: the title of the chosen item, or null. `event` is the mouse
/// press that opens the list, or the first letter of an item; null for other keys.
- (NSString *)titleChosenFrom:(NSEvent *)event;
/// -1 before an item is chosen.
- (NSInteger)chosenIndex;

@end

#endif
