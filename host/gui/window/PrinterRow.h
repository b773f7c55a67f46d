/// The printers that CUPS has, and the state of the chosen one.
#ifndef IMAGEPOSITION_GUI_WINDOW_PRINTERROW_H
#define IMAGEPOSITION_GUI_WINDOW_PRINTERROW_H

#import "DialogLayout.h"
#import "DialogServices.h"

#include <vector>

namespace imageposition {
class RunLoopWake;
struct PrinterRowState;
}

/// Below the printers the pop-up offers to save a ticket or a PDF file instead of printing.
@interface PrinterRow : NSObject {
  id<DialogServices> dialog; ///< Not owned.
  ListPopUp *popUp;          ///< Owned; so below.
  NSTextField *stateLabel;
  imageposition::PrinterRowState *state;
}

/// Signals `wake`, which it borrows, when `takeAnswer` is due.
- (id)initWithDialog:(id<DialogServices>)theDialog wake:(const imageposition::RunLoopWake &)wake;
/// The printers, and below them the state.
- (std::vector<imageposition::DialogRow>)rows;
/// Lists the printers that are known, and shows the job's.
- (void)refresh;
/// Shows the state of the chosen printer, as far as its label has room.
- (void)showState;
/// Asks CUPS for its printers, now and whenever they change.
- (void)startAsking;
- (void)stopAsking;
/// Shows what CUPS has answered, if it has, and asks again if the printers have changed. Whether
/// the list is another.
- (BOOL)takeAnswer;

@end

#endif
