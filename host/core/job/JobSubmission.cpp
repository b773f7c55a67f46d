#include "JobSubmission.hpp"

#include "BackgroundCall.hpp"
#include "CupsConnection.hpp"
#include "CupsTexts.hpp"
#include "FileContent.hpp"
#include "JobTexts.hpp"
#include "Phrases.hpp"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <functional>
#include <future>
#include <mutex>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/signalfd.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace imageposition {

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kReportInterval = std::chrono::milliseconds(50);
constexpr auto kLookInterval = std::chrono::milliseconds(250);
constexpr auto kSilence = std::chrono::seconds(10);    // worth mentioning
constexpr auto kGivingUp = std::chrono::seconds(35);   // longer than what `submitJob` waits
constexpr auto kCancelTime = std::chrono::seconds(1);  // for `submitJob` to remove the job
constexpr auto kRemovalTime = std::chrono::seconds(5); // the same, at the end of the process

} // namespace

/// Shared by the submission, the thread that submits and the thread that watches it.
class SubmissionWork {
public:
  SubmissionWork(std::string printer, JobSubmission::Work work, JobSubmission::Changed changed)
      : printer_(std::move(printer)), work_(std::move(work)), changed_(std::move(changed)),
        ended_(eventfd(0, EFD_CLOEXEC)) {}

  /// The two threads.
  void submit();
  void watch();

  void cancel();
  void answer(std::optional<Credentials> credentials);
  std::optional<PasswordRequest> question() const;
  JobProgress progress() const;
  bool isSilentFor(Clock::duration time) const;
  /// Of `submit`.
  bool hasEnded() const { return hasEnded_; }
  const std::shared_future<SubmittedJob> &outcome() const { return outcome_; }

private:
  std::optional<Credentials> ask(const PasswordRequest &asked);
  bool take(const JobProgress &progress);
  void settle(const std::function<void()> &set);
  void settle(const std::exception_ptr &failure);
  void giveUpIfDue();
  SubmissionFailure failure(const JobProgress &reached) const;
  [[noreturn]] void endBy(int signal);

  const std::string printer_;
  const JobSubmission::Work work_;
  const JobSubmission::Changed changed_; // may be null
  const Descriptor ended_;               // readable once `submit` has ended
  std::promise<SubmittedJob> promise_;
  const std::shared_future<SubmittedJob> outcome_ = promise_.get_future().share();
  std::atomic<bool> isCancelled_{false}, hasEnded_{false};

  mutable std::mutex mutex_; // guards the following members
  std::condition_variable answered_;
  JobProgress progress_;
  Clock::time_point lastReport_{}, cancelledAt_{};
  Clock::time_point lastSign_ = Clock::now(); // of CUPS, or of the document
  std::optional<PasswordRequest> question_;
  std::optional<Credentials> credentials_;
  bool isSettled_ = false;
};

namespace {

void notify(const JobSubmission::Changed &changed) {
  if (changed)
    changed();
}

/// The signal that arrived, or 0 once `ended` is readable or a little time has passed.
int awaitSignal(const Descriptor &signals, const Descriptor &ended) {
  std::array<pollfd, 2> waiting{{{signals.get(), POLLIN, 0}, {ended.get(), POLLIN, 0}}};
  if (poll(waiting.data(), waiting.size(), static_cast<int>(kLookInterval.count())) <= 0 ||
      (waiting[0].revents & POLLIN) == 0)
    return 0;
  signalfd_siginfo received{};
  return read(signals.get(), &received, sizeof received) == sizeof received
             ? static_cast<int>(received.ssi_signo)
             : 0;
}

struct AllSubmissions {
  std::mutex mutex;
  std::vector<std::weak_ptr<SubmissionWork>> works;
};

/// Never destroyed: `exit` needs it.
AllSubmissions &allSubmissions() {
  static auto *const all = new AllSubmissions;
  return *all;
}

void endWithProcess(const std::shared_ptr<SubmissionWork> &work) {
  AllSubmissions &all = allSubmissions();
  const std::lock_guard<std::mutex> lock(all.mutex);
  [[maybe_unused]] static const int registered = std::atexit(endSubmissions);
  all.works.erase(std::remove_if(all.works.begin(), all.works.end(),
                                 [](const auto &candidate) { return candidate.expired(); }),
                  all.works.end());
  all.works.push_back(work);
}

} // namespace

std::optional<Credentials> SubmissionWork::ask(const PasswordRequest &asked) {
  std::unique_lock<std::mutex> lock(mutex_);
  question_ = asked;
  changed_();
  answered_.wait(lock, [this] { return !question_ || isCancelled_; });
  question_.reset();
  lastSign_ = Clock::now();
  return std::exchange(credentials_, std::nullopt);
}

bool SubmissionWork::take(const JobProgress &progress) {
  const Clock::time_point now = Clock::now();
  bool isReported = false;
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    progress_ = progress;
    if (!progress.isWaitingForCups)
      lastSign_ = now;
    isReported = now - lastReport_ >= kReportInterval;
    if (isReported)
      lastReport_ = now;
  }
  if (isReported)
    notify(changed_);
  return !isCancelled_;
}

void SubmissionWork::settle(const std::function<void()> &set) {
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (!std::exchange(isSettled_, true))
      set();
  }
  notify(changed_);
}

void SubmissionWork::settle(const std::exception_ptr &failure) {
  settle([&] { promise_.set_exception(failure); });
}

