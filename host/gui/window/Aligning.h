/// Aligns the printer: the button below the picture, and what it leads to.
#ifndef IMAGEPOSITION_GUI_WINDOW_ALIGNING_H
#define IMAGEPOSITION_GUI_WINDOW_ALIGNING_H

#import "DialogServices.h"
#import "PictureArea.h"

/// The button is shown for a printer that prints on both sides and whose image can be moved. While
/// the job's settings allow no alignment sheets, it is disabled, with the reason beside it.
@interface Aligning : NSObject {
  id<DialogServices> dialog; ///< Not owned.
  PictureArea *area;         ///< Not owned.
  NSButton *button;          ///< Owned.
}

- (id)initWithDialog:(id<DialogServices>)theDialog;
- (NSButton *)button;
/// Where the button is, for the reason why it is disabled. Not owned.
- (void)setArea:(PictureArea *)theArea;
/// Call after a change of the printer or of an option.
- (void)refresh;

@end

#endif
