#include "host/FileReplacement.hpp"

#include "host/ExitCode.hpp"
#include "host/Messages.hpp"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace imageposition {

namespace {

/// Where a path really leads; itself while nothing is there.
std::string resolved(const std::string &path) {
  char real[PATH_MAX];
  return realpath(path.c_str(), real) != nullptr ? std::string(real) : path;
}

std::string folderOf(const std::string &path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos)
    return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

/// The rights of the file that is replaced, or those that a new file gets here.
mode_t rightsFor(const std::string &path) {
  struct stat status {};
  if (stat(path.c_str(), &status) == 0)
    return status.st_mode & 07777;
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

} // namespace

FileReplacement::FileReplacement(const std::string &path, std::string_view content, Readers readers)
    : path_(resolved(path)) {
  struct stat status {};
  if (stat(path_.c_str(), &status) == 0 && !S_ISREG(status.st_mode))
    throw Failure(ExitCode::Ticket, messages::notAnOrdinaryFile(path_));
  std::string name = path_ + ".XXXXXX";
  const int descriptor = mkostemp(&name[0], O_CLOEXEC);
  if (descriptor < 0)
    fail(errno);
  temporary_ = name;
  try {
    writeContent(descriptor, content, readers);
  } catch (...) {
    close(descriptor);
    unlink(temporary_.c_str()); // a constructor that throws has no destructor
    throw;
  }
  if (close(descriptor) != 0) {
    const int reason = errno;
    unlink(temporary_.c_str());
    fail(reason);
  }
}

FileReplacement::~FileReplacement() {
  if (!temporary_.empty())
    unlink(temporary_.c_str());
}

void FileReplacement::fail(int reason) const {
  throw Failure(ExitCode::Ticket, messages::fileUnwritable(path_, systemReason(reason)));
}

void FileReplacement::writeContent(int descriptor, std::string_view content,
                                   Readers readers) const {
  while (!content.empty()) {
    const ssize_t written = write(descriptor, content.data(), content.size());
    if (written < 0 && errno == EINTR)
      continue;
    if (written < 0)
      fail(errno);
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  const mode_t readable = readers == Readers::OwnerAlone ? S_IRWXU : 07777;
  if (fchmod(descriptor, rightsFor(path_) & readable) != 0 || fsync(descriptor) != 0)
    fail(errno);
}

void FileReplacement::commit() {
  if (rename(temporary_.c_str(), path_.c_str()) != 0)
    fail(errno);
  temporary_.clear();
  // The name is safe once its folder is on disk; a file system that cannot do that is no failure.
  const int folder = ::open(folderOf(path_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder >= 0) {
    fsync(folder);
    close(folder);
  }
}

} // namespace imageposition
