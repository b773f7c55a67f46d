/// Edits the fields of a window.
#ifndef IMAGEPOSITION_GUI_WIDGETS_FIELDEDITOR_H
#define IMAGEPOSITION_GUI_WIDGETS_FIELDEDITOR_H

#import <AppKit/AppKit.h>

#include <string>

namespace imageposition {

/// An edit of a number, or the end of its editing.
struct NumberEdit {
  enum class Kind { Typed, Stepped, Ended };
  Kind kind;
  std::string typed; ///< What the user entered.
  std::string shown; ///< What the field made of it.
};

struct FieldEditorState;

} // namespace imageposition

/// Optional messages to a window's delegate about the fields in the window.
@protocol NumberFieldOwner <NSObject>
/// Whether the field takes numbers. Asked when the first edit begins, if its content is a whole
/// number.
- (BOOL)takesNumbers:(NSTextField *)field;
/// The user has edited the number. The receiver may change the field's content.
- (void)number:(NSTextField *)field wasEdited:(const imageposition::NumberEdit &)edit;
@end

/// Undoes edits since the field got the focus. In a field that takes numbers, enters the digits and
/// signs of all scripts as ASCII characters, and counts with the arrow keys. The field may filter
/// numbers that are entered; it never gets anything else.
@interface FieldEditor : NSTextView {
  NSWindow *owner;                        ///< Not owned.
  imageposition::FieldEditorState *state; ///< Owned.
}
- (id)initForWindow:(NSWindow *)window;
/// Restores the content before the last edit.
- (void)undoEdit:(id)sender;
/// Called before the field loses the focus. Text that is not a number reverts to the previous
/// number.
- (void)finishEdits;
/// Called after the field has lost the focus.
- (void)endEdits;
@end

#endif
