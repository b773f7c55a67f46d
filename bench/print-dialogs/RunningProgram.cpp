#include "RunningProgram.hpp"

#include <csignal>
#include <fstream>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

namespace imageposition::bench {

double milliseconds(Clock::duration duration) {
  return std::chrono::duration<double, std::milli>(duration).count();
}

RunningProgram::RunningProgram(const std::string &command) : started_(Clock::now()), pid_(fork()) {
  if (pid_ != 0)
    return;
  setpgid(0, 0);
  const std::string line = "exec " + command;
  execl("/bin/sh", "sh", "-c", line.c_str(), nullptr);
  _exit(127);
}

RunningProgram::~RunningProgram() { end(); }

void RunningProgram::end() {
  if (pid_ == 0)
    return;
  kill(-pid_, SIGKILL);
  waitpid(pid_, nullptr, 0);
  pid_ = 0;
}

double RunningProgram::processorTime() const {
  clockid_t clock;
  timespec time{};
  if (clock_getcpuclockid(pid_, &clock) == 0)
    clock_gettime(clock, &time);
  return time.tv_sec * 1e3 + time.tv_nsec / 1e6;
}

double RunningProgram::memory(const std::string &file, const std::string &name) const {
  std::ifstream lines("/proc/" + std::to_string(pid_) + "/" + file);
  for (std::string line; std::getline(lines, line);)
    if (line.compare(0, name.size(), name) == 0)
      return std::stod(line.substr(name.size())) / 1024;
  return 0;
}

} // namespace imageposition::bench
