#include "SubmitJob.hpp"

#include "CupsConnection.hpp"
#include "CupsHandles.hpp"
#include "CupsTexts.hpp"
#include "Destinations.hpp"
#include "DocumentStream.hpp"
#include "JobTexts.hpp"
#include "Phrases.hpp"
#include "PrinterRemarks.hpp"
#include "ReleaseTime.hpp"

#include <chrono>
#include <cstring>
#include <ctime>
#include <memory>
#include <string_view>
#include <system_error>
#include <utility>

namespace imageposition {

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kTimeout = std::chrono::seconds(30); // without a response from CUPS

[[noreturn]] void fail(JobProblem problem, const std::string &message) {
  ExitCode code = ExitCode::Job;
  if (problem == JobProblem::Document)
    code = ExitCode::Usage;
  if (problem == JobProblem::Cancelled)
    code = ExitCode::Cancelled;
  throw SubmissionFailure(problem, code, message);
}

[[noreturn]] void failCancelled() { fail(JobProblem::Cancelled, messages::kCancelled); }

/// Interprets CUPS's status, which can be any number.
JobProblem problemOf(int status) {
  switch (status) {
  case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
  case IPP_STATUS_ERROR_TIMEOUT:
    return JobProblem::NoCups;
  case IPP_STATUS_ERROR_NOT_FOUND:
  case IPP_STATUS_ERROR_GONE:
    return JobProblem::QueueGone;
  case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
    return JobProblem::RefusesJobs;
  case IPP_STATUS_ERROR_FORBIDDEN:
  case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
  case IPP_STATUS_ERROR_NOT_AUTHORIZED:
  case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
    return JobProblem::Authentication;
  case IPP_STATUS_ERROR_BAD_REQUEST:
  case IPP_STATUS_ERROR_ATTRIBUTES_OR_VALUES:
  case IPP_STATUS_ERROR_CONFLICTING:
  case IPP_STATUS_ERROR_REQUEST_VALUE:
    return JobProblem::BadOption;
  case IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED:
  case IPP_STATUS_ERROR_DOCUMENT_FORMAT_ERROR:
  case IPP_STATUS_ERROR_DOCUMENT_UNPRINTABLE:
    return JobProblem::Format;
  case IPP_STATUS_ERROR_REQUEST_ENTITY:
  case IPP_STATUS_ERROR_NOT_POSSIBLE:
  case IPP_STATUS_ERROR_TOO_MANY_JOBS:
  case IPP_STATUS_ERROR_TOO_MANY_DOCUMENTS:
  case IPP_STATUS_ERROR_ACCOUNT_LIMIT_REACHED:
    return JobProblem::Spool;
  default:
    return JobProblem::Other;
  }
}

std::string nameOf(const std::string &path) {
  return path == "-" ? messages::kStandardInput : path;
}

[[noreturn]] void failEmpty(const std::string &path) {
  fail(JobProblem::Document,
       path == "-" ? messages::kInputEmpty.str() : messages::documentEmpty(path));
}

[[noreturn]] void failUnreadable(const std::string &path, const std::system_error &error) {
  fail(JobProblem::Document, messages::documentNotRead(nameOf(path), error.code().message()));
}

/// The submission of one job.
class Submission {
public:
  Submission(const JobRequest &request, const ProgressCallback &progress)
      : request_(request), options_(optionsToSend(request)), progress_(progress) {}

  SubmittedJob run(const JobDocuments &documents);
  /// Restarts the timeout, which excludes the time that the user took to answer.
  void restartTimeout() {
    lastResponse_ = Clock::now();
    report();
  }

private:
  bool report();
  bool keepWaiting();
  void connect();
  void findPrinter();
  void createJob();
  void createJobWithCompounds();
  std::string_view firstChunk(DocumentStream &document);
  void sendDocuments(const JobDocuments &documents);
  void sendAll(const JobDocuments &documents);
  void cleanUp(const SubmissionFailure &failure);
  void sendDocument(DocumentStream &document, std::string_view chunk, bool isLast);
  void startDocument(bool isLast);
  void finishDocument();
  const char *format() const;
  void sendChunk(std::string_view chunk);
  std::string_view nextChunk(DocumentStream &document);
  bool removeJob();
  std::string note() const;
  [[noreturn]] void failWithCupsError();
  std::string messageFor(JobProblem problem, const std::string &reason) const;

