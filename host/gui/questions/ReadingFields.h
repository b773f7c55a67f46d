/// The entry fields for what alignment sheets show.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_READINGFIELDS_H
#define IMAGEPOSITION_GUI_QUESTIONS_READINGFIELDS_H

#import <AppKit/AppKit.h>

#include "ReadingForm.hpp"

#include <functional>
#include <vector>

namespace imageposition {
struct ReadingFieldsState;
}

/// A field with a stepper for each number of a form, row by row. Up and Down count in tenths of a
/// millimetre; a mistake is shown below its row once the field is left. Main thread.
@interface ReadingFields : NSView {
  imageposition::ReadingFieldsState *state; ///< Owned.
}

/// Borrows both. Calls `changed` after every change, and when another field gets the focus.
- (id)initWithForm:(imageposition::ReadingForm &)form
           changed:(const std::function<void()> &)changed;

/// The entry that has the focus, or had it last.
- (imageposition::ReadingForm::Place)current;
/// Shows what the form has, which is another one than before.
- (void)reload;
/// Shows the problem below its row, and gives its field the focus.
- (void)showProblem:(const imageposition::ReadingForm::Problem &)problem;
/// In the order of Tab.
- (std::vector<NSView *>)fields;
/// Call before the form is destroyed; the view may live longer.
- (void)detach;

/// "Sheet 2, B →"
- (std::string)nameOfCurrent;

@end

#endif
