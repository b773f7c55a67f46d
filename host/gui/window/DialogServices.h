/// What the parts of the print dialog ask of it.
#ifndef IMAGEPOSITION_GUI_WINDOW_DIALOGSERVICES_H
#define IMAGEPOSITION_GUI_WINDOW_DIALOGSERVICES_H

#import "PrintSession.h"

#import <Foundation/Foundation.h>

#include <string>

/// Each part owns its controls and its state, and is the target of its controls. Parts know this
/// protocol and not each other.
@protocol DialogServices <NSObject>
- (imageposition::PrintSession &)session;
/// The number of pages of the job's only document; 0 while it is not known.
- (int)documentPages;
/// Whether its pages have one size. NO while that is not known.
- (BOOL)hasPagesOfOneSize;
/// Whether everything is known that will be known of the documents.
- (BOOL)isDocumentExamined;
/// Shows a message, which stays until the next one, and writes it to standard error. An empty one
/// removes what is shown.
- (void)say:(const std::string &)message;
/// Shows a message without writing it.
- (void)show:(const std::string &)message;
/// Writes a message to standard error that is shown at the control it is about.
- (void)write:(const std::string &)message;
/// Has the panels write their values to the job's settings, before these are used or changed. NO
/// when a panel failed; it is left out, and the user should look before anything else happens. What
/// a panel did not save is shown, and does not stop the dialog.
- (BOOL)savePanels;
/// Takes everything that the user has entered, in rows and panels, into the job's settings. NO,
/// with a message, when an entry is not understood or a panel did not save.
- (BOOL)takeEntries;
/// Takes another printer, with its panels and presets; a message says why it cannot.
- (void)chooseQueue:(const std::string &)queue;
/// Brings all parts in line with the job, after other code than their own has changed it.
- (void)refresh;
/// The same after an option has changed; what is typed in the rows of copies and pages stays.
- (void)refreshOptions;
/// Gives the rows their places again, after an error has come or gone.
- (void)layOut;
@end

#endif