void SubmissionWork::submit() {
  PasswordCallback password;
  if (changed_)
    password = [this](const PasswordRequest &asked) { return ask(asked); };
  try {
    const auto progress = [this](const JobProgress &reached) { return take(reached); };
    const SubmittedJob job = work_(progress, password);
    settle([&] { promise_.set_value(job); });
  } catch (...) {
    settle(std::current_exception());
  }
  hasEnded_ = true;
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto written = write(ended_.get(), &one, sizeof one);
}

/// What to say when nothing is known but how far the job was.
SubmissionFailure SubmissionWork::failure(const JobProgress &reached) const {
  const std::string server = cupsServerName();
  if (reached.job == 0)
    return isCancelled_
               ? SubmissionFailure(JobProblem::Cancelled, ExitCode::Cancelled, messages::kCancelled)
               : SubmissionFailure(JobProblem::NoCups, ExitCode::Job,
                                   messages::noCups(server, messages::kNoAnswer));
  return {isCancelled_ ? JobProblem::Cancelled : JobProblem::NoAnswer,
          isCancelled_ ? ExitCode::Cancelled : ExitCode::Job,
          messages::jobLeftBehind(messages::noAnswerToJob(server), printer_, reached.job)};
}

void SubmissionWork::giveUpIfDue() {
  std::unique_lock<std::mutex> lock(mutex_);
  const Clock::time_point now = Clock::now();
  const bool isCancelDue = isCancelled_ && now - cancelledAt_ >= kCancelTime;
  const bool isTooLate = !question_ && now - lastSign_ >= kGivingUp;
  if (isSettled_ || (!isCancelDue && !isTooLate))
    return;
  const JobProgress reached = progress_;
  lock.unlock();
  settle(std::make_exception_ptr(failure(reached)));
  isCancelled_ = true;
}

/// The submission has no outcome then: the main thread must not end the process in another way.
void SubmissionWork::endBy(int signal) {
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    isSettled_ = true;
  }
  endSubmissions();
  std::signal(signal, SIG_DFL);
  const sigset_t signals = SignalBlock::blocked();
  pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
  raise(signal);
  std::_Exit(128 + signal);
}

void SubmissionWork::watch() {
  const sigset_t wanted = SignalBlock::blocked();
  const Descriptor signals(signalfd(-1, &wanted, SFD_CLOEXEC));
  while (!hasEnded_) {
    if (const int signal = awaitSignal(signals, ended_); signal != 0)
      endBy(signal);
    giveUpIfDue();
    if (!hasEnded_)
      notify(changed_);
  }
}

void SubmissionWork::cancel() {
  const std::lock_guard<std::mutex> lock(mutex_);
  if (!isCancelled_.exchange(true))
    cancelledAt_ = Clock::now();
  answered_.notify_one();
}

void SubmissionWork::answer(std::optional<Credentials> credentials) {
  const std::lock_guard<std::mutex> lock(mutex_);
  credentials_ = std::move(credentials);
  question_.reset();
  answered_.notify_one();
}

std::optional<PasswordRequest> SubmissionWork::question() const {
  const std::lock_guard<std::mutex> lock(mutex_);
  return question_;
}

JobProgress SubmissionWork::progress() const {
  const std::lock_guard<std::mutex> lock(mutex_);
  return progress_;
}

bool SubmissionWork::isSilentFor(Clock::duration time) const {
  const std::lock_guard<std::mutex> lock(mutex_);
  return !question_ && Clock::now() - lastSign_ >= time;
}

JobSubmission::JobSubmission(const JobRequest &request, JobDocuments documents, Changed changed,
                             JobPreparation prepare)
    : JobSubmission(
          request.printer,
          [request, documents = std::move(documents), prepare = std::move(prepare)](
              const ProgressCallback &progress, const PasswordCallback &password) {
            const PreparedJob prepared =
                prepare ? prepare(documents, progress) : PreparedJob{request, documents, {}};
            return submitJob(prepared.request, prepared.documents, progress, password);
          },
          std::move(changed)) {}

JobSubmission::JobSubmission(std::string printer, Work job, Changed changed)
    : work_(std::make_shared<SubmissionWork>(std::move(printer), std::move(job),
                                             std::move(changed))) {
  const auto work = work_;
  const auto running = std::make_shared<RunningCall>();
  endWithProcess(work);
  try {
    std::thread([work, running] { work->submit(); }).detach();
    std::thread([work, running] { work->watch(); }).detach();
  } catch (const std::system_error &error) { // too many processes
    work->cancel();
    throw SubmissionFailure(JobProblem::Other, ExitCode::Job,
                            messages::noRoomToSend(systemReason(error.code().value())));
  }
}

JobSubmission::~JobSubmission() { work_->cancel(); }
JobProgress JobSubmission::progress() const { return work_->progress(); }
bool JobSubmission::isCupsSilent() const { return work_->isSilentFor(kSilence); }
void JobSubmission::cancel() { work_->cancel(); }
std::optional<PasswordRequest> JobSubmission::question() const { return work_->question(); }
void JobSubmission::answer(std::optional<Credentials> credentials) {
  work_->answer(std::move(credentials));
}
bool JobSubmission::isDone() const {
  return work_->outcome().wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}
SubmittedJob JobSubmission::result() { return work_->outcome().get(); }

void endSubmissions() {
  AllSubmissions &all = allSubmissions();
  const std::lock_guard<std::mutex> lock(all.mutex);
  const Clock::time_point deadline = Clock::now() + kRemovalTime;
  for (const auto &candidate : all.works)
    if (const auto work = candidate.lock()) {
      work->cancel();
      while (!work->hasEnded() && Clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
  all.works.clear();
}

} // namespace imageposition
