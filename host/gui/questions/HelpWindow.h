/// The explanation of the panel and of the dialog's keys.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_HELPWINDOW_H
#define IMAGEPOSITION_GUI_QUESTIONS_HELPWINDOW_H

#import "KeyWindow.h"

/// Stays open beside the window that it explains, which can be used at the same time. Main thread.
@interface HelpWindow : NSObject <KeyWindowDelegate> {
  KeyWindow *window; ///< Owned.
}

/// Shows the help beside `parent`, or over it if the screen has no room, and gives it the focus.
- (void)showBeside:(NSWindow *)parent;
/// Does nothing if it is not shown.
- (void)hide;
- (KeyWindow *)window;

@end

#endif
