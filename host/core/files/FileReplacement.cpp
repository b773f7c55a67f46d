#include "FileReplacement.hpp"

#include "FileTexts.hpp"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <deque>
#include <fcntl.h>
#include <optional>
#include <random>
#include <sys/stat.h>

namespace imageposition {

namespace fs = std::filesystem;

namespace {

constexpr int kMaxLinks = 40; // Linux's own limit
constexpr int kMaxAttempts = 100;

/// Returns nullopt if there is no such file.
std::optional<struct stat> statusOf(int folder, const std::string &name) {
  struct stat status {};
  if (fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
    return status;
  if (errno == ENOENT)
    return std::nullopt;
  throw FileTrouble(errno);
}

bool isUsers(const struct stat &status) { return status.st_uid == geteuid(); }

/// Never follows a symbolic link.
Descriptor openFolder(int start, const std::string &name) {
  Descriptor folder(openat(start, name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (!folder.isOpen())
    throw FileTrouble(errno);
  return folder;
}

/// Returns nullopt for anything but a symbolic link. Refuses another user's link, which could point
/// to any of the user's files.
std::optional<fs::path> targetOfLink(const Descriptor &folder, const std::string &name) {
  const Descriptor link(openat(folder.get(), name.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
  struct stat status {};
  if (!link.isOpen() || fstat(link.get(), &status) != 0 || !S_ISLNK(status.st_mode))
    return std::nullopt;
  if (!isUsers(status) && status.st_uid != 0)
    throw FileTrouble(messages::kLinkOfAnotherUser);
  char target[PATH_MAX];
  const ssize_t length = readlinkat(link.get(), "", target, sizeof target);
  if (length < 0)
    throw FileTrouble(errno);
  return fs::path(std::string(target, static_cast<std::size_t>(length)));
}

} // namespace

/// Resolves symbolic links itself, to check the owner of each one before following it.
FileReplacement::Place FileReplacement::placeOf(const fs::path &path, LastLink lastLink) {
  std::deque<fs::path> names(path.begin(), path.end());
  Descriptor folder = openFolder(AT_FDCWD, ".");
  for (int links = 0; !names.empty();) {
    const std::string name = names.front();
    names.pop_front();
    const bool isLast = names.empty();
    if (isLast && (name.empty() || name == "." || name == ".." || name == "/"))
      break;
    if (!isLast || lastLink == LastLink::Followed) {
      if (const auto target = targetOfLink(folder, name)) {
        if (++links > kMaxLinks)
          throw FileTrouble(ELOOP);
        names.insert(names.begin(), target->begin(), target->end());
        continue;
      }
    }
    if (isLast)
      return {std::move(folder), name};
    if (!name.empty()) // as between two slashes
      folder = openFolder(folder.get(), name);
  }
  throw FileTrouble(EISDIR);
}

FileReplacement::FileReplacement(const std::string &path, std::string_view content, Readers readers,
                                 ContentCheck isOurs)
    : FileReplacement(placeOf(path, isOurs != nullptr ? LastLink::Kept : LastLink::Followed)) {
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
  if (keepsRights && fchmod(file.get(), rights) != 0) // openat() applied the umask
    throw FileTrouble(errno);
  if (!writeAll(file.get(), content) || fsync(file.get()) != 0 || ::close(file.release()) != 0)
    throw FileTrouble(errno);
}

Descriptor FileReplacement::createTemporary(mode_t rights) {
  std::random_device random;
  for (int attempt = 0; attempt < kMaxAttempts; attempt++) {
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
  // Flush the folder entry too. Not every file system supports that, so ignore an error.
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
