#include "ProcessRun.hpp"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace imageposition::test {

namespace {

struct Pipe {
  int ends[2];
  Pipe() {
    if (pipe2(ends, O_CLOEXEC) != 0)
      throw std::runtime_error("no pipe");
  }
};

void applyEnvironment(const std::vector<std::string> &environment) {
  for (const std::string &entry : environment) {
    const std::size_t equals = entry.find('=');
    if (equals == std::string::npos)
      unsetenv(entry.c_str());
    else
      setenv(entry.substr(0, equals).c_str(), entry.substr(equals + 1).c_str(), 1);
  }
}

[[noreturn]] void become(const std::vector<std::string> &words,
                         const std::vector<std::string> &environment, int patience, int output,
                         int errors) {
  dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
  dup2(output, STDOUT_FILENO);
  dup2(errors, STDERR_FILENO);
  applyEnvironment(environment);
  alarm(static_cast<unsigned>(patience)); // survives exec
  std::vector<char *> arguments;
  for (const std::string &word : words)
    arguments.push_back(const_cast<char *>(word.c_str()));
  arguments.push_back(nullptr);
  execvp(arguments[0], arguments.data());
  _exit(127);
}

/// Reads the available output. Does not wait for the end of the pipe, which the program's children
/// may keep open.
void drain(int descriptor, std::string &text) {
  char buffer[4096];
  ssize_t count;
  while ((count = ::read(descriptor, buffer, sizeof buffer)) > 0)
    text.append(buffer, static_cast<std::size_t>(count));
}

} // namespace

void PrintTo(const ProcessResult &result, std::ostream *stream) {
  *stream << "status " << result.status << "\noutput:\n"
          << result.output << "errors:\n"
          << result.errors;
}

Process::Process(const std::vector<std::string> &words, const std::vector<std::string> &environment,
                 int patience) {
  Pipe output, errors;
  child_ = fork();
  if (child_ == 0)
    become(words, environment, patience, output.ends[1], errors.ends[1]);
  close(output.ends[1]);
  close(errors.ends[1]);
  output_ = output.ends[0];
  errors_ = errors.ends[0];
  for (const int end : {output_, errors_})
    fcntl(end, F_SETFL, O_NONBLOCK);
}

Process::~Process() {
  if (!hasEnded()) {
    kill(child_, SIGKILL);
    wait();
  }
  close(output_);
  close(errors_);
}

void Process::read() {
  drain(output_, result_.output);
  drain(errors_, result_.errors);
}

bool Process::hasEnded() {
  int status = 0;
  if (!ended_ && waitpid(child_, &status, WNOHANG) == child_) {
    ended_ = true;
    result_.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  }
  read();
  return ended_;
}

void Process::send(int signal) const { kill(child_, signal); }

const ProcessResult &Process::wait() {
  while (!hasEnded()) {
    pollfd waiting[2] = {{output_, POLLIN, 0}, {errors_, POLLIN, 0}};
    poll(waiting, 2, 10);
  }
  return result_;
}

std::string Process::errorsSoFar() {
  read();
  return result_.errors;
}

ProcessResult runProcess(const std::vector<std::string> &words,
                         const std::vector<std::string> &environment) {
  return Process(words, environment).wait();
}

} // namespace imageposition::test
