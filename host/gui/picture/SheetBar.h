/// The row of controls that turn the sheets of a document.
#ifndef IMAGEPOSITION_GUI_PICTURE_SHEETBAR_H
#define IMAGEPOSITION_GUI_PICTURE_SHEETBAR_H

#import <AppKit/AppKit.h>

#include "SheetImages.hpp"

#include <string>

namespace imageposition {

/// "Sheet 2 of 7 (pages 3 and 4)", or why there is no sheet; empty without a document.
std::string sheetText(const SheetImages &images);

/// The sheet to which a key that turns sheets leads: an arrow, Page Up or Down, Home or End. The
/// current one for other keys.
int sheetAfterKey(NSEvent *event, const SheetImages &images);

/// How many sheets the mouse wheel turns: -1 for up, 1 for down, or 0.
int sheetsOfWheel(NSEvent *event);

} // namespace imageposition

@protocol SheetTurning
/// The user wants another sheet, which may not exist.
- (void)turnTo:(int)sheet;
@end

/// A button for the previous and one for the next sheet, and a label that names the sheet. With the
/// focus on a button, the arrow keys, Page Up, Page Down, Home and End turn, too.
@interface SheetBar : NSView {
  id<SheetTurning> target; ///< Not owned.
  NSButton *previous;      ///< Owned by the view; so below.
  NSButton *next;
  NSTextField *label;
  const imageposition::SheetImages *images; ///< Borrowed.
  std::string *shownText;                   ///< Owned.
}

- (id)initWithImages:(const imageposition::SheetImages &)theImages
              target:(id<SheetTurning>)theTarget;
/// In the order of Tab.
- (NSButton *)previousButton;
- (NSButton *)nextButton;
- (void)refresh;

@end

#endif
