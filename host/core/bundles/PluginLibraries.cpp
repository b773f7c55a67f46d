#include "PluginLibraries.hpp"

#include "LibraryFile.hpp"

#include <cerrno>
#include <filesystem>
#include <set>
#include <sys/stat.h>
#include <vector>

namespace imageposition {

namespace fs = std::filesystem;

namespace {

using Reason = UntrustedPlace::Reason;
using Folders = std::vector<std::string>;

/// Like the loader, reads an empty entry as the current folder.
Folders foldersIn(const std::optional<std::string> &runPath) {
  Folders folders;
  for (std::size_t from = 0; runPath && from <= runPath->size();) {
    const std::size_t colon = std::min(runPath->find(':', from), runPath->size());
    folders.push_back(colon == from ? "." : runPath->substr(from, colon - from));
    from = colon + 1;
  }
  return folders;
}

std::string withOrigin(std::string path, const std::string &library) {
  const std::string folder = fs::path(library).parent_path().string();
  for (const std::string name : {"$ORIGIN", "${ORIGIN}"})
    for (std::size_t at = path.find(name); at != std::string::npos;
         at = path.find(name, at + folder.size()))
      path.replace(at, name.size(), folder);
  return path;
}

bool exists(const std::string &path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 || errno != ENOENT;
}

class Search {
public:
  explicit Search(const TrustedPeople &people) : people_(people) {}

  /// `inherited`: folders from the DT_RPATH of the libraries that need this one; the loader
  /// searches them for its dependencies, too.
  void lookAt(const std::string &library, Folders inherited) {
    if (found_ || !seen_.insert(library).second)
      return;
    const auto needs = readNeeds(library);
    if (!needs) {
      found_ = UntrustedPlace{library, library, Reason::Unknown, ENOEXEC};
      return;
    }
    const Folders older = checked(library, foldersIn(needs->oldRunPath));
    const Folders own = checked(library, foldersIn(needs->runPath));
    if (!needs->runPath)
      inherited.insert(inherited.begin(), older.begin(), older.end());
    for (const std::string &name : needs->libraries)
      if (name.find('/') != std::string::npos)
        lookAtFile(library, withOrigin(name, library), inherited);
      else
        for (const std::string &folder : needs->runPath ? own : inherited)
          lookAtFile(library, (fs::path(folder) / name).string(), inherited);
  }

  const std::optional<UntrustedPlace> &found() const { return found_; }

private:
  Folders checked(const std::string &library, Folders folders) {
    for (std::string &folder : folders) {
      folder = withOrigin(folder, library);
      check(library, folder);
      // The loader looks here first, for variants optimised for this processor.
      if (exists(folder + "/glibc-hwcaps") && !found_)
        judge(library, folder, untrustedPart(folder + "/glibc-hwcaps", people_));
    }
    return folders;
  }

  void lookAtFile(const std::string &library, const std::string &file, const Folders &inherited) {
    check(library, file);
    if (!found_ && exists(file))
      lookAt(file, inherited);
  }

  void check(const std::string &library, const std::string &place) {
    if (found_)
      return;
    if (place.front() != '/')
      found_ = UntrustedPlace{library, place, Reason::Relative};
    else if (place.find('$') != std::string::npos) // $LIB or $PLATFORM
      found_ = UntrustedPlace{library, place, Reason::Unknown, ENOTSUP};
    else
      judge(library, place, untrustedPlace(place, people_));
  }

  void judge(const std::string &library, const std::string &place,
             const std::optional<UntrustedPart> &part) {
    if (part)
      found_ =
          UntrustedPlace{library, place,
                         part->reason == UntrustedPart::Reason::Unknown ? Reason::Unknown
                                                                        : Reason::OthersMayChange,
                         part->error};
  }

  const TrustedPeople &people_;
  std::set<std::string> seen_;
  std::optional<UntrustedPlace> found_;
};

} // namespace

std::optional<UntrustedPlace> untrustedLibraryPlace(const std::string &code,
                                                    const TrustedPeople &people) {
  Search search(people);
  search.lookAt(code, {});
  return search.found();
}

} // namespace imageposition
