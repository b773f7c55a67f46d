/// The dialog without a window.
#ifndef IMAGEPOSITION_HOST_BATCHRUN_H
#define IMAGEPOSITION_HOST_BATCHRUN_H

#include "BatchRequest.hpp"
#import "PanelSession.h"

#include <cups/ppd.h>

#include <iosfwd>
#include <string>
#include <vector>

namespace imageposition {

/// Shows each panel (to nobody), uses its controls as asked, and prints: the job's settings then
/// hold what the window would have left there. Answers the panels' summary. What a panel makes of a
/// value that it does not take as it is goes to `notes`. `ppd` has the job's choices marked. Throws
/// a `Failure`; a panel that raises is one.
std::vector<SummarySection> runBatch(const PanelSession &session, ppd_file_t *ppd,
                                     const BatchRequest &request, std::ostream &notes);

} // namespace imageposition

#endif
