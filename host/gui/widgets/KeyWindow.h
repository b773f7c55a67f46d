/// A window with the keyboard handling of a dialog.
#ifndef IMAGEPOSITION_GUI_WIDGETS_KEYWINDOW_H
#define IMAGEPOSITION_GUI_WIDGETS_KEYWINDOW_H

#import "FieldEditor.h"

#include <functional>
#include <string>
#include <vector>

/// Messages to the delegate in addition to those of every window.
@protocol KeyWindowDelegate <NSObject>
/// The user pressed Return. With the focus on a push button, Return presses the button instead.
- (void)confirm;
/// The user pressed Escape.
- (void)dismiss;
/// An exception, which `what` describes, ended the current event. `view` is the view whose code was
/// running because it received an event or lost the focus; null for the dialog's own code.
- (void)exception:(NSString *)what in:(NSView *)view;
/// The pasteboard could not be reached; no view is at fault.
- (void)pasteboardFailed:(NSString *)what;
@optional
/// The user pressed F1.
- (void)help;
/// The user pressed Page Up (-1) or Page Down (1), which the focused view does not use itself.
- (void)turnPages:(int)direction;
/// Follows `wakeModalLoop`.
- (void)wake;
/// The window handled a click on the view, or a key while the view had the focus. Not sent for the
/// dialog's own keys.
- (void)userActedOn:(NSView *)view;
@end

namespace imageposition {

struct ControlKey {
  std::string letter; ///< In lower case.
  NSView *control;    ///< Owned by the window.
};

/// The view at the place of a mouse event, or null; with larger text, too, where a unit of a view
/// is more than a pixel.
NSView *viewUnder(NSEvent *event, NSWindow *window);

/// Sends the window's delegate `wake` as the next event. The delegate can then show another modal
/// window or end the current one; a modal loop notices its end only after an event. Main thread.
void wakeModalLoop(NSWindow *window);

} // namespace imageposition

/// Return confirms, also from an entry field, once the field has committed its text. Control with
/// C, X, V, A or Z edits in a field, as Linux users expect; there is no menu for it. Alt with a
/// letter activates a control.
///
/// An exception ends only the event in which it is raised, and is reported to the delegate. A
/// `FieldEditor` edits the fields; the delegate may be their `NumberFieldOwner`.
@interface KeyWindow : NSWindow {
  std::vector<imageposition::ControlKey> *controlKeys; ///< Owned; may be null.
  NSView *focusShown;       ///< The view last drawn with the focus; owned; may be null.
  NSView *running;          ///< The view whose code is running; null for the dialog's own.
  FieldEditor *fieldEditor; ///< Owned; null before a field is first edited.
}

/// Makes Alt with the letter marked in the string (see Mnemonic.hpp) press a button, or give
/// another control the focus. Controls with the same letter take turns; hidden or disabled ones are
/// skipped.
- (void)reach:(NSView *)control by:(const std::string &)marked;
/// The control that has the focus, also while its field editor has it; may be null.
- (NSView *)focusedView;
/// Scrolls to the view with the focus, if something may have covered it.
- (void)keepFocusInSight;
/// Gives the view the focus unless it has it. A field that loses the focus commits its text.
- (void)focus:(NSView *)view;
/// Runs code of the dialog outside an event, with the same protection. Returns false if it raised.
- (BOOL)protect:(const std::function<void()> &)code;

@end

#endif
