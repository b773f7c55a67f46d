/// Cancels a job that CUPS has.
#ifndef IMAGEPOSITION_CORE_JOB_CANCELJOB_HPP
#define IMAGEPOSITION_CORE_JOB_CANCELJOB_HPP

#include <string>

namespace imageposition {

/// Cancels a job on the queue `printer`. Returns an empty string when the job is cancelled or has
/// ended before, and otherwise a sentence that says why not and what to do. Gives up when CUPS is
/// silent for ten seconds. Can be called on any thread.
std::string cancelJob(const std::string &printer, int job);

} // namespace imageposition

#endif
