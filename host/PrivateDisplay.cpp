#include "host/PrivateDisplay.hpp"

#include "host/ExitCode.hpp"
#include "host/Messages.hpp"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/random.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace imageposition {

namespace {

constexpr int kPatienceInMilliseconds = 20000;

/// Where the server and this program read what a client has to say; empty when that fails. Without
/// it every user of the computer could connect, look at the panel and type into it. It is in memory
/// alone, and only this user's programs can open it.
std::string makeAuthority() {
  // As Xau(3) describes it: any address, any display, the method's name, the cookie.
  std::string entry("\xFF\xFF\0\0\0\0\0\x12MIT-MAGIC-COOKIE-1\0\x10", 28);
  char cookie[16];
  if (getrandom(cookie, sizeof cookie, 0) != sizeof cookie)
    return {};
  entry.append(cookie, sizeof cookie);
  const int descriptor = memfd_create("Xauthority", MFD_CLOEXEC);
  if (descriptor < 0 ||
      write(descriptor, entry.data(), entry.size()) != static_cast<ssize_t>(entry.size()))
    return {};
  return "/proc/" + std::to_string(getpid()) + "/fd/" + std::to_string(descriptor);
}

/// In the child: becomes the server, or ends. Only calls that are safe after fork.
[[noreturn]] void becomeServer(int announcement, pid_t parent, const char *authority) {
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
         "-noreset", "-auth", authority, static_cast<char *>(nullptr));
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
  const std::string authority = makeAuthority();
  int ends[2];
  if (authority.empty() || pipe2(ends, O_CLOEXEC) != 0)
    throw Failure(ExitCode::Display, messages::kNoDisplay);
  const pid_t parent = getpid();
  const pid_t server = fork();
  if (server == 0)
    becomeServer(ends[1], parent, authority.c_str());
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
  setenv("XAUTHORITY", authority.c_str(), 1);
  setenv("DISPLAY", (':' + number).c_str(), 1);
}

} // namespace imageposition
