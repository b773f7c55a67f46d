#include "host/PrivateDisplay.hpp"

#include "host/ExitCode.hpp"
#include "host/Messages.hpp"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/prctl.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace imageposition {

namespace {

constexpr int kPatienceInMilliseconds = 20000;

/// In the child: becomes the server, or ends. Only calls that are safe after fork.
[[noreturn]] void becomeServer(int announcement, pid_t parent) {
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (getppid() != parent)
    _exit(127);
  const int nowhere = open("/dev/null", O_RDWR);
  if (announcement == 3)
    fcntl(announcement, F_SETFD, 0);
  else
    dup2(announcement, 3);
  dup2(nowhere, STDIN_FILENO);
  dup2(nowhere, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
  execlp("Xvfb", "Xvfb", "-displayfd", "3", "-screen", "0", "1024x768x24", "-nolisten", "tcp",
         "-noreset", static_cast<char *>(nullptr));
  _exit(127);
}

/// The display's number as the server announces it; empty when it ends or takes too long.
std::string awaitNumber(int announcement) {
  std::string number;
  pollfd waiting{announcement, POLLIN, 0};
  while (poll(&waiting, 1, kPatienceInMilliseconds) > 0) {
    char byte = 0;
    const ssize_t count = read(announcement, &byte, 1);
    if (count < 0 && errno == EINTR)
      continue;
    if (count <= 0)
      return {};
    if (byte == '\n')
      return number;
    number += byte;
  }
  return {};
}

} // namespace

bool isDisplayNamed() {
  const char *const name = std::getenv("DISPLAY");
  return name != nullptr && *name != '\0';
}

void startPrivateDisplay() {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0)
    throw Failure(ExitCode::Display, messages::kNoDisplay);
  const pid_t parent = getpid();
  const pid_t server = fork();
  if (server == 0)
    becomeServer(ends[1], parent);
  close(ends[1]);
  const std::string number = server > 0 ? awaitNumber(ends[0]) : std::string();
  close(ends[0]);
  if (number.empty()) {
    if (server > 0) {
      kill(server, SIGTERM);
      waitpid(server, nullptr, 0);
    }
    throw Failure(ExitCode::Display, messages::kNoDisplay);
  }
  setenv("DISPLAY", (':' + number).c_str(), 1);
}

} // namespace imageposition
