#include "host/PluginTrust.hpp"

#include <filesystem>
#include <grp.h>
#include <pwd.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>

namespace imageposition {

namespace fs = std::filesystem;

namespace {

/// Whether the account's own group is of the same name and has no other members.
bool isPrivate(const passwd &account) {
  const group *const own = getgrgid(account.pw_gid);
  if (own == nullptr || std::string_view(own->gr_name) != account.pw_name)
    return false;
  for (char **member = own->gr_mem; *member != nullptr; member++)
    if (std::string_view(*member) != account.pw_name)
      return false;
  return true;
}

/// With a list of rights beside the usual ones, the group's bits are no longer about the group.
bool hasAccessList(const std::string &path) {
  return getxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) > 0;
}

// The C++ library cannot tell of a folder that is later than its own times reach.
bool isFolder(const std::string &path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

class Inspection {
public:
  explicit Inspection(const TrustedPeople &people) : people_(people) {}

  std::optional<UntrustedPart> lookAt(const fs::path &path) {
    std::error_code failed;
    const fs::path real = fs::canonical(path, failed);
    if (failed)
      return std::nullopt;
    for (fs::path folder = real.parent_path();; folder = folder.parent_path()) {
      check(folder, Place::OnTheWay);
      if (folder == folder.root_path())
        break;
    }
    lookInto(real);
    return found_;
  }

  std::optional<UntrustedPart> lookAtFolderOf(const fs::path &path) {
    std::error_code failed;
    const fs::path folder = fs::canonical(path.parent_path(), failed);
    if (!failed)
      check(folder, Place::Inside);
    return lookAt(path);
  }

private:
  enum class Place { OnTheWay, Inside };

  void lookInto(const fs::path &real) {
    if (!seen_.insert(real.string()).second || found_)
      return;
    check(real, Place::Inside);
    if (!isFolder(real.string()))
      return;
    std::error_code failed;
    for (fs::directory_iterator entry(real, failed), end; !failed && entry != end;
         entry.increment(failed)) {
      std::error_code gone;
      if (fs::is_symlink(entry->symlink_status(gone)))
        lookAt(entry->path());
      else
        lookInto(entry->path());
    }
  }

  void check(const std::string &path, Place place) {
    struct stat status {};
    if (found_ || stat(path.c_str(), &status) != 0)
      return;
    if (people_.owners.count(status.st_uid) == 0)
      found_ = UntrustedPart{path, UntrustedPart::Reason::OthersOwnIt};
    else if (!(place == Place::OnTheWay && (status.st_mode & S_ISVTX)) &&
             othersMayWrite(path, status))
      found_ = UntrustedPart{path, UntrustedPart::Reason::OthersMayWrite};
  }

  bool othersMayWrite(const std::string &path, const struct stat &status) const {
    if (status.st_mode & S_IWOTH)
      return true;
    if (!(status.st_mode & S_IWGRP))
      return false;
    return people_.groups.count(status.st_gid) == 0 || hasAccessList(path);
  }

  const TrustedPeople &people_;
  std::set<std::string> seen_; // links may lead in circles
  std::optional<UntrustedPart> found_;
};

} // namespace

TrustedPeople TrustedPeople::here() {
  TrustedPeople people{{0, geteuid()}, {0}};
  struct stat program {};
  if (stat("/proc/self/exe", &program) == 0)
    people.owners.insert(program.st_uid);
  const passwd *const account = getpwuid(geteuid());
  if (account != nullptr && isPrivate(*account))
    people.groups.insert(account->pw_gid);
  return people;
}

std::optional<UntrustedPart> untrustedPart(const std::string &path, const TrustedPeople &people) {
  return Inspection(people).lookAt(path);
}

std::optional<UntrustedPart> untrustedPartOfFolder(const std::string &file,
                                                   const TrustedPeople &people) {
  return Inspection(people).lookAtFolderOf(file);
}

} // namespace imageposition
