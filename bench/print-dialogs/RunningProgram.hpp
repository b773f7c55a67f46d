/// A program that is being measured.
#ifndef IMAGEPOSITION_BENCH_RUNNINGPROGRAM_HPP
#define IMAGEPOSITION_BENCH_RUNNINGPROGRAM_HPP

#include "WatchedScreen.hpp"

#include <string>
#include <sys/types.h>

namespace imageposition::bench {

double milliseconds(Clock::duration duration);

/// Starts a command through a shell's `exec`; kills it, and what it has started, at the end.
class RunningProgram {
public:
  explicit RunningProgram(const std::string &command);
  ~RunningProgram();
  RunningProgram(const RunningProgram &) = delete;
  RunningProgram &operator=(const RunningProgram &) = delete;

  /// Also called by the destructor.
  void end();
  Clock::time_point started() const { return started_; }
  /// User and system time of all threads, in milliseconds.
  double processorTime() const;
  /// A value of the process's file in /proc, in mebibytes; 0 if there is none.
  double memory(const std::string &file, const std::string &name) const;

private:
  Clock::time_point started_;
  pid_t pid_; // 0 after the end
};

} // namespace imageposition::bench

#endif
