/// A pop-up that opens a list.
#ifndef IMAGEPOSITION_GUI_LISTS_LISTPOPUP_H
#define IMAGEPOSITION_GUI_LISTS_LISTPOPUP_H

#import <AppKit/AppKit.h>

/// A pop-up button with the habits of other Linux dialogs. (GNUstep's own closes its list when the
/// mouse button is released, and leaves most keys to the window.)
///
/// A click, the space bar, a letter, F4 or Alt with an arrow key opens the list. It stays open
/// until the user chooses an item, clicks elsewhere, presses Escape or leaves the window. Pressing,
/// moving and releasing the mouse button chooses, too. Arrow keys, Page Up, Page Down, Home and End
/// move through an open list, as the first letters of a title do; in a closed one they choose.
@interface ListPopUp : NSPopUpButton

/// Marks the last item as one that does something when it is chosen. The keys pass over it while
/// the list is closed.
- (void)markLastItemAsCommand;

@end

#endif
