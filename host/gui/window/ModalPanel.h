/// Small windows that are answered before their parent goes on.
#ifndef IMAGEPOSITION_HOST_MODALPANEL_H
#define IMAGEPOSITION_HOST_MODALPANEL_H

#import "KeyWindow.h"

#include <functional>
#include <string>
#include <vector>

namespace imageposition {

constexpr CGFloat kPanelMargin = 20;

/// A window with nothing but a button that confirms and, with a title, one that cancels. `bottom`
/// is free above them.
class ModalPanel {
public:
  /// `height` is that of the content above the buttons.
  ModalPanel(const std::string &title, CGFloat width, CGFloat height,
             const std::string &confirmTitle, const std::string &cancelTitle = {});
  ~ModalPanel();
  ModalPanel(const ModalPanel &) = delete;
  ModalPanel &operator=(const ModalPanel &) = delete;

  KeyWindow *window() const noexcept { return window_; }
  /// The lower edge of the content.
  CGFloat bottom() const noexcept;
  void add(NSView *view);

  /// Shows it in the middle of `parent` and waits; true when the person confirmed. The views are
  /// those that take keys, in the order of Tab and before the buttons; `first` has the focus, or
  /// the first of them, or the button that confirms. `mayConfirm` is asked before the window goes,
  /// and keeps it by answering false. Main thread.
  bool run(NSWindow *parent, const std::vector<NSView *> &order, NSView *first = nil,
           const std::function<bool()> &mayConfirm = {});

private:
  KeyWindow *window_; // owned
  id controller_;     // owned
  NSButton *confirm_;
  NSButton *cancel_; // may be null
};

} // namespace imageposition

#endif
