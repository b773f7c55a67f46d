/// The rows of an open list.
#ifndef IMAGEPOSITION_GUI_WIDGETS_CHOICELISTVIEW_H
#define IMAGEPOSITION_GUI_WIDGETS_CHOICELISTVIEW_H

#import <AppKit/AppKit.h>

/// Draws the items of a pop-up, one below another, and the one that is highlighted. Only draws: the
/// list that shows it follows the mouse and the keys.
@interface ChoiceListView : NSView {
  NSArray *titles; ///< Owned; so below.
  NSIndexSet *disabled;
  NSArray *fonts; ///< Of the titles.
  NSInteger chosen;
  NSInteger highlighted;
}

/// Takes over the titles as they are now: the pop-up's items may change while the list is open.
- (id)initWithPopUp:(NSPopUpButton *)popUp;
/// The size that shows every title in full.
- (NSSize)wantedSize;

- (NSInteger)numberOfItems;
- (NSString *)itemTitleAtIndex:(NSInteger)index;
- (BOOL)isItemEnabledAtIndex:(NSInteger)index;
- (NSRect)rectOfItemAtIndex:(NSInteger)index;
/// The item at a place, in the view's coordinates; -1 beside the items.
- (NSInteger)itemAt:(NSPoint)place;

/// -1 if none is.
- (NSInteger)highlightedItemIndex;
- (void)highlight:(NSInteger)index;

@end

namespace imageposition {

constexpr CGFloat kListRowHeight = 24;

} // namespace imageposition

#endif
