/// The rows of an open list.
#ifndef IMAGEPOSITION_GUI_LISTS_CHOICELISTVIEW_H
#define IMAGEPOSITION_GUI_LISTS_CHOICELISTVIEW_H

#import <AppKit/AppKit.h>

/// Draws items, one below another, and the one that is highlighted. Only draws: whatever shows it
/// follows the mouse and the keys.
@interface ChoiceListView : NSView {
  NSArray *titles; ///< Owned; so below.
  NSIndexSet *disabled;
  NSArray *fonts; ///< Of the titles.
  NSInteger chosen;
  NSInteger highlighted;
}

/// Takes over the titles as they are now: the pop-up's items may change while the list is open.
- (id)initWithPopUp:(NSPopUpButton *)popUp;
/// Items without a mark, in that font or, where it lacks characters, in others of its size.
- (id)initWithTitles:(NSArray *)theTitles font:(NSFont *)font;
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
/// Behind the highlighted item.
- (NSColor *)highlightColor;
/// Of the highlighted item's title.
- (NSColor *)highlightedTextColor;

@end

namespace imageposition {

constexpr CGFloat kListRowHeight = 24;

} // namespace imageposition

#endif
