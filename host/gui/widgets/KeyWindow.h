/// A window with the keys of a dialog.
#ifndef IMAGEPOSITION_GUI_WIDGETS_KEYWINDOW_H
#define IMAGEPOSITION_GUI_WIDGETS_KEYWINDOW_H

#import <AppKit/AppKit.h>

#include <functional>
#include <string>
#include <vector>

/// What the window sends its delegate beyond a window's own messages.
@protocol KeyWindowDelegate <NSObject>
/// Return, wherever the focus is, except on a push button, which it presses.
- (void)confirm;
/// Escape.
- (void)dismiss;
/// An exception, in words, ended what the window was doing. `view` is the one whose code ran, since
/// an event was for it or it lost the focus; null when the dialog's own code ran.
- (void)exception:(NSString *)what in:(NSView *)view;
/// The pasteboard could not be reached, which is not the fault of any view.
- (void)pasteboardFailed:(NSString *)what;
@optional
/// F1.
- (void)help;
/// After `wakeModalLoop`.
- (void)wake;
/// The window has handled a click on the view, or a key while it had the focus. Not sent for the
/// dialog's own keys.
- (void)userActedOn:(NSView *)view;
@end

namespace imageposition {

struct ControlKey {
  std::string letter; ///< In lower case.
  NSView *control;    ///< The window's.
};

/// Sends the window's delegate `wake` as the next event. There it can show another modal window, or
/// end its own, which a modal loop notices only after an event. Main thread.
void wakeModalLoop(NSWindow *window);

} // namespace imageposition

/// Return confirms, also from an entry field, after the field has taken its text. Control with C,
/// X, V and A edits in a field, as Linux users expect; there is no menu to do it. Alt with a letter
/// reaches a control.
///
/// An exception ends only the event that it is raised in, and goes to the delegate.
@interface KeyWindow : NSWindow {
  std::vector<imageposition::ControlKey> *controlKeys; ///< Owned; may be null.
  NSView *focusShown; ///< What had the focus when it was last drawn; owned; may be null.
  NSView *running;    ///< Whose code runs; null for the dialog's own.
}

/// Has Alt with the letter that is marked in the string (see Mnemonic.hpp) press a button, and give
/// any other control the focus. Controls with the same letter take turns; those that are hidden or
/// disabled are passed over.
- (void)reach:(NSView *)control by:(const std::string &)marked;
/// The control that has the focus, also while its field editor has it; may be null.
- (NSView *)focusedView;
/// Gives the view the focus unless it has it. A field that loses it takes its text.
- (void)focus:(NSView *)view;
/// Runs code of the dialog outside an event, with the same protection. False when it raised.
- (BOOL)protect:(const std::function<void()> &)code;

@end

#endif
