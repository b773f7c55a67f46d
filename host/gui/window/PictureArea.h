/// The picture, and what belongs below it.
#ifndef IMAGEPOSITION_GUI_WINDOW_PICTUREAREA_H
#define IMAGEPOSITION_GUI_WINDOW_PICTUREAREA_H

#import "PreviewView.h"

#include <string>

/// Has a button at its lower left, with a note beside it, and the picture above. A hidden button
/// leaves its room to the picture.
@interface PictureArea : NSView {
  PreviewView *picture; ///< Owned by the view; so below.
  NSButton *button;
  NSTextField *note;
  std::string *text; ///< Of the note; owned.
}

- (id)initWithPicture:(PreviewView *)thePicture button:(NSButton *)theButton;
/// Everything is legible from this size on.
+ (NSSize)preferredSize;
/// Shows the string beside the button; it is cut if it does not fit.
- (void)showNote:(const std::string &)theText;
/// The button was hidden or shown.
- (void)layOut;

@end

#endif
