/// Submits jobs to CUPS on a background thread.
#ifndef IMAGEPOSITION_CORE_JOB_JOBSUBMISSION_HPP
#define IMAGEPOSITION_CORE_JOB_JOBSUBMISSION_HPP

#include "SignalBlock.hpp"
#include "SubmitJob.hpp"

#include <functional>
#include <memory>
#include <optional>

namespace imageposition {

class SubmissionWork;

/// Submits a job, or does other work with its documents, on a background thread. Call all methods
/// on one thread. Only `result` waits.
///
/// Neither `cancel` nor the timeouts depend on what CUPS does: if it does not respond, the
/// background thread is left to itself, and removes the job as soon as it can.
///
/// While there is a submission, SIGINT, SIGTERM and SIGHUP first cancel it, and then end the
/// process: CUPS would print a job of which it has only some of the documents.
class JobSubmission {
public:
  /// Called on a background thread after each change: bytes sent (at most every 50 ms), a password
  /// request, or the end; and about four times a second. May be called after this object was
  /// destroyed.
  using Changed = std::function<void()>;

  /// What a submission does: calls the callbacks on its thread, and throws a `Failure`; a
  /// `SubmissionFailure` if the first has cancelled. The second is null if there is nobody to ask.
  using Work = std::function<SubmittedJob(const ProgressCallback &, const PasswordCallback &)>;

  /// Starts at once. Without `changed`, a job that requires a password fails. With `prepare`, sends
  /// what that makes of the documents. Throws a `SubmissionFailure` if no thread can be created.
  JobSubmission(const JobRequest &request, JobDocuments documents, Changed changed = {},
                JobPreparation prepare = {});
  /// The same for other work. `printer` is for messages.
  JobSubmission(std::string printer, Work job, Changed changed = {});
  /// Cancels the submission.
  ~JobSubmission();
  JobSubmission(const JobSubmission &) = delete;
  JobSubmission &operator=(const JobSubmission &) = delete;

  JobProgress progress() const;
  /// Whether CUPS has not responded for ten seconds.
  bool isCupsSilent() const;
  /// Takes effect before the next chunk; too late once everything has been sent. `isDone` is true
  /// within about a second.
  void cancel();
  bool isDone() const;
  /// The password request that is waiting for `answer`, if any.
  std::optional<PasswordRequest> question() const;
  /// Pass nullopt to give up.
  void answer(std::optional<Credentials> credentials);
  /// Waits for the end; throws what `submitJob` or the preparation threw.
  SubmittedJob result();

private:
  const SignalBlock signals_; // before the threads, which inherit it
  std::shared_ptr<SubmissionWork> work_;
};

/// Cancels all submissions that are not done, and waits for a few seconds until CUPS has removed
/// their jobs. For the end of the process, which calls it in `exit`, too.
void endSubmissions();

} // namespace imageposition

#endif
