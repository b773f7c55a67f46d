/// Runs the print dialog.
#ifndef IMAGEPOSITION_GUI_WINDOW_DIALOGWINDOW_H
#define IMAGEPOSITION_GUI_WINDOW_DIALOGWINDOW_H

#import "PrintSession.h"

#include <iosfwd>
#include <optional>

namespace imageposition {

/// Shows the window and waits. True when the user printed, and CUPS has the job or its settings are
/// written; false when the user cancelled. Messages go to the window and to `errors`, and the
/// window stays after a failure. The session's panels are loaded. `size` is the size that the
/// window has at first, as far as the screen has room, and then the one that the user gave it; none
/// for the usual one.
bool runDialog(PrintSession &session, std::ostream &errors, std::optional<WindowSize> &size);

} // namespace imageposition

#endif
