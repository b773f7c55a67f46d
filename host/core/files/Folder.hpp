/// Lists folders, and reads paths as users type them.
#ifndef IMAGEPOSITION_CORE_FILES_FOLDER_HPP
#define IMAGEPOSITION_CORE_FILES_FOLDER_HPP

#include <string>
#include <vector>

namespace imageposition {

struct FolderEntry {
  std::string name; ///< Without the folder; in any encoding.
  bool isFolder = false;

  bool operator==(const FolderEntry &other) const {
    return name == other.name && isFolder == other.isFolder;
  }
};

/// The folders and regular files in a folder, also those to which symbolic links lead: folders
/// first, each in alphabetical order. Omits names that start with a dot. Throws a `FileTrouble` if
/// the folder cannot be read.
std::vector<FolderEntry> contentOfFolder(const std::string &path);

/// The absolute path that a user means by `typed` while in `folder`, without "." and ".." and
/// without a slash at the end. "~" is `home`, unless that is empty. Empty if nothing is typed.
std::string pathFrom(const std::string &folder, const std::string &typed, const std::string &home);

} // namespace imageposition

#endif
