/// The print dialog: its window, its messages, and the parts that it consists of.
#ifndef IMAGEPOSITION_GUI_WINDOW_PRINTDIALOG_H
#define IMAGEPOSITION_GUI_WINDOW_PRINTDIALOG_H

#import "Aligning.h"
#import "CopiesRow.h"
#import "DialogServices.h"
#import "DocumentRow.h"
#import "DropView.h"
#import "HelpWindow.h"
#import "JobSettingRows.h"
#import "KeyWindow.h"
#import "MessageView.h"
#import "PagesRow.h"
#import "Panes.h"
#import "PresetRow.h"
#import "PreviewView.h"
#import "PrinterOptionRows.h"
#import "PrinterRow.h"
#import "Sending.h"
#import "Sheets.h"

#include <iosfwd>

namespace imageposition {
struct PrintDialogState;
}

@interface PrintDialog
    : NSObject <DialogServices, KeyWindowDelegate, NumberFieldOwner, FileReceiver> {
  imageposition::PrintDialogState *state; ///< Owned; so below.
  KeyWindow *window;
  MessageView *message;
  PreviewView *picture;
  PictureArea *pictureArea;
  Aligning *aligning;
  Sheets *sheets;
  PrinterRow *printers;
  DocumentRow *documents;
  PresetRow *presets;
  CopiesRow *copies;
  PagesRow *pages;
  PrinterOptionRows *options;
  JobSettingRows *more;
  Panes *panes;
  Sending *sending;
  HelpWindow *help; ///< Null before it is first shown.
}

/// Borrows the session, whose panels are loaded, and `theErrors`. `pane` is the size of the largest
/// pane, `room` that of the largest content of a window.
- (id)initWithSession:(imageposition::PrintSession *)theSession
               errors:(std::ostream *)theErrors
                 pane:(NSSize)pane
                 room:(NSSize)room;
- (KeyWindow *)window;
/// Shows the window and waits. Whether the user printed.
- (BOOL)run;

@end

#endif
