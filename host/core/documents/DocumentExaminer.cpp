#include "DocumentExaminer.hpp"

#include "ChildProgram.hpp"
#include "FileContent.hpp"
#include "FileVersion.hpp"
#include "ProgramFolder.hpp"
#include "SignalBlock.hpp"

#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <mutex>
#include <poll.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace imageposition {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{5};
constexpr int kBetweenLooks = 50; // milliseconds
constexpr std::size_t kLongestReport = 200;

/// A process with its standard output.
class Examination {
public:
  explicit Examination(const std::string &document) {
    const std::string program = installedProgram(IMAGEPOSITION_EXAMINER);
    if (program.empty())
      return;
    try {
      ProgramPipe pipe = newProgramPipe();
      const std::string path = document[0] == '/' ? document : "./" + document;
      process_ = startProgram({{program, path}, std::nullopt, {-1, pipe.writer.get(), -1}});
      report_ = std::move(pipe.reader);
    } catch (const std::system_error &) { // the document stays unknown
    }
  }
  /// Ends the process. One that waits for a file system which does not respond cannot be waited
  /// for.
  ~Examination() {
    if (process_ <= 0)
      return;
    kill(process_, SIGKILL);
    for (int tries = 0; tries < 10 && waitpid(process_, nullptr, WNOHANG) == 0; tries++)
      poll(nullptr, 0, kBetweenLooks / 10);
  }
  Examination(const Examination &) = delete;
  Examination &operator=(const Examination &) = delete;

  /// Returns the whole report, or an empty one if `isStopped`, or after `kPatience`.
  std::string report(const std::atomic<bool> &isStopped) const {
    const auto end = Clock::now() + kPatience;
    std::string text;
    while (process_ > 0 && !isStopped && Clock::now() < end) {
      pollfd waiting{report_.get(), POLLIN, 0};
      if (poll(&waiting, 1, kBetweenLooks) <= 0)
        continue;
      std::array<char, kLongestReport> part{};
      const ssize_t count = read(report_.get(), part.data(), part.size());
      if (count <= 0 || text.size() > kLongestReport)
        return text;
      text.append(part.data(), static_cast<std::size_t>(count));
    }
    return {};
  }

private:
  Descriptor report_{-1};
  pid_t process_ = -1;
};

} // namespace

class DocumentExaminer::Work {
public:
  /// Starts the process on this thread: the others may not read the environment, which the program
  /// changes when it starts.
  Work(const std::string &path, Changed changed)
      : changed_(std::move(changed)),
        thread_([this, process = std::make_unique<Examination>(path)]() mutable {
          const std::string report = process->report(isStopped_);
          process.reset();
          finish(report);
        }) {}
  ~Work() {
    isStopped_ = true;
    thread_.join();
  }
  Work(const Work &) = delete;
  Work &operator=(const Work &) = delete;

  std::optional<DocumentFacts> facts() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return facts_;
  }
  std::optional<DocumentDefect> defect() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return defect_;
  }
  bool isDone() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return isDone_;
  }

  void tell(const Changed &changed) {
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      changed_ = changed;
      if (!isDone_)
        return;
    }
    if (changed)
      changed();
  }

private:
  void finish(const std::string &report) {
    Changed changed;
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      facts_ = readFacts(report);
      defect_ = readDefect(report);
      isDone_ = true;
      changed = changed_;
    }
    if (changed && !isStopped_)
      changed();
  }

  std::atomic<bool> isStopped_{false};
  mutable std::mutex mutex_;
  std::optional<DocumentFacts> facts_;
  std::optional<DocumentDefect> defect_;
  bool isDone_ = false;
  Changed changed_;    // may be empty
  std::thread thread_; // last: uses the others
};

DocumentExaminer::DocumentExaminer() = default;

DocumentExaminer::~DocumentExaminer() = default;

void DocumentExaminer::tell(Changed changed) {
  changed_ = std::move(changed);
  if (work_ != nullptr)
    work_->tell(changed_);
}

void DocumentExaminer::examine(const std::string &path) {
  work_.reset();
  path_ = path;
  version_ = fileVersion(path);
  if (path.empty())
    return;
  const SignalBlock noSignals; // they are the main thread's
  try {
    work_ = std::make_unique<Work>(path, changed_);
  } catch (const std::system_error &) { // no thread is left: the document stays unknown
  }
}

std::optional<DocumentFacts> DocumentExaminer::facts() const {
  return work_ != nullptr ? work_->facts() : std::nullopt;
}

std::optional<DocumentDefect> DocumentExaminer::defect() const {
  return work_ != nullptr ? work_->defect() : std::nullopt;
}

bool DocumentExaminer::isDone() const { return work_ == nullptr || work_->isDone(); }

DocumentReport examined(const std::string &path) {
  const std::atomic<bool> isStopped{false};
  const std::string report = Examination(path).report(isStopped);
  return {readFacts(report), readDefect(report)};
}

} // namespace imageposition
