#include "TemporaryData.hpp"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sstream>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace imageposition {

namespace {

constexpr const char *kPrefix = "print-dialog.";

[[noreturn]] void failWith(int error) { throw std::system_error(error, std::generic_category()); }

/// An absolute path: programs with other current folders use it, too.
std::string folder() {
  const char *const chosen = std::getenv("TMPDIR");
  return chosen != nullptr && chosen[0] == '/' ? chosen : "/tmp";
}

/// Not every file system can create a file without a name.
Descriptor unlinkedFile() {
  std::string name = folder() + "/" + kPrefix + "XXXXXX";
  Descriptor file(mkostemp(&name[0], O_CLOEXEC));
  if (!file.isOpen())
    failWith(errno);
  unlink(name.c_str());
  return file;
}

} // namespace

Descriptor temporaryFile(std::string_view content) {
  Descriptor file(open(folder().c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR));
  if (!file.isOpen())
    file = unlinkedFile();
  append(file, content);
  lseek(file.get(), 0, SEEK_SET);
  return file;
}

void append(const Descriptor &file, std::string_view content) {
  if (!writeAll(file.get(), content))
    failWith(errno);
}

std::string pathOf(const Descriptor &file) {
  return "/proc/" + std::to_string(getpid()) + "/fd/" + std::to_string(file.get());
}

std::string unusedPlace() {
  std::random_device random; // the system's, which nobody can foresee
  std::ostringstream path;
  path << folder() << "/" << kPrefix << std::hex;
  for (int i = 0; i < 4; i++)
    path << random();
  return path.str();
}

void deletePlace(const std::string &path) noexcept {
  struct stat status {};
  std::error_code ignored;
  if (lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid())
    std::filesystem::remove_all(path, ignored);
}

TemporaryPlace::TemporaryPlace(std::string path) : path_(std::move(path)) {
  if (mkdir(path_.c_str(), S_IRWXU) != 0)
    failWith(errno);
}

} // namespace imageposition
