/// What the window says about the job when it opens.
#ifndef IMAGEPOSITION_GUI_WINDOW_STARTMESSAGE_H
#define IMAGEPOSITION_GUI_WINDOW_STARTMESSAGE_H

#import "PrintSession.h"

#include <string>

namespace imageposition {

/// Sentences about what is wrong with the documents or else with the panels, and about
/// settings with unknown values. Empty if there is nothing.
std::string startTroubles(PrintSession &session);

/// Sentences about which of the preset's settings the printer does not accept, in what the job
/// begins otherwise than a first one would, and where its offsets come from. Empty if there is
/// nothing.
std::string startNotes(PrintJob &job);

} // namespace imageposition

#endif
