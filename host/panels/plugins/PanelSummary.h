/// Reads a panel's summary for users.
#ifndef IMAGEPOSITION_PANELS_PLUGINS_PANELSUMMARY_H
#define IMAGEPOSITION_PANELS_PLUGINS_PANELSUMMARY_H

#include "Summary.hpp"

#import <AppKit/AppKit.h>

#include <vector>

namespace imageposition {

/// The lines of a panel's summary: titles in the panel's display order first, then the others by
/// name. Empty if `info` is not a dictionary.
///
/// A panel gives the bare values of its controls, used or not. So a line with the title of a
/// checkbox in the panel's `view` says that it is on, or is left out. If there are as many other
/// lines as entry fields, they have the same order, and those of disabled fields are left out.
std::vector<SummaryLine> readSummary(id info, NSView *view);

} // namespace imageposition

#endif
