/// What the picture shows of a job.
#ifndef IMAGEPOSITION_CORE_SETUP_SHOWNJOB_HPP
#define IMAGEPOSITION_CORE_SETUP_SHOWNJOB_HPP

#include "PrintJob.hpp"
#include "SheetImages.hpp"

#include <optional>

namespace imageposition {

/// The job's first document, which must be a file, as the job lays it out. `pages` is the number of
/// its pages if it is a PDF file with pages of one size; 0 if that is not known: where one page is
/// larger than the paper, CUPS's filter makes all pages smaller. The printer's description must
/// have the job's choices marked. None if the job has no such document, or if it cannot be laid out
/// here.
std::optional<ShownDocument> documentToShow(const PrintJob &job,
                                            const DestinationList &destinations, int pages);

} // namespace imageposition

#endif
