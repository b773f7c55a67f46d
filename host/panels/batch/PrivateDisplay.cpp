#include "PrivateDisplay.hpp"

#include "BatchTexts.hpp"
#include "ExitCode.hpp"
#include "FileContent.hpp"
#include "PluginTrust.hpp"
#include "VisibleText.hpp"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sstream>
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
constexpr std::size_t kLongestReason = 1000;

/// The first Xvfb on PATH that no other user could change or replace; empty if there is none. A
/// part of PATH that depends on the current folder does not count: that may be anybody's.
std::string findServer() {
  const char *const path = std::getenv("PATH");
  std::istringstream folders(path != nullptr ? path : "/usr/bin:/bin");
  for (std::string folder; std::getline(folders, folder, ':');) {
    std::string server = folder + "/Xvfb";
    if (server.front() == '/' && !folder.empty() && access(server.c_str(), X_OK) == 0 &&
        !untrustedPart(server, TrustedPeople::here()))
      return server;
  }
  return {};
}

/// The path of the key that a client of the server needs; empty on failure. Without it every user
/// of the computer could connect, look at the panel and type into it. The key is in memory alone,
/// and only this user's programs can read it.
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

/// Becomes the server, or ends. For the child: calls only what is safe after fork.
[[noreturn]] void becomeServer(const char *program, int announcement, int errors, pid_t parent,
                               const char *authority) {
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (getppid() != parent)
    _exit(127);
  const int nowhere = open("/dev/null", O_RDWR);
  dup2(errors, STDERR_FILENO); // before 3, which may be `errors`
  if (announcement == 3)
    fcntl(announcement, F_SETFD, 0);
  else
    dup2(announcement, 3);
  dup2(nowhere, STDIN_FILENO);
  dup2(nowhere, STDOUT_FILENO);
  execl(program, "Xvfb", "-displayfd", "3", "-screen", "0", "1024x768x24", "-nolisten", "tcp",
        "-noreset", "-auth", authority, static_cast<char *>(nullptr));
  _exit(127);
}

/// The number of the display, as the server announces it; empty if it ends or takes too long.
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

/// The server's messages as one line.
std::string reasonIn(const Descriptor &errors) {
  std::string written(kLongestReason, '\0');
  const ssize_t length = pread(errors.get(), written.data(), written.size(), 0);
  written.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  std::istringstream words(written);
  std::string line;
  for (std::string word; words >> word;)
    line += (line.empty() ? "" : " ") + word;
  return visible(line);
}

[[noreturn]] void failWithoutDisplay(const std::string &reason = {}) {
  throw Failure(ExitCode::Display, messages::noDisplay(reason));
}

} // namespace

bool isDisplayNamed() {
  const char *const name = std::getenv("DISPLAY");
  return name != nullptr && *name != '\0';
}

void startPrivateDisplay() {
  const std::string program = findServer();
  const std::string authority = makeAuthority();
  const Descriptor errors(memfd_create("Xvfb", MFD_CLOEXEC));
  int ends[2];
  if (program.empty() || authority.empty() || !errors.isOpen() || pipe2(ends, O_CLOEXEC) != 0)
    failWithoutDisplay();
  const pid_t parent = getpid();
  const pid_t server = fork();
  if (server == 0)
    becomeServer(program.c_str(), ends[1], errors.get(), parent, authority.c_str());
  close(ends[1]);
  const std::string number = server > 0 ? awaitNumber(ends[0]) : std::string();
  close(ends[0]);
  if (number.empty()) {
    if (server > 0) {
      kill(server, SIGTERM);
      waitpid(server, nullptr, 0);
    }
    failWithoutDisplay(reasonIn(errors));
  }
  setenv("XAUTHORITY", authority.c_str(), 1);
  setenv("DISPLAY", (':' + number).c_str(), 1);
}

} // namespace imageposition
