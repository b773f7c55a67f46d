/// The printer's options: two-sided, media, and what the options pane shows; values that the user
/// enters for them, and conflicts between them.
#ifndef IMAGEPOSITION_GUI_WINDOW_PRINTEROPTIONROWS_H
#define IMAGEPOSITION_GUI_WINDOW_PRINTEROPTIONROWS_H

#import "DialogLayout.h"
#import "DialogServices.h"
#import "OptionsView.h"

#include <vector>

namespace imageposition {
struct PrinterOptionState;
}

@interface PrinterOptionRows : NSObject <OptionsViewOwner> {
  id<DialogServices> dialog; ///< Not owned.
  ListPopUp *twoSided;       ///< Owned; so below.
  ListPopUp *media;
  NSTextField *hint;
  NSButton *resolve;
  imageposition::PrinterOptionState *state;
}

- (id)initWithDialog:(id<DialogServices>)theDialog;
- (std::vector<imageposition::DialogRow>)rows;
/// Says what conflicts, or else why the panels are switched off.
- (NSTextField *)hint;
/// Resolves a conflict; hidden while there is no proposal for it.
- (NSButton *)resolveButton;
/// What the printer cannot combine; empty without a conflict.
- (std::string)conflict;
/// Shows what the job's settings say.
- (void)refresh;
/// Asks for the value that the user has chosen to enter, if any: once the pop-up's menu has closed
/// and a window can be shown.
- (void)askForChosenValue;

@end

#endif
