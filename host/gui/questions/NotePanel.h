/// Short texts that the user reads before the dialog goes on.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_NOTEPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_NOTEPANEL_H

#import <AppKit/AppKit.h>

#include <string>

namespace imageposition {

/// Shows the note over `parent` until the user closes it. Main thread.
void showNote(NSWindow *parent, const std::string &title, const std::string &note);

struct Proposal {
  std::string title;
  std::string text;
  std::string confirmTitle;
  std::string cancelTitle;     ///< Of the button that Escape presses.
  bool losesSomething = false; ///< Return cancels, too; else it confirms.
};

/// Shows the text over `parent`; true when the user confirmed. Main thread.
bool isConfirmed(NSWindow *parent, const Proposal &proposal);

} // namespace imageposition

#endif
