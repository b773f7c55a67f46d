#include "ChildProgram.hpp"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace imageposition {

namespace {

constexpr int kFirstHigh = 10; // above all descriptors with a meaning

/// Out of the way of the numbers that the program's descriptors get.
Descriptor highCopy(int descriptor) {
  Descriptor copy(fcntl(descriptor, F_DUPFD_CLOEXEC, kFirstHigh));
  if (!copy.isOpen())
    throw std::system_error(errno, std::generic_category());
  return copy;
}

std::vector<char *> pointersTo(const std::vector<std::string> &strings) {
  std::vector<char *> pointers;
  pointers.reserve(strings.size() + 1);
  for (const std::string &string : strings)
    pointers.push_back(const_cast<char *>(string.c_str())); // posix_spawn does not modify them
  pointers.push_back(nullptr);
  return pointers;
}

/// What happens in the new process before it becomes the program.
class Actions {
public:
  explicit Actions(const std::vector<int> &descriptors) {
    posix_spawn_file_actions_init(&actions_);
    int number = 0;
    for (const int descriptor : descriptors) {
      if (descriptor < 0) {
        const int mode = number == STDIN_FILENO ? O_RDONLY : O_WRONLY;
        posix_spawn_file_actions_addopen(&actions_, number, "/dev/null", mode, 0);
      } else {
        copies_.push_back(highCopy(descriptor));
        posix_spawn_file_actions_adddup2(&actions_, copies_.back().get(), number);
      }
      number++;
    }
    posix_spawn_file_actions_addclosefrom_np(&actions_, number);
  }
  ~Actions() { posix_spawn_file_actions_destroy(&actions_); }
  Actions(const Actions &) = delete;
  Actions &operator=(const Actions &) = delete;

  const posix_spawn_file_actions_t *get() const noexcept { return &actions_; }

private:
  posix_spawn_file_actions_t actions_{};
  std::vector<Descriptor> copies_;
};

} // namespace

ProgramPipe newProgramPipe() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0)
    throw std::system_error(errno, std::generic_category());
  const Descriptor reader(ends[0]), writer(ends[1]);
  return {highCopy(reader.get()), highCopy(writer.get())};
}

pid_t startProgram(const ProgramStart &start) {
  const Actions actions(start.descriptors);
  const auto words = pointersTo(start.words);
  const auto variables = start.environment ? pointersTo(*start.environment) : std::vector<char *>();
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  sigset_t none;
  sigemptyset(&none);
  posix_spawnattr_setsigmask(&attributes, &none);
  posix_spawnattr_setpgroup(&attributes, 0);
  const int flags = POSIX_SPAWN_SETSIGMASK | (start.hasOwnGroup ? POSIX_SPAWN_SETPGROUP : 0);
  posix_spawnattr_setflags(&attributes, static_cast<short>(flags));
  pid_t process = -1;
  const int error = posix_spawn(&process, words[0], actions.get(), &attributes, words.data(),
                                start.environment ? variables.data() : environ);
  posix_spawnattr_destroy(&attributes);
  if (error != 0)
    throw std::system_error(error, std::generic_category());
  return process;
}

bool waitForProgram(pid_t process, std::chrono::milliseconds patience) {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + patience;
  int status = -1;
  while (waitpid(process, &status, WNOHANG) == 0) {
    if (Clock::now() >= end)
      kill(process, SIGKILL);
    poll(nullptr, 0, 1);
  }
  return status == 0;
}

} // namespace imageposition
