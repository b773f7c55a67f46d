#include "PluginTrust.hpp"

#include <cerrno>
#include <deque>
#include <filesystem>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>

namespace imageposition {

namespace fs = std::filesystem;

namespace {

constexpr int kMaxLinks = 40; // Linux's own limit
constexpr gid_t kRootGroup = 0;

/// With an access control list, the group bits are the list's mask, not the group's permissions.
bool hasAccessList(const std::string &path) {
  return getxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) >= 0 ||
         (errno != ENODATA && errno != EOPNOTSUPP);
}

// The mask of an access control list includes any write access that the list grants.
bool othersMayWrite(const std::string &path, const struct stat &status) {
  if (status.st_mode & S_IWOTH)
    return true;
  return (status.st_mode & S_IWGRP) != 0 && (status.st_gid != kRootGroup || hasAccessList(path));
}

class Inspection {
public:
  enum class Missing { Refused, Allowed };

  explicit Inspection(const TrustedPeople &people) : trusted_(people) {}

  /// Resolves the path, and checks each folder and link on it. Returns nullopt if one of them is
  /// untrusted or missing.
  ///
  /// Works from the root down: nobody else can rename a part that has been checked while the rest
  /// of the path is checked.
  std::optional<fs::path> follow(const fs::path &path, Missing missing) {
    std::error_code failed;
    const fs::path absolute = path.empty() ? path : fs::absolute(path, failed);
    std::deque<fs::path> names(absolute.begin(), absolute.end());
    if (failed || names.empty()) {
      recordError(path, failed ? failed.value() : ENOENT);
      return std::nullopt;
    }
    fs::path here;
    for (int links = 0; !names.empty() && !found_;) {
      const fs::path name = names.front();
      names.pop_front();
      if (name.empty() || name == ".")
        continue;
      const fs::path next = name == ".." ? here.parent_path() : here / name;
      struct stat status {};
      if (lstat(next.c_str(), &status) != 0) {
        checkMissing(here, next, missing);
        return std::nullopt;
      }
      check(next, status, Place::OnTheWay);
      if (!S_ISLNK(status.st_mode))
        here = next;
      else if (++links > kMaxLinks)
        recordError(next, ELOOP);
      else
        prepend(names, next);
    }
    return found_ ? std::nullopt : std::optional(here);
  }

  void checkTree(const fs::path &path) {
    if (found_ || !seen_.insert(path.string()).second)
      return;
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) {
      recordError(path, errno);
    } else if (S_ISLNK(status.st_mode)) {
      if (const auto real = follow(path, Missing::Allowed))
        checkTree(*real);
    } else {
      check(path, status, Place::Inside);
      if (S_ISDIR(status.st_mode))
        checkEntries(path);
    }
  }

  void checkAlone(const fs::path &path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0)
      recordError(path, errno);
    else
      check(path, status, Place::Inside);
  }

  const std::optional<UntrustedPart> &found() const { return found_; }

private:
  enum class Place { OnTheWay, Inside };

  void checkEntries(const fs::path &folder) {
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && !found_ && entry != end;
         entry.increment(failed))
      checkTree(entry->path());
    if (failed)
      recordError(folder, failed.value());
  }

  /// Inserts the link's target before the remaining names. An absolute target restarts at the root.
  void prepend(std::deque<fs::path> &names, const fs::path &link) {
    std::error_code failed;
    const fs::path target = fs::read_symlink(link, failed);
    if (failed)
      recordError(link, failed.value());
    names.insert(names.begin(), target.begin(), target.end());
  }

  void checkMissing(const fs::path &folder, const fs::path &path, Missing missing) {
    if (errno == ENOENT && missing == Missing::Allowed)
      checkAlone(folder); // no other user may be able to create it there
    else
      recordError(path, errno);
  }

  void recordError(const fs::path &path, int error) {
    if (!found_)
      found_ = UntrustedPart{path.string(), UntrustedPart::Reason::Unknown, error};
  }

  void check(const fs::path &path, const struct stat &status, Place place) {
    if (found_)
      return;
    const bool keepsOwners = place == Place::OnTheWay && (status.st_mode & S_ISVTX) != 0;
    if (trusted_.owners.count(status.st_uid) == 0)
      found_ = UntrustedPart{path.string(), UntrustedPart::Reason::OthersOwnIt};
    else if (!S_ISLNK(status.st_mode) && !keepsOwners && othersMayWrite(path.string(), status))
      found_ = UntrustedPart{path.string(), UntrustedPart::Reason::OthersMayWrite};
  }

  const TrustedPeople &trusted_;
  std::set<std::string> seen_; // symbolic links can form cycles
  std::optional<UntrustedPart> found_;
};

} // namespace

TrustedPeople TrustedPeople::here() {
  TrustedPeople people{{0, geteuid()}};
  struct stat program {};
  if (stat("/proc/self/exe", &program) == 0)
    people.owners.insert(program.st_uid);
  return people;
}

std::optional<UntrustedPart> untrustedPart(const std::string &path, const TrustedPeople &people) {
  Inspection inspection(people);
  if (const auto real = inspection.follow(path, Inspection::Missing::Refused))
    inspection.checkTree(*real);
  return inspection.found();
}

std::optional<UntrustedPart> untrustedPlace(const std::string &path, const TrustedPeople &people) {
  Inspection inspection(people);
  if (const auto real = inspection.follow(path, Inspection::Missing::Allowed))
    inspection.checkAlone(*real);
  return inspection.found();
}

std::optional<UntrustedPart> untrustedPartOfFolder(const std::string &file,
                                                   const TrustedPeople &people) {
  Inspection inspection(people);
  if (const auto real = inspection.follow(file, Inspection::Missing::Refused)) {
    inspection.checkAlone(real->parent_path());
    inspection.checkTree(*real);
  }
  return inspection.found();
}

} // namespace imageposition
