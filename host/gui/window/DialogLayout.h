/// Where the controls of the print dialog stand.
#ifndef IMAGEPOSITION_GUI_WINDOW_DIALOGLAYOUT_H
#define IMAGEPOSITION_GUI_WINDOW_DIALOGLAYOUT_H

#import "KeyScrollView.h"
#import "KeyWindow.h"
#import "ListPopUp.h"
#import "MessageView.h"
#import "PaneArea.h"
#import "PictureArea.h"

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

/// A title and its controls, from left to right; hidden controls take no room, nor does a row of
/// which all controls are hidden. The first control is reached by the title's key.
struct DialogRow {
  std::string title; ///< With its key marked; may be empty.
  std::vector<RowControl> controls;
};

/// Everything in the window, which owns the views.
struct DialogContent {
  std::vector<DialogRow> rows;
  PictureArea *picture;
  SheetBar *sheets; ///< The picture's; so below.
  NSButton *enlarge;
  NSButton *align;
  PaneArea *paneArea;
  NSTextField *hint;
  NSButton *resolve;
  MessageView *message;
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

/// Gives the views their places and sizes; buttons and the controls of rows keep their sizes where
/// there is room. In a wide window the picture stands beside everything else, in a narrow one
/// beside the rows; both grow with the window. A hidden picture leaves its room to the panes. In a
/// low window, rows and pane scroll, and the texts take room only if they say something. The
/// buttons stay visible.
class DialogLayout {
public:
  /// Makes the window. `pane` is the size of the largest pane, `room` that of the largest content
  /// of a window.
  DialogLayout(const DialogContent &content, NSSize pane, NSSize room);
  ~DialogLayout();
  DialogLayout(const DialogLayout &) = delete;
  DialogLayout &operator=(const DialogLayout &) = delete;

  /// The caller owns it.
  KeyWindow *window() const noexcept { return window_; }
  /// Takes another size of the largest pane, and makes the window larger if it is too narrow for
  /// it.
  void takePane(NSSize pane);
  /// Adapts to the window's size, and to whether there is a message or a hint.
  void layOut();

private:
  CGFloat rowsHeight() const;
  CGFloat rowsWidth() const;
  CGFloat footHeight(bool hasRoom) const;
  bool hasHint() const;
  void makeWindow(NSSize size, NSSize room);
  void addViews();
  void placeFoot(NSSize size, bool hasRoom);
  void placeUpper(NSSize size, CGFloat foot);
  CGFloat leastWidth() const;
  NSRect placeAlone(CGFloat width, CGFloat paneTop);
  NSRect placeBeside(CGFloat width, CGFloat height, CGFloat paneTop);
  NSRect placeBelow(CGFloat width, CGFloat paneTop);
  void placeRows(CGFloat top);
  void linkKeys();

  const DialogContent content_;
  NSSize pane_;
  const NSSize room_;
  KeyWindow *window_ = nil;
  KeyScrollView *scroll_ = nil; // owned
  NSView *upper_ = nil;
  std::vector<NSTextField *> titles_;
  std::vector<CGFloat> widths_; // of the controls of rows, before the layout
  CGFloat titleWidth_ = 0;
  CGFloat rowsRight_ = 0;
  bool scrolled_ = false;
};

} // namespace imageposition

#endif
