/// Asks whether to print with settings that the printer cannot combine.
#ifndef IMAGEPOSITION_GUI_WINDOW_CONFLICTQUESTION_H
#define IMAGEPOSITION_GUI_WINDOW_CONFLICTQUESTION_H

#import <AppKit/AppKit.h>

#include <string>

namespace imageposition {

/// Asks once about the same conflict, until the user accepts another. Main thread only.
class ConflictQuestion {
public:
  /// Whether the user accepts the conflict, or has accepted it. An empty one needs no question.
  bool isAccepted(NSWindow *parent, const std::string &conflict);

private:
  std::string accepted_; // may be empty
};

} // namespace imageposition

#endif
