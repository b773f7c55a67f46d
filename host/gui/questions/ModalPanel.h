/// Small windows that the user answers before the parent window goes on.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_MODALPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_MODALPANEL_H

#import "KeyWindow.h"

#include <functional>
#include <string>
#include <vector>

namespace imageposition {

constexpr CGFloat kPanelMargin = 20;

/// In place of NSAlert and NSSavePanel, which in GNUstep do not close on Escape and have no keys
/// for their buttons; an alert's title is always "Alert", and a save panel is a browser from the
/// root of the file system that does not speak the user's language.
///
/// A window with a button that confirms and, if that has a title, one that cancels. The space from
/// `bottom` on is for other views.
class ModalPanel {
public:
  /// `height` is that of the content above the buttons.
  ModalPanel(const std::string &title, CGFloat width, CGFloat height,
             const std::string &confirmTitle, const std::string &cancelTitle = {});
  ~ModalPanel();
  ModalPanel(const ModalPanel &) = delete;
  ModalPanel &operator=(const ModalPanel &) = delete;

  KeyWindow *window() const noexcept { return window_; }
  NSButton *confirmButton() const noexcept { return confirm_; }
  /// The lower edge of the content.
  CGFloat bottom() const noexcept;
  void add(NSView *view);
  /// Gives the buttons other titles, without keys, for another step of the same window. Without
  /// `cancelTitle`, only Escape cancels.
  void retitleButtons(const std::string &confirmTitle, const std::string &cancelTitle);
  /// Tab goes through `order`, as in `run`.
  void link(const std::vector<NSView *> &order);
  /// Makes Return cancel. Returns the button that should have the focus.
  NSButton *preferCancel();

  /// Shows the window in the middle of `parent`, or if that is null, of the screen, and waits; true
  /// when the user confirmed. `order` has the views that take keys, in the order of Tab, without
  /// the buttons. `first` gets the focus; if null, the first view of `order`, or else the button
  /// that confirms. The window stays when `mayConfirm` returns false. Main thread.
  bool run(NSWindow *parent, const std::vector<NSView *> &order, NSView *first = nil,
           const std::function<bool()> &mayConfirm = {});

private:
  void placeButtons();

  KeyWindow *window_; // owned
  id controller_;     // owned
  NSButton *confirm_;
  NSButton *cancel_; // may be null
};

} // namespace imageposition

#endif
