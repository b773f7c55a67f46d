/// Calls that may take long, or never return, on a background thread.
#ifndef IMAGEPOSITION_CORE_BASE_BACKGROUNDCALL_HPP
#define IMAGEPOSITION_CORE_BASE_BACKGROUNDCALL_HPP

#include "SignalBlock.hpp"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

namespace imageposition {

/// Belongs to a thread that nothing waits for. While there is one, the process must end without
/// destroying objects that the thread may use.
class RunningCall {
public:
  RunningCall() noexcept { runningCalls()++; }
  ~RunningCall() { runningCalls()--; }
  RunningCall(const RunningCall &) = delete;
  RunningCall &operator=(const RunningCall &) = delete;

  static int count() noexcept { return runningCalls(); }

private:
  static std::atomic<int> &runningCalls() noexcept {
    static std::atomic<int> calls{0};
    return calls;
  }
};

/// One call of a function on a background thread. Nothing waits for the thread: if its result is no
/// longer needed, or takes too long, it is left to itself. The function must therefore refer only
/// to what it owns or shares. Call all methods on one thread.
template <typename Result> class BackgroundCall {
public:
  using Work = std::function<Result()>;
  using Changed = std::function<void()>;

  /// Starts `work`. Calls `changed` on a background thread once it has returned, and once the
  /// timeout is over if that is earlier; even after this object was destroyed. Throws a
  /// `std::system_error` if no thread can be created.
  BackgroundCall(const Work &work, std::chrono::milliseconds timeout, const Changed &changed = {})
      : deadline_(Clock::now() + timeout), result_(std::make_shared<std::optional<Result>>()) {
    const auto result = result_;
    const auto task =
        std::make_shared<std::packaged_task<void()>>([work, result] { result->emplace(work()); });
    const std::shared_future<void> done = task->get_future().share();
    done_ = done;
    const auto deadline = deadline_;
    const auto running = std::make_shared<RunningCall>();
    const SignalBlock noSignals; // they are the main thread's
    if (changed)
      std::thread([done, deadline, changed, running] {
        if (done.wait_until(deadline) != std::future_status::ready)
          changed();
      }).detach();
    std::thread([task, changed, running] {
      (*task)();
      if (changed)
        changed();
    }).detach();
  }

  bool isDone() const { return waitFor(std::chrono::milliseconds(0)); }
  /// Whether the timeout is over.
  bool isTooLate() const { return !isDone() && Clock::now() >= deadline_; }
  /// Waits until the work is done or the timeout is over, at most for `time`. Returns `isDone`.
  bool waitFor(std::chrono::milliseconds time) const {
    return done_.wait_until(std::min(Clock::now() + time, deadline_)) == std::future_status::ready;
  }
  /// Waits for the end without a timeout. Throws what the work threw. Can be called once.
  Result take() {
    done_.get();
    return std::move(**result_);
  }

private:
  using Clock = std::chrono::steady_clock;

  Clock::time_point deadline_;
  std::shared_ptr<std::optional<Result>> result_; // the thread's until it is done
  std::shared_future<void> done_;
};

} // namespace imageposition

#endif
