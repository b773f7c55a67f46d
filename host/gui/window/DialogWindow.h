/// The dialog's window.
#ifndef IMAGEPOSITION_HOST_DIALOGWINDOW_H
#define IMAGEPOSITION_HOST_DIALOGWINDOW_H

#import "PrintSession.h"

#include <iosfwd>

namespace imageposition {

/// Shows the window and waits. True when the person printed, and CUPS has the job or its settings
/// are written; false when they cancelled. What goes wrong meanwhile is said in the window and in
/// `errors`, and the window stays.
bool runDialog(PrintSession &session, std::ostream &errors);

} // namespace imageposition

#endif
