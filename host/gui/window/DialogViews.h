/// The controls of the dialog and where they stand.
#ifndef IMAGEPOSITION_HOST_DIALOGVIEWS_H
#define IMAGEPOSITION_HOST_DIALOGVIEWS_H

#import "KeyWindow.h"
#import "MessageView.h"
#import "PreviewView.h"

#include <string>

namespace imageposition {

/// All but the window belong to the window.
struct DialogViews {
  KeyWindow *window; ///< Owned by who builds it.
  NSPopUpButton *printers;
  NSTextField *printerState;
  NSPopUpButton *presets;
  NSTextField *copies;
  NSStepper *copiesStepper;
  NSButton *collate;
  NSPopUpButton *pages;
  NSTextField *ranges;
  NSPopUpButton *twoSided;
  NSPopUpButton *media;
  NSPopUpButton *panes;
  NSView *paneArea;
  PreviewView *preview;
  NSTextField *hint; ///< What stands in the way: conflicts, or why a panel is switched off.
  NSButton *resolve;
  MessageView *message; ///< What happened last.
  NSProgressIndicator *progress;
  NSButton *help;
  NSButton *cancel;
  NSButton *print;
};

/// What the controls call.
struct DialogActions {
  id target;
  SEL printerChosen, presetChosen, copiesChanged, copiesStepped, collateChanged, pagesChosen,
      rangesChanged, twoSidedChosen, mediaChosen, paneChosen, resolve, help, cancel, print;
};

/// The largest content of a window that has room on the screen, in points.
NSSize roomOnScreen();

/// `pane` is the size of the largest pane, `room` that of the largest window's content. Where it is
/// not enough the picture stands beside the rows alone, and the area of the panes is lower than
/// wanted. An empty `document` has no row.
DialogViews buildDialog(NSSize pane, NSSize room, const std::string &document,
                        const DialogActions &actions);

/// Fits a pane into its area, in place of what was there, and into the order of Tab. One that is
/// higher than the area is scrolled.
void showInPaneArea(const DialogViews &views, NSView *pane);

} // namespace imageposition

#endif
