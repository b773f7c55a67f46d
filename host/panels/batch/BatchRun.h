/// The dialog without a window.
#ifndef IMAGEPOSITION_PANELS_BATCH_BATCHRUN_H
#define IMAGEPOSITION_PANELS_BATCH_BATCHRUN_H

#include "BatchRequest.hpp"
#import "PanelSession.h"

#include <cups/ppd.h>

#include <iosfwd>
#include <string>
#include <vector>

namespace imageposition {

/// Puts each panel into a window that is never shown, and uses its controls as `request` says: the
/// job's settings then hold what the window would have left there. Returns the panels' summaries.
/// Writes a line to `notes` for each value that a panel changed. `ppd` has the job's choices
/// marked. Throws a `Failure`, also if a panel raises.
std::vector<SummarySection> runBatch(const PanelSession &session, ppd_file_t *ppd,
                                     const BatchRequest &request, std::ostream &notes);

} // namespace imageposition

#endif
