/// Aligns the printer: the button below the picture, and what it leads to.
#ifndef IMAGEPOSITION_GUI_WINDOW_ALIGNING_H
#define IMAGEPOSITION_GUI_WINDOW_ALIGNING_H

#import "DialogServices.h"
#import "PictureArea.h"

/// The button is shown for a printer that prints on both sides and whose image can be moved. While
/// the job's settings allow no alignment sheets, it is disabled, with the reason beside it.
@interface Aligning : NSObject {
  id<DialogServices> dialog; ///< Not owned.
  PictureArea *area;         ///< Owned; so below.
  NSButton *button;
}

- (id)initWithDialog:(id<DialogServices>)theDialog picture:(PreviewView *)picture;
/// The picture with the button below it.
- (PictureArea *)area;
- (NSButton *)button;
/// Call after a change of the printer or of an option.
- (void)refresh;

@end

#endif
