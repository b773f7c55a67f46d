/// Submits a job to CUPS.
#ifndef IMAGEPOSITION_CORE_JOB_SUBMITJOB_HPP
#define IMAGEPOSITION_CORE_JOB_SUBMITJOB_HPP

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
  int job = 0;                        ///< CUPS's number; 0 before the job is created.
  bool isWaitingForCups = false;      ///< Rather than for the document.
  /// While the documents are prepared, before anything is sent: how much of them is.
  std::optional<int> preparedPercent;
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

/// What is sent in place of a job's documents.
struct PreparedJob {
  JobRequest request;
  JobDocuments documents;
  std::shared_ptr<void> files; ///< Keeps the documents.
};

/// Makes the documents that are sent. Called on the thread that submits the job; calls the callback
/// a few times each second. Throws a `Failure`; a `SubmissionFailure` if the callback has
/// cancelled.
using JobPreparation = std::function<PreparedJob(const JobDocuments &, const ProgressCallback &)>;

/// Submits the job, and returns when CUPS has received all of it. Streams the documents in chunks.
/// Calls both callbacks on the calling thread. Without a password callback, a job that requires a
/// password fails. Throws a `SubmissionFailure`, or what `optionsToSend` throws.
SubmittedJob submitJob(const JobRequest &request, const JobDocuments &documents,
                       const ProgressCallback &progress = {},
                       const PasswordCallback &password = {});

} // namespace imageposition

#endif
