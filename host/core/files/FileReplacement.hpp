/// Replaces a file atomically.
#ifndef IMAGEPOSITION_CORE_FILES_FILEREPLACEMENT_HPP
#define IMAGEPOSITION_CORE_FILES_FILEREPLACEMENT_HPP

#include "FileContent.hpp"

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace imageposition {

/// Who may read the new file.
enum class Readers {
  Same,      ///< As for the user's file that it replaces, or for any new file.
  OwnerAlone ///< Even if others could read the old file.
};

/// Whether this program could have written the content.
using ContentCheck = bool (*)(std::string_view content);

/// The new content of a file, written to a temporary file beside it and flushed to disk before it
/// replaces the old file. Safe in a folder where others may write: the folder is opened once, and
/// names in it are only created or replaced, never followed for writing. If an operation throws a
/// `FileTrouble`, the file is unchanged.
class FileReplacement {
public:
  /// Writes the temporary file. Follows symbolic links that belong to the user or to root, anywhere
  /// in the path, and refuses other links. Also refuses to replace anything but a regular file that
  /// the user may write.
  ///
  /// Pass `isOurs` for a file that the user did not name: a link in its place is never followed,
  /// and a file is replaced only if it belongs to the user and `isOurs` returns true for its
  /// content.
  FileReplacement(const std::string &path, std::string_view content,
                  Readers readers = Readers::Same, ContentCheck isOurs = nullptr);
  /// Removes the temporary files.
  ~FileReplacement();
  FileReplacement(const FileReplacement &) = delete;
  FileReplacement &operator=(const FileReplacement &) = delete;

  /// Replaces the file.
  void commit();

  /// Call before `commit` to let `revert` undo it.
  void keepFormer();
  /// Restores the former file, or removes the new one if there was none. Returns false if that
  /// fails, as on a file system without hard links.
  bool revert();

private:
  enum class LastLink { Followed, Kept };
  struct Place {
    Descriptor folder;
    std::string name;
  };

  explicit FileReplacement(Place place) : place_(std::move(place)) {}
  static Place placeOf(const std::filesystem::path &path, LastLink lastLink);
  bool hasOwnContent(ContentCheck isOurs) const;
  void writeContent(std::string_view content, Readers readers, ContentCheck isOurs);
  Descriptor createTemporary(mode_t rights);

  Place place_;
  std::string temporary_; // empty if there is none
  std::string former_;    // a second link to the former file; empty if there is none
  bool isNew_ = false;
};

} // namespace imageposition

#endif
