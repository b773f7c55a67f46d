/// A window with the keys of a dialog.
#ifndef IMAGEPOSITION_HOST_KEYWINDOW_H
#define IMAGEPOSITION_HOST_KEYWINDOW_H

#import <AppKit/AppKit.h>

/// What the window tells its delegate beyond a window's own messages.
@protocol KeyWindowDelegate <NSObject>
/// Return, wherever the focus is, except on a push button, which it presses.
- (void)confirm;
/// Escape.
- (void)dismiss;
/// Something raised while the window handled an event; what is the exception in words.
- (void)eventRaised:(NSString *)what;
@optional
/// A click on the view, or a key while it had the focus, has been handled; keys that are the
/// dialog's own are not told.
- (void)personActedOn:(NSView *)view;
@end

/// Return confirms, also from an entry field, after the field has taken its text. Control with C,
/// X, V and A edits in a field, as people on this platform expect; there is no menu to do it.
@interface KeyWindow : NSWindow
@end

#endif
