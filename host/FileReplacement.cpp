#include "host/FileReplacement.hpp"

#include "host/Messages.hpp"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <random>
#include <sys/stat.h>

namespace imageposition {

namespace {

constexpr int kMostLinks = 40; // Linux's own limit
constexpr int kMostNames = 100;

/// None where there is nothing.
std::optional<struct stat> statusOf(int folder, const std::string &name) {
  struct stat status {};
  if (fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
    return status;
  if (errno == ENOENT)
    return std::nullopt;
  throw FileTrouble(errno);
}

bool isUsers(const struct stat &status) { return status.st_uid == geteuid(); }

void writeAll(const Descriptor &file, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = write(file.get(), content.data(), content.size());
    if (written < 0 && errno == EINTR)
      continue;
    if (written < 0)
      throw FileTrouble(errno);
    content.remove_prefix(static_cast<std::size_t>(written));
  }
}

} // namespace

FileReplacement::Place FileReplacement::placeOf(const std::string &path, const Descriptor *start) {
  const std::size_t slash = path.rfind('/');
  const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  if (name.empty() || name == "." || name == "..")
    throw FileTrouble(EISDIR);
  const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  Descriptor opened(openat(start != nullptr ? start->get() : AT_FDCWD, folder.c_str(),
                           O_PATH | O_DIRECTORY | O_CLOEXEC));
  if (!opened.isOpen())
    throw FileTrouble(errno);
  return {std::move(opened), name};
}

/// Another user's link, in a folder where others may write, may lead to any file of the user's.
FileReplacement::Place FileReplacement::behindLinks(Place place) {
  for (int links = 0; links < kMostLinks; links++) {
    const Descriptor link(
        openat(place.folder.get(), place.name.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    struct stat status {};
    if (!link.isOpen() || fstat(link.get(), &status) != 0 || !S_ISLNK(status.st_mode))
      return place;
    if (!isUsers(status) && status.st_uid != 0)
      throw FileTrouble(messages::kLinkOfAnotherUser);
    char target[PATH_MAX];
    const ssize_t length = readlinkat(link.get(), "", target, sizeof target);
    if (length < 0)
      throw FileTrouble(errno);
    place = placeOf(std::string(target, static_cast<std::size_t>(length)), &place.folder);
  }
  throw FileTrouble(ELOOP);
}

FileReplacement::FileReplacement(const std::string &path, std::string_view content, Readers readers,
                                 ContentCheck isOurs)
    : FileReplacement(isOurs != nullptr ? placeOf(path) : behindLinks(placeOf(path))) {
  writeContent(content, readers, isOurs);
}

FileReplacement::~FileReplacement() {
  for (const std::string &name : {temporary_, former_})
    if (!name.empty())
      unlinkat(place_.folder.get(), name.c_str(), 0);
}

bool FileReplacement::hasOwnContent(ContentCheck isOurs) const {
  const Descriptor file(openat(place_.folder.get(), place_.name.c_str(),
                               O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  return file.isOpen() && fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode) &&
         isUsers(status) && isOurs(contentOfFile(file));
}

void FileReplacement::writeContent(std::string_view content, Readers readers, ContentCheck isOurs) {
  const int folder = place_.folder.get();
  const auto former = statusOf(folder, place_.name);
  if (former && isOurs != nullptr && !hasOwnContent(isOurs))
    throw FileTrouble(messages::kNotWrittenByPrintDialog);
  if (former && !S_ISREG(former->st_mode))
    throw FileTrouble(messages::kNotAnOrdinaryFile);
  if (former && faccessat(folder, place_.name.c_str(), W_OK, AT_EACCESS) != 0)
    throw FileTrouble(errno);
  const bool keepsRights = former && isUsers(*former);
  const mode_t readable = readers == Readers::OwnerAlone ? S_IRWXU : S_IRWXU | S_IRWXG | S_IRWXO;
  const mode_t rights = (keepsRights ? former->st_mode : 0666) & readable;
  Descriptor file = createTemporary(rights);
  if (keepsRights && fchmod(file.get(), rights) != 0) // creating it obeys the umask
    throw FileTrouble(errno);
  writeAll(file, content);
  if (fsync(file.get()) != 0 || ::close(file.release()) != 0)
    throw FileTrouble(errno);
}

Descriptor FileReplacement::createTemporary(mode_t rights) {
  std::random_device random;
  for (int tried = 0; tried < kMostNames; tried++) {
    char suffix[8];
    std::snprintf(suffix, sizeof suffix, ".%06x", random() & 0xFFFFFFU);
    const std::string name = place_.name + suffix;
    Descriptor file(openat(place_.folder.get(), name.c_str(),
                           O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, rights));
    if (file.isOpen()) {
      temporary_ = name;
      return file;
    }
    if (errno != EEXIST)
      break;
  }
  throw FileTrouble(errno);
}

void FileReplacement::commit() {
  const int folder = place_.folder.get();
  if (renameat(folder, temporary_.c_str(), folder, place_.name.c_str()) != 0)
    throw FileTrouble(errno);
  temporary_.clear();
  // The name is safe once its folder is on disk; a file system that cannot do that is no failure.
  const Descriptor readable(openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (readable.isOpen())
    fsync(readable.get());
}

void FileReplacement::keepFormer() {
  const int folder = place_.folder.get();
  const std::string name = temporary_ + '~';
  if (linkat(folder, place_.name.c_str(), folder, name.c_str(), 0) == 0)
    former_ = name;
  else
    isNew_ = errno == ENOENT;
}

bool FileReplacement::revert() {
  const int folder = place_.folder.get();
  if (former_.empty())
    return isNew_ && unlinkat(folder, place_.name.c_str(), 0) == 0;
  if (renameat(folder, former_.c_str(), folder, place_.name.c_str()) != 0)
    return false;
  former_.clear();
  return true;
}

} // namespace imageposition
