#include "Children.hpp"

#include "ResourceLimits.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace imageposition {

namespace {

using Clock = std::chrono::steady_clock;

constexpr rlim_t kMemory = IMAGEPOSITION_MOVER_MEMORY; // bytes
constexpr rlim_t kFileSize = rlim_t(8) << 30;          // bytes
constexpr rlim_t kSeconds = 600;                       // of the processor
constexpr std::chrono::minutes kPatience{30};
constexpr int kBetweenLooks = 1000; // milliseconds; signals wake earlier
constexpr int kFirstHigh = 100;     // above all descriptors with a meaning

sigset_t childSignal() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGCHLD);
  return signals;
}

void limitAll() {
  limitResource(RLIMIT_AS, kMemory);
  limitResource(RLIMIT_FSIZE, kFileSize);
  limitResource(RLIMIT_CPU, kSeconds);
  limitResource(RLIMIT_CORE, 0);
}

void killListed() {
  std::ifstream list("/proc/thread-self/children");
  for (pid_t id = 0; list >> id;)
    kill(id, SIGKILL);
}

/// Gives the process its descriptors. 3 and 4 are a filter's channels from and to the printer.
void arrange(const Children::Files &files) {
  std::array<int, Children::kDescription + 1> from{files.input, files.output, files.errors,
                                                   -1,          -1,           files.description};
  for (int &descriptor : from) // out of the way of the numbers that are given next
    descriptor = descriptor >= 0 ? fcntl(descriptor, F_DUPFD, kFirstHigh)
                                 : open("/dev/null", O_RDWR | O_NONBLOCK);
  for (std::size_t i = 0; i < from.size(); i++)
    dup2(from[i], static_cast<int>(i));
  close_range(Children::kDescription + 1, ~0U, 0);
}

} // namespace

Children::Children(int lifeline) : lifeline_(lifeline), signals_(-1) {
  const sigset_t signals = childSignal();
  sigprocmask(SIG_BLOCK, &signals, nullptr);
  signals_ = Descriptor(signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
  prctl(PR_SET_CHILD_SUBREAPER, 1); // what a filter leaves running can be waited for
}

Children::~Children() { killAll(); }

void Children::start(const Files &files, const std::function<int()> &work) {
  const pid_t parent = getpid();
  const pid_t id = fork();
  if (id < 0)
    throw std::system_error(errno, std::generic_category());
  if (id > 0) {
    setpgid(id, id); // whichever of the two is first
    children_.push_back({id, false, false});
    return;
  }
  setpgid(0, 0);
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent)
    _exit(1);
  arrange(files);
  limitAll();
  const sigset_t signals = childSignal();
  sigprocmask(SIG_UNBLOCK, &signals, nullptr);
  _exit(work());
}

void Children::collect() {
  for (Child &child : children_) {
    siginfo_t info{};
    if (child.hasEnded ||
        waitid(P_PID, static_cast<id_t>(child.id), &info, WEXITED | WNOHANG | WNOWAIT) != 0 ||
        info.si_pid == 0)
      continue;
    child.hasEnded = true;
    child.hasSucceeded = info.si_code == CLD_EXITED && info.si_status == 0;
  }
}

bool Children::areAllDone() const {
  const bool isFailed = std::any_of(children_.begin(), children_.end(), [](const Child &child) {
    return child.hasEnded && !child.hasSucceeded;
  });
  return isFailed || std::all_of(children_.begin(), children_.end(),
                                 [](const Child &child) { return child.hasEnded; });
}

void Children::killAll() {
  for (const Child &child : children_)
    kill(-child.id, SIGKILL); // not yet waited for, so its group is nobody else's
  do // what has left its group is a child of this process once its parent has ended
    killListed();
  while (waitpid(-1, nullptr, 0) > 0 || errno == EINTR);
  children_.clear();
}

bool Children::wait(int output, const std::function<void(std::string_view)> &read) {
  const auto end = Clock::now() + kPatience;
  bool isOpen = output >= 0;
  collect();
  while ((!areAllDone() || isOpen) && Clock::now() < end) {
    std::array<pollfd, 3> waiting{
        {{lifeline_, POLLIN, 0}, {signals_.get(), POLLIN, 0}, {isOpen ? output : -1, POLLIN, 0}}};
    poll(waiting.data(), waiting.size(), areAllDone() ? 0 : kBetweenLooks);
    if (waiting[0].revents != 0)
      throw Abandoned();
    signalfd_siginfo ignored{};
    while (::read(signals_.get(), &ignored, sizeof ignored) > 0) {
    }
    collect();
    if (waiting[2].revents != 0) {
      std::array<char, 4096> part{};
      const ssize_t count = ::read(output, part.data(), part.size());
      isOpen = count > 0;
      if (isOpen && read)
        read({part.data(), static_cast<std::size_t>(count)});
    } else if (areAllDone()) {
      isOpen = false; // something that a child left running may keep it open
    }
  }
  const bool hasSucceeded = std::all_of(children_.begin(), children_.end(),
                                        [](const Child &child) { return child.hasSucceeded; });
  killAll();
  return hasSucceeded;
}

int execute(const std::string &program, const std::vector<std::string> &words,
            const std::vector<std::string> &environment) {
  const auto pointers = [](const std::vector<std::string> &strings) {
    std::vector<char *> result;
    result.reserve(strings.size() + 1);
    for (const std::string &string : strings)
      result.push_back(const_cast<char *>(string.c_str())); // execve does not modify them
    result.push_back(nullptr);
    return result;
  };
  execve(program.c_str(), pointers(words).data(), pointers(environment).data());
  return 127;
}

} // namespace imageposition
