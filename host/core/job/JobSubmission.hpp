/// Hands a job to CUPS.
#ifndef IMAGEPOSITION_HOST_JOBSUBMISSION_HPP
#define IMAGEPOSITION_HOST_JOBSUBMISSION_HPP

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
  NoCups,         ///< None answers, or it went away.
  NoAnswer,       ///< CUPS has a job, and did not answer in time.
  QueueGone,      ///< No queue of that name.
  RefusesJobs,    ///< The queue exists and takes none.
  Authentication, ///< A password is wanted, or this user may not print there.
  BadOption,      ///< CUPS does not take an option's value.
  Document,       ///< The file cannot be read, or not all that it had.
  Format,         ///< CUPS cannot print this kind of file.
  Spool,          ///< The document is too large, the disk is full, or too many jobs wait.
  Cancelled,      ///< By the progress callback or `cancel`.
  Other,
};

/// The message is a sentence with what to do. No job is left that would print; `ExitCode::Job`, but
/// for a document that cannot be read (`Usage`) and a cancelled one (`Cancelled`).
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

/// What is printed, at least one and in this order: the file of that path, or standard input for
/// "-".
using JobDocuments = std::vector<std::string>;

struct SubmittedJob {
  int id = 0;       ///< lp's "printer-id".
  std::string note; ///< Why it does not print at once (stopped, held) and what to do; else empty.
};

/// Called before each piece, after the last, and while CUPS or a pipe lets us wait; false cancels.
/// Must not throw.
using ProgressCallback = std::function<bool(const JobProgress &)>;

/// Submits the job on the caller's thread and returns when CUPS has all of it. The documents are
/// streamed in small pieces. Both callbacks are called on this thread; without a password callback
/// nobody is asked. Throws a `SubmissionFailure`, or what `optionsToSend` throws.
SubmittedJob submitJob(const JobRequest &request, const JobDocuments &documents,
                       const ProgressCallback &progress = {},
                       const PasswordCallback &password = {});

/// Submits a job on another thread. All calls on one thread; none waits but `result` and the
/// destructor.
class JobSubmission {
public:
  /// Called on the other thread when there is something new: bytes sent (a few times a second), a
  /// question, the end.
  using Changed = std::function<void()>;

  /// Starts at once. Without `changed` CUPS's question for a password has no answer. Throws a
  /// `SubmissionFailure` where no thread can be had.
  JobSubmission(JobRequest request, JobDocuments documents, Changed changed = {});
  /// Cancels what is under way and waits until that has happened.
  ~JobSubmission();
  JobSubmission(const JobSubmission &) = delete;
  JobSubmission &operator=(const JobSubmission &) = delete;

  JobProgress progress() const;
  /// Takes effect between two pieces; too late once all has been sent.
  void cancel();
  bool isDone() const;
  /// While CUPS waits for a password: what it asks. `answer` lets it go on.
  std::optional<PasswordRequest> question() const;
  /// None gives up.
  void answer(std::optional<Credentials> credentials);
  /// Waits for the end; throws what `submitJob` threw.
  SubmittedJob result();

private:
  struct Work;
  std::unique_ptr<Work> work_;
};

} // namespace imageposition

#endif
