/// Runs the print dialog.
#ifndef IMAGEPOSITION_GUI_WINDOW_DIALOGWINDOW_H
#define IMAGEPOSITION_GUI_WINDOW_DIALOGWINDOW_H

#import "PrintSession.h"

#include <iosfwd>

namespace imageposition {

/// Shows the window and waits. True when the user printed, and CUPS has the job or its settings are
/// written; false when the user cancelled. Messages go to the window and to `errors`, and the
/// window stays after a failure. The session's panels are loaded.
bool runDialog(PrintSession &session, std::ostream &errors);

} // namespace imageposition

#endif
