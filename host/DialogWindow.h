/// The dialog's window.
#ifndef IMAGEPOSITION_HOST_DIALOGWINDOW_H
#define IMAGEPOSITION_HOST_DIALOGWINDOW_H

#import "host/PanelSession.h"

#include <iosfwd>
#include <string>

namespace imageposition {

/// What the window says about the job.
struct DialogTexts {
  std::string printer;
  std::string document; ///< May be empty.
};

/// Shows the window and waits. True when the person printed: the job's settings then hold what the
/// panels saved. False when they cancelled. A panel that fails meanwhile is left out, with a
/// message in the window and in `errors`.
bool runDialog(PanelSession &session, const DialogTexts &texts, std::ostream &errors);

} // namespace imageposition

#endif
