/// The picture, and what belongs below it.
#ifndef IMAGEPOSITION_GUI_WINDOW_PICTUREAREA_H
#define IMAGEPOSITION_GUI_WINDOW_PICTUREAREA_H

#import "PreviewView.h"
#import "SheetBar.h"

#include <string>

/// The picture; below it, the row that turns sheets; below that, the buttons that align and that
/// enlarge a sheet, with a note above them. What is hidden leaves its room to the picture.
@interface PictureArea : NSView {
  PreviewView *picture; ///< Owned by the view; so below.
  SheetBar *sheets;
  NSButton *enlarge;
  NSButton *button;
  NSTextField *note;
  std::string *text; ///< Of the note; owned.
}

- (id)initWithPicture:(PreviewView *)thePicture
               sheets:(SheetBar *)theSheets
              enlarge:(NSButton *)theEnlargeButton
               button:(NSButton *)theButton;
/// Everything is legible from this size on.
+ (NSSize)preferredSize;
/// Shows the string above the buttons, unless it is empty; it is cut if it does not fit.
- (void)showNote:(const std::string &)theText;
/// A button was hidden or shown.
- (void)layOut;

@end

#endif