  const JobRequest &request_;
  const PrintSettingsStore options_;
  const ProgressCallback &progress_;
  std::string documentPath_; // of the current document
  std::string documentName_; // for CUPS
  JobProgress state_;
  Clock::time_point lastResponse_ = Clock::now();
  bool isCancelled_ = false;
  bool hasTimedOut_ = false;
  bool isAllSent_ = false; // every document, though CUPS may not have confirmed the last one
  std::unique_ptr<CupsConnection> connection_;
  CupsDestination printer_;
  CupsDestinationInfo info_;
  int job_ = 0;
};

bool Submission::report() {
  isCancelled_ = isCancelled_ || (progress_ && !progress_(state_));
  return !isCancelled_;
}

bool Submission::keepWaiting() {
  hasTimedOut_ = Clock::now() - lastResponse_ >= kTimeout;
  state_.isWaitingForCups = true;
  const bool goesOn = report();
  state_.isWaitingForCups = false;
  return goesOn && !hasTimedOut_;
}

/// Throws for CUPS's last error.
void Submission::failWithCupsError() {
  if (isCancelled_)
    failCancelled();
  if (hasTimedOut_ && job_ != 0)
    fail(JobProblem::NoAnswer, messages::noAnswerToJob(cupsServerName()));
  const std::string reason = cupsReason();
  const bool isLost = httpError(connection_->http()) != 0;
  const JobProblem problem = isLost ? JobProblem::NoCups : problemOf(cupsLastError());
  fail(problem, messageFor(problem, reason));
}

std::string Submission::messageFor(JobProblem problem, const std::string &reason) const {
  const std::string &queue = request_.printer;
  switch (problem) {
  case JobProblem::NoCups:
    return job_ != 0 ? messages::connectionLost(cupsServerName(), reason)
                     : messages::noCups(cupsServerName(), reason);
  case JobProblem::QueueGone:
    return messages::queueGone(queue);
  case JobProblem::RefusesJobs:
    return messages::queueRefuses(queue);
  case JobProblem::Authentication:
    return messages::notAllowed(queue, reason);
  case JobProblem::BadOption:
    return messages::optionRefused(queue, reason);
  case JobProblem::Format:
    return messages::formatRefused(nameOf(documentPath_), reason);
  case JobProblem::Spool:
    return messages::spoolRefuses(reason);
  default:
    return messages::jobNotTaken(queue, reason);
  }
}

void Submission::connect() {
  connection_ = CupsConnection::open(kTimeout, [this] { return keepWaiting(); });
  if (!connection_)
    fail(JobProblem::NoCups, messages::noCups(cupsServerName(), ""));
}

void Submission::findPrinter() {
  printer_.reset(cupsGetNamedDest(connection_->http(), request_.printer.c_str(), nullptr));
  if (!printer_)
    failWithCupsError();
  info_.reset(cupsCopyDestInfo(connection_->http(), printer_.get()));
  if (!info_)
    failWithCupsError();
}

/// Does what cupsCreateDestJob does, which would lose a value in several parts.
void Submission::createJobWithCompounds() {
  const char *const uri =
      cupsGetOption("printer-uri-supported", printer_->num_options, printer_->options);
  char scheme[32], user[256], host[256], resource[1024];
  int port = 0;
  if (uri == nullptr ||
      httpSeparateURI(HTTP_URI_CODING_ALL, uri, scheme, sizeof scheme, user, sizeof user, host,
                      sizeof host, &port, resource, sizeof resource) < HTTP_URI_STATUS_OK)
    failWithCupsError();
  JobRequest request = request_;
  request.printerUri = uri;
  const IppMessage response(
      cupsDoRequest(connection_->http(), newJobRequest(request, options_), resource));
  ipp_attribute_t *const id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
  if (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE || id == nullptr)
    failWithCupsError();
  job_ = ippGetInteger(id, 0);
}

void Submission::createJob() {
  if (hasCompound(request_, options_)) {
    createJobWithCompounds();
    return;
  }
  const int status = cupsCreateDestJob(
      connection_->http(), printer_.get(), info_.get(), &job_, request_.title.c_str(),
      options_.optionCount(), const_cast<cups_option_t *>(options_.options())); // not modified
  if (status > IPP_STATUS_OK_EVENTS_COMPLETE || job_ == 0)
    failWithCupsError();
}

std::string_view Submission::nextChunk(DocumentStream &document) {
  const auto chunk = document.next([this] { return report(); });
  if (!chunk)
    failCancelled();
  return *chunk;
}

std::string_view Submission::firstChunk(DocumentStream &document) {
  const std::string_view chunk = nextChunk(document);
  if (chunk.empty())
    failEmpty(documentPath_);
  return chunk;
}

const char *Submission::format() const {
  if (options_.get("raw") != nullptr)
    return CUPS_FORMAT_RAW;
  const char *const chosen = options_.get("document-format");
  return chosen != nullptr ? chosen : CUPS_FORMAT_AUTO;
}

void Submission::startDocument(bool isLast) {
  if (cupsStartDestDocument(connection_->http(), printer_.get(), info_.get(), job_,
                            documentName_.c_str(), format(), 0, nullptr,
                            isLast ? 1 : 0) != HTTP_STATUS_CONTINUE)
    failWithCupsError();
}

void Submission::sendChunk(std::string_view chunk) {
  if (cupsWriteRequestData(connection_->http(), chunk.data(), chunk.size()) != HTTP_STATUS_CONTINUE)
    failWithCupsError();
  lastResponse_ = Clock::now();
  state_.sent += chunk.size();
}

void Submission::finishDocument() {
  const int status = cupsFinishDestDocument(connection_->http(), printer_.get(), info_.get());
  // Without a response, libcups returns the status of the previous request.
  if (status > IPP_STATUS_OK_EVENTS_COMPLETE ||
      httpGetStatus(connection_->http()) != HTTP_STATUS_OK)
    failWithCupsError();
}

void Submission::sendDocument(DocumentStream &document, std::string_view chunk, bool isLast) {
  startDocument(isLast);
  while (!chunk.empty()) {
    if (!report())
      failCancelled();
    sendChunk(chunk);
    chunk = nextChunk(document);
  }
  if (document.missing() > 0)
    fail(JobProblem::Document, messages::documentShrank(nameOf(documentPath_)));
  if (!report())
    failCancelled();
  lastResponse_ = Clock::now();
  isAllSent_ = isLast;
  finishDocument();
}

/// Creates the job only after the first document has produced data.
void Submission::sendDocuments(const JobDocuments &documents) {
  for (std::size_t i = 0; i < documents.size(); i++) {
    const std::string &path = documents[i];
    documentPath_ = path;
    documentName_ = nameToSend(request_, i, path);
    DocumentStream document(path);
    const std::string_view chunk = firstChunk(document);
    if (job_ == 0) {
      if (!report())
        failCancelled();
      connect();
      findPrinter();
      if (!report())
        failCancelled();
      createJob();
      state_.job = job_;
    }
    sendDocument(document, chunk, i + 1 == documents.size());
  }
}

/// Closes the connection, on which an incomplete document blocks other requests, and uses a new
/// one. CUPS then discards the incomplete document.
bool Submission::removeJob() {
  connection_.reset();
  isCancelled_ = false;
  const Clock::time_point deadline = Clock::now() + std::chrono::seconds(5);
  connection_ =
      CupsConnection::open(std::chrono::seconds(5), [=] { return Clock::now() < deadline; });
  return connection_ != nullptr && cupsCancelDestJob(connection_->http(), printer_.get(), job_) <=
                                       IPP_STATUS_OK_EVENTS_COMPLETE;
}

std::string releaseTime(const std::string &until) {
  const auto local = localReleaseTime(until, std::time(nullptr));
  return local ? messages::localTime(local->text()) : until;
}

std::string Submission::note() const {
  const char *const hold = options_.get("job-hold-until");
  if (hold != nullptr && std::strcmp(hold, "no-hold") != 0)
    return messages::waitsForRelease(request_.printer, job_, releaseTime(hold));
  const Destination printer = toDestination(*printer_);
  if (printer.state != DestinationState::Stopped)
    return "";
  const auto remarks = printerRemarks(connection_->http());
  const auto found = remarks.find(printer.name);
  const std::string remark = found != remarks.end() ? found->second.text : "";
  return messages::waitsForPrinter(request_.printer,
                                   messages::besides({printer.stateText, remark}));
}

/// Removes a job that failed. Throws another failure if the message must say what became of the
/// job.
void Submission::cleanUp(const SubmissionFailure &failure) {
  if (job_ == 0)
    return;
  if (!removeJob())
    throw SubmissionFailure(failure.problem(), failure.code(),
                            messages::jobLeftBehind(failure.what(), request_.printer, job_));
  if (failure.problem() == JobProblem::NoAnswer)
    fail(JobProblem::NoAnswer, messages::jobTakenBack(failure.what(), request_.printer, job_));
  if (failure.problem() == JobProblem::Cancelled && isAllSent_)
    fail(JobProblem::Cancelled, messages::jobCancelled(request_.printer, job_));
  if (failure.problem() == JobProblem::NoCups) // CUPS is still running
    fail(JobProblem::Spool, messages::kDocumentBrokenOff);
}

void Submission::sendAll(const JobDocuments &documents) try {
  state_.total = totalSize(documents); // refuses unusable documents before anything is sent
  sendDocuments(documents);
} catch (const std::system_error &error) {
  failUnreadable(documentPath_, error);
}

SubmittedJob Submission::run(const JobDocuments &documents) {
  try {
    sendAll(documents);
  } catch (const SubmissionFailure &failure) {
    cleanUp(failure);
    throw;
  }
  return {job_, note()};
}

} // namespace

std::optional<std::uint64_t> totalSize(const JobDocuments &documents) {
  std::optional<std::uint64_t> total = 0;
  for (const std::string &path : documents)
    try {
      const auto size = documentSize(path);
      if (size == 0u)
        failEmpty(path);
      total = size && total ? std::optional(*total + *size) : std::nullopt;
    } catch (const std::system_error &error) {
      failUnreadable(path, error);
    }
  return total;
}

SubmittedJob submitJob(const JobRequest &request, const JobDocuments &documents,
                       const ProgressCallback &progress, const PasswordCallback &password) {
  Submission submission(request, progress);
  PasswordCallback asking;
  if (password)
    asking = [&](const PasswordRequest &asked) {
      auto answer = password(asked);
      submission.restartTimeout();
      return answer;
    };
  const PasswordQuestion question(asking);
  return submission.run(documents);
}

} // namespace imageposition
