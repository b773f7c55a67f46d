/// Shows the document's sheets in the picture.
#ifndef IMAGEPOSITION_GUI_WINDOW_SHEETS_H
#define IMAGEPOSITION_GUI_WINDOW_SHEETS_H

#import "DialogServices.h"
#import "PreviewView.h"
#import "SheetBar.h"

namespace imageposition {
class RunLoopWake;
struct SheetsState;
}

/// Owns the controls that turn the sheets, and the images. Begins once the window is on the screen.
@interface Sheets : NSObject {
  id<DialogServices> dialog; ///< Not owned.
  PreviewView *picture;      ///< Owned; so below.
  SheetBar *bar;
  NSButton *enlargeButton;
  imageposition::SheetsState *state;
}

/// Signals `wake`, which is borrowed, when `look` is due.
- (id)initWithDialog:(id<DialogServices>)theDialog
             picture:(PreviewView *)thePicture
                wake:(const imageposition::RunLoopWake &)wake;
- (SheetBar *)bar;
- (NSButton *)enlargeButton;
/// Call after a change of the job's settings or documents, and when a document has been examined:
/// shows it after the current event.
- (void)jobChanged;
/// Shows another preview in the picture.
- (void)showPreview:(const imageposition::Preview &)preview;
/// Turns forward, or backward by a negative number, as far as there are sheets. Does nothing while
/// a document is sent.
- (void)turnBy:(int)sheets;
/// Takes what was fetched in the background.
- (void)look;

@end

#endif
