/// What the dialog's window does. Each concern has a file of its own.
#ifndef IMAGEPOSITION_HOST_DIALOGCONTROLLER_H
#define IMAGEPOSITION_HOST_DIALOGCONTROLLER_H

#import "DialogViews.h"
#import "KeyWindow.h"
#import "OptionsView.h"
#import "PrintSession.h"
#import "SummaryView.h"

#include "JobRequest.hpp"

#include <iosfwd>
#include <string>

namespace imageposition {
struct DialogState;
}

/// Owns the window; borrows the session.
@interface DialogController : NSObject <KeyWindowDelegate> {
  imageposition::PrintSession *session;
  std::ostream *errors;
  imageposition::DialogViews views;
  imageposition::DialogState *state;      ///< Owned.
  imageposition::PanelDriver *shownPanel; ///< Null while another pane is shown.
  SummaryView *summary;                   ///< Owned.
  OptionsView *options;                   ///< Owned.
}

- (id)initWithSession:(imageposition::PrintSession *)theSession errors:(std::ostream *)theErrors;
/// True when the person printed.
- (BOOL)run;
/// What is said stays until something else is.
- (void)say:(const std::string &)text;
/// Brings the controls of the whole window in line with the job.
- (void)refresh;
/// Ends what is being typed, so that it counts; `sender` has the focus then.
- (void)takeFocus:(NSView *)sender;

@end

@interface DialogController (Panes)
/// Fills the pop-up with the panels that are left and the dialog's own panes.
- (void)listPanes;
- (void)showChosenPane;
/// The first control of the pane, or the button that goes on where the pane has none.
- (NSView *)firstControl;
- (void)leaveOut:(imageposition::PanelDriver *)panel because:(const std::string &)trouble;
/// Each panel's own save; one that fails is left out, and false answered.
- (BOOL)savePanels;
- (void)restorePanels;
/// Asks every panel and lets it save; false when one refused or failed.
- (BOOL)panelsAllowPrinting;
- (void)paneChosen:(id)sender;
@end

@interface DialogController (Options) <OptionsViewOwner>
- (void)refreshOptions;
/// The picture, and what stands in the way. Cheap: called at every change of a setting.
- (void)refreshPicture;
- (void)twoSidedChosen:(id)sender;
- (void)mediaChosen:(id)sender;
- (void)resolveConflicts:(id)sender;
/// Asks for the value that a person has chosen to enter.
- (void)enterValue;
@end

/// Copies and pages.
@interface DialogController (Entries)
- (void)refreshPages;
- (void)refreshCopies;
/// False, with a sentence, when the pages or copies cannot be understood.
- (BOOL)takeEntries;
- (void)copiesChanged:(id)sender;
- (void)copiesStepped:(id)sender;
- (void)collateChanged:(id)sender;
- (void)pagesChosen:(id)sender;
- (void)rangesChanged:(id)sender;
@end

@interface DialogController (Printers)
- (void)startAskingForPrinters;
- (void)stopAskingForPrinters;
- (void)listPrinters;
- (void)printerChosen:(id)sender;
@end

@interface DialogController (Presets)
- (void)listPresets;
- (void)presetChosen:(id)sender;
@end

@interface DialogController (Submission)
- (BOOL)isSending;
- (void)startSending;
- (void)cancelSending;
/// Asks for the password that CUPS waits for.
- (void)wake;
@end

#endif
