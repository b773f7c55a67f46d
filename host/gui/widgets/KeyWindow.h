/// A window with the keys of a dialog.
#ifndef IMAGEPOSITION_HOST_KEYWINDOW_H
#define IMAGEPOSITION_HOST_KEYWINDOW_H

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

/// What the window tells its delegate beyond a window's own messages.
@protocol KeyWindowDelegate <NSObject>
/// Return, wherever the focus is, except on a push button, which it presses.
- (void)confirm;
/// Escape.
- (void)dismiss;
/// Something raised while the window handled an event; what is the exception in words.
- (void)eventRaised:(NSString *)what;
/// The pasteboard raised instead, which is nobody's fault in the window.
- (void)pasteboardRaised:(NSString *)what;
@optional
/// F1.
- (void)help;
/// An event of the application's own for this window: there is something to do that waits for the
/// person, which a timer must not.
- (void)wake;
/// A click on the view, or a key while it had the focus, has been handled; keys that are the
/// dialog's own are not told.
- (void)personActedOn:(NSView *)view;
@end

namespace imageposition {

struct ControlKey {
  std::string letter; ///< In lower case.
  NSView *control;    ///< The window's.
};

/// Has the window's delegate told to wake, when what is happening now is over. A modal loop looks
/// only after an event whether it has been stopped; a timer is none.
void wakeModalLoop(NSWindow *window);

} // namespace imageposition

/// Return confirms, also from an entry field, after the field has taken its text. Control with C,
/// X, V and A edits in a field, as people on this platform expect; there is no menu to do it. Alt
/// with a letter reaches a control.
@interface KeyWindow : NSWindow {
  std::vector<imageposition::ControlKey> *controlKeys; ///< Null: none.
  NSView *focusShown; ///< What was last seen with the focus; owned, since it may go. May be null.
}

/// Has Alt with the letter that is marked in the text (see host/Mnemonic.hpp) press a button, and
/// give any other control the focus. Of several with one letter each has its turn; those that are
/// hidden or cannot be used are passed over.
- (void)reach:(NSView *)control by:(const std::string &)marked;
/// The control that has the focus, also while its field editor has it for it; may be null.
- (NSView *)focusedView;

@end

#endif
