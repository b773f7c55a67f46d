#import "ConflictQuestion.h"

#import "NotePanel.h"
#include "WindowTexts.hpp"

namespace imageposition {

bool ConflictQuestion::isAccepted(NSWindow *parent, const std::string &conflict) {
  if (conflict.empty() || conflict == accepted_)
    return true;
  if (!isConfirmed(parent, {messages::kPrintAnywayWindow, conflict, messages::kPrintAnyway,
                            messages::kGoBack}))
    return false;
  accepted_ = conflict;
  return true;
}

} // namespace imageposition
