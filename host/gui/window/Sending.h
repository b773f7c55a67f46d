/// Hands the job over when the user prints.
#ifndef IMAGEPOSITION_GUI_WINDOW_SENDING_H
#define IMAGEPOSITION_GUI_WINDOW_SENDING_H

#import "DialogServices.h"

#import <AppKit/AppKit.h>

#include <iosfwd>
#include <string>

namespace imageposition {
class RunLoopWake;
struct SendingState;
}

/// While a job is being sent the window shows how far it is, and nothing but Cancel can be used.
@interface Sending : NSObject {
  id<DialogServices> dialog;     ///< Not owned.
  NSProgressIndicator *progress; ///< Owned; so below.
  NSButton *cancelButton;
  imageposition::SendingState *state;
}

/// Signals `wake` when `look` is due. Notes on a sent job go to `errors`. Borrows both.
- (id)initWithDialog:(id<DialogServices>)theDialog
        cancelButton:(NSButton *)theButton
                wake:(const imageposition::RunLoopWake &)wake
              errors:(std::ostream *)errors;
- (NSProgressIndicator *)progressView;

/// Starts to send the job, or asks for a ticket's name and writes it. Ends the modal loop once that
/// is done. If the image of a document cannot be moved, the user decides whether to print the job
/// unmoved. `focused` gets the focus back if it fails.
- (void)startWithFocus:(NSView *)focused;
- (BOOL)isUnderWay;
/// Has no effect once CUPS has everything.
- (void)cancel;
/// Shows how far the job is, and what came of it.
- (void)look;
/// Asks for the password that CUPS waits for, if any: in an event, where a window can be shown.
- (void)askForPassword;
/// The same for whether to print the job unmoved.
- (void)askToPrintUnmoved;
/// If CUPS does not print at once what it took, shows why, and lets the user cancel the job. NO
/// when the user has cancelled it.
- (BOOL)keepWaitingJob;

@end

#endif
