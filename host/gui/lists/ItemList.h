/// A list in a window from which the user chooses.
#ifndef IMAGEPOSITION_GUI_LISTS_ITEMLIST_H
#define IMAGEPOSITION_GUI_LISTS_ITEMLIST_H

#import "ChoiceListView.h"

#include "ListKeys.hpp"

@class ItemList;

@protocol ItemListOwner <NSObject>
/// The user has moved the highlight.
- (void)itemList:(ItemList *)list highlighted:(NSInteger)index;
/// The user has clicked twice on the highlighted item. The list may be released here.
- (void)itemListChosen:(ItemList *)list;
/// The user has pressed Backspace. The list may be released here.
- (void)itemListLeft:(ItemList *)list;
@end

/// Takes the focus. Arrow keys, Page Up, Page Down, Home, End and the first letters of a title move
/// the highlight, as a click does. For a `KeyScrollView`.
@interface ItemList : ChoiceListView {
  id<ItemListOwner> owner; ///< Not owned.
  std::vector<imageposition::ListItem> *items;
  imageposition::TypeAhead *typeAhead;
}

- (id)initWithTitles:(NSArray *)theTitles font:(NSFont *)font owner:(id<ItemListOwner>)theOwner;
/// Highlights an item and scrolls to it; does not tell the owner.
- (void)show:(NSInteger)index;

@end

#endif
