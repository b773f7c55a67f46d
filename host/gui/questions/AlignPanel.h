/// Leads the user through aligning a printer.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_ALIGNPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_ALIGNPANEL_H

#import <AppKit/AppKit.h>

#include "AlignmentSteps.hpp"

#include <functional>
#include <string>

namespace imageposition {

/// What happens outside of the window.
struct AlignActions {
  /// Prints the sheets of the steps' aligner, over the window. Returns what to say about the job.
  /// Throws a `Failure`.
  std::function<std::string(NSWindow *)> print;
  /// The job's offsets have changed. Returns what to say about it; may be empty.
  std::function<std::string()> taken;
};

/// Shows the window over `parent` until the user closes it: print sheets, read them, set and check
/// the offsets. Main thread.
void align(NSWindow *parent, AlignmentSteps &steps, const AlignActions &actions);

} // namespace imageposition

#endif
