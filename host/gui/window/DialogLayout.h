/// Where the controls of the print dialog stand.
#ifndef IMAGEPOSITION_GUI_WINDOW_DIALOGLAYOUT_H
#define IMAGEPOSITION_GUI_WINDOW_DIALOGLAYOUT_H

#import "KeyWindow.h"
#import "ListPopUp.h"

#include <string>
#include <vector>

namespace imageposition {

constexpr CGFloat kRowHeight = 24;
constexpr CGFloat kControlGap = 10;
constexpr CGFloat kPopUpWidth = 280;

struct RowControl {
  NSView *view;
  bool takesRest = false;    ///< As wide as what is left of the row.
  CGFloat gap = kControlGap; ///< To the next control.
  std::string title = {};    ///< Its own, with a key marked that reaches it; may be empty.
};

/// A title and its controls, from left to right. The first control is reached by the title's key.
struct DialogRow {
  std::string title; ///< With its key marked; may be empty.
  std::vector<RowControl> controls;
};

/// Everything in the window. The layout gives the views their places and sizes; buttons and the
/// controls of rows keep their sizes where there is room.
struct DialogContent {
  std::vector<DialogRow> rows;
  NSView *picture;
  NSView *paneArea;
  NSView *hint;
  NSButton *resolve;
  NSView *message;
  NSView *progress;
  NSButton *help;
  NSButton *cancel;
  NSButton *print;
};

/// A pop-up of the usual size, which the caller does not own.
ListPopUp *makePopUp(id target, SEL action);
/// An entry field, which the caller does not own.
NSTextField *makeField(CGFloat width, id target, SEL action);
/// Adds an item. Through the menu: the pop-up itself removes an earlier item of the same title.
void addItem(NSPopUpButton *popUp, const std::string &title, bool enabled = true);
/// Adds an item that does something when it is chosen.
void addCommand(ListPopUp *popUp, const std::string &title, bool enabled = true);

/// Makes the window, which the caller owns. `pane` is the size of the largest pane, `room` that of
/// the largest content of a window. In a narrow room the picture stands beside the rows alone; in a
/// low one the area of the panes is lower than the largest pane.
KeyWindow *layOutDialog(const DialogContent &content, NSSize pane, NSSize room);

} // namespace imageposition

#endif
