/// Submits jobs to CUPS.
#ifndef IMAGEPOSITION_CORE_JOB_JOBSUBMISSION_HPP
#define IMAGEPOSITION_CORE_JOB_JOBSUBMISSION_HPP

#include "ExitCode.hpp"
#include "JobRequest.hpp"
#include "PasswordQuestion.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

enum class JobProblem {
  NoCups,         ///< CUPS is not responding, or closed the connection.
  NoAnswer,       ///< CUPS created the job, but did not respond in time.
  QueueGone,      ///< There is no queue with that name.
  RefusesJobs,    ///< The queue exists, but does not accept jobs.
  Authentication, ///< CUPS requires a password, or the user may not print there.
  BadOption,      ///< CUPS does not accept an option's value.
  Document,       ///< The file cannot be read, or not completely.
  Format,         ///< CUPS cannot print this type of file.
  Spool,          ///< The document is too large, the disk is full, or there are too many jobs.
  Cancelled,      ///< By the progress callback or `cancel`.
  Other,
};

/// The message is a sentence that says what to do. No job is left that would print. The code is
/// `ExitCode::Job`, except for a document that cannot be read (`Usage`) and a cancelled job
/// (`Cancelled`).
class SubmissionFailure : public Failure {
public:
  SubmissionFailure(JobProblem problem, ExitCode code, const std::string &message)
      : Failure(code, message), problem_(problem) {}
  JobProblem problem() const noexcept { return problem_; }

private:
  JobProblem problem_;
};

struct JobProgress {
  std::uint64_t sent = 0;             ///< Bytes, of all documents.
  std::optional<std::uint64_t> total; ///< Bytes; unknown for a pipe.
};

/// The paths of the documents, at least one, in the order of printing; "-" for standard input.
using JobDocuments = std::vector<std::string>;

struct SubmittedJob {
  int id = 0;       ///< lp's "printer-id".
  std::string note; ///< Why it does not print yet (stopped, held), with what to do; or empty.
};

/// The size of all documents in bytes; none if one of them is a pipe. Throws a `SubmissionFailure`
/// if a document is empty or cannot be read.
std::optional<std::uint64_t> totalSize(const JobDocuments &documents);

/// Called before each chunk, after the last one, and while waiting for CUPS or a pipe. Returns
/// false to cancel. Must not throw.
using ProgressCallback = std::function<bool(const JobProgress &)>;

/// Submits the job, and returns when CUPS has received all of it. Streams the documents in chunks.
/// Calls both callbacks on the calling thread. Without a password callback, a job that requires a
/// password fails. Throws a `SubmissionFailure`, or what `optionsToSend` throws.
SubmittedJob submitJob(const JobRequest &request, const JobDocuments &documents,
                       const ProgressCallback &progress = {},
                       const PasswordCallback &password = {});

/// Submits a job on a background thread. Call all methods on one thread. Only `result` and the
/// destructor wait.
class JobSubmission {
public:
  /// Called on the background thread after each change: bytes sent (at most every 50 ms), a
  /// password request, or the end.
  using Changed = std::function<void()>;

  /// Starts at once. Without `changed`, a job that requires a password fails. Throws a
  /// `SubmissionFailure` if no thread can be created.
  JobSubmission(JobRequest request, JobDocuments documents, Changed changed = {});
  /// Cancels the submission, and waits for its end.
  ~JobSubmission();
  JobSubmission(const JobSubmission &) = delete;
  JobSubmission &operator=(const JobSubmission &) = delete;

  JobProgress progress() const;
  /// Takes effect before the next chunk; too late once everything has been sent.
  void cancel();
  bool isDone() const;
  /// The password request that is waiting for `answer`, if any.
  std::optional<PasswordRequest> question() const;
  /// Pass nullopt to give up.
  void answer(std::optional<Credentials> credentials);
  /// Waits for the end; throws what `submitJob` threw.
  SubmittedJob result();

private:
  struct Work;
  std::unique_ptr<Work> work_;
};

} // namespace imageposition

#endif
