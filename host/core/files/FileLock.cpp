#include "FileLock.hpp"

#include "FileTexts.hpp"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <thread>

namespace imageposition {

namespace {

constexpr std::chrono::seconds kPatience{1};
constexpr std::chrono::milliseconds kBetweenTries{20};

/// As /proc/locks names it: "08:01:1234".
std::string identityOf(const Descriptor &file) {
  struct stat status {};
  if (fstat(file.get(), &status) != 0)
    return {};
  char name[64];
  std::snprintf(name, sizeof name, "%02x:%02x:%llu", major(status.st_dev), minor(status.st_dev),
                static_cast<unsigned long long>(status.st_ino));
  return name;
}

/// The process that holds the lock, "vi (123)"; empty if the system does not say. See proc(5).
std::string holderOf(const Descriptor &file) {
  const std::string identity = identityOf(file);
  std::ifstream locks("/proc/locks");
  for (std::string line; std::getline(locks, line);) {
    std::istringstream fields(line);
    std::string number, kind, mode, access, process, locked;
    if (!(fields >> number >> kind >> mode >> access >> process >> locked) || locked != identity)
      continue;
    std::ifstream name("/proc/" + process + "/comm");
    std::string program;
    return std::getline(name, program) ? program.append(" (").append(process).append(")") : process;
  }
  return {};
}

} // namespace

FileLock::FileLock(const std::string &path)
    : file_(open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600)) {
  if (!file_.isOpen())
    throw FileTrouble(errno);
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (flock(file_.get(), LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR)
      throw FileTrouble(errno);
    if (std::chrono::steady_clock::now() >= deadline)
      throw FileTrouble(messages::lockedBy(holderOf(file_)));
    std::this_thread::sleep_for(kBetweenTries);
  }
}

} // namespace imageposition
