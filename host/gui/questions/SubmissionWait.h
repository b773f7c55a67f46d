/// Waits for a job that is being sent.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_SUBMISSIONWAIT_H
#define IMAGEPOSITION_GUI_QUESTIONS_SUBMISSIONWAIT_H

#include "JobSubmission.hpp"
#import "WaitPanel.h"

#include <string>

namespace imageposition {

/// A part of the work, from 0 to 1, and a sentence about it.
struct ShownProgress {
  double part = 0;
  std::string text;
};

ShownProgress shownProgress(const JobSubmission &submission);

/// Waits over `parent` until the job is sent to `printer`; asks for a password if CUPS requires
/// one. The submission must signal `panel`. Returns and throws as `JobSubmission::result`; the user
/// can cancel. Main thread.
SubmittedJob awaitSubmission(JobSubmission &submission, WaitPanel &panel, NSWindow *parent,
                             const std::string &printer);

} // namespace imageposition

#endif
