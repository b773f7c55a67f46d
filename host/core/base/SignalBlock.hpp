/// Blocks the signals that end programs.
#ifndef IMAGEPOSITION_CORE_BASE_SIGNALBLOCK_HPP
#define IMAGEPOSITION_CORE_BASE_SIGNALBLOCK_HPP

#include <csignal>
#include <initializer_list>

namespace imageposition {

/// Blocks SIGINT, SIGTERM and SIGHUP in this thread during its lifetime, and in threads that are
/// created meanwhile for theirs. A signal is then delivered to another thread, or later.
class SignalBlock {
public:
  SignalBlock() noexcept {
    const sigset_t signals = blocked();
    pthread_sigmask(SIG_BLOCK, &signals, &before_);
  }
  ~SignalBlock() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  SignalBlock(const SignalBlock &) = delete;
  SignalBlock &operator=(const SignalBlock &) = delete;

  static sigset_t blocked() noexcept {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
      sigaddset(&signals, signal);
    return signals;
  }

private:
  sigset_t before_;
};

} // namespace imageposition

#endif
