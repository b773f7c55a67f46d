/// A file that is written whole or not at all.
#ifndef IMAGEPOSITION_HOST_FILEREPLACEMENT_HPP
#define IMAGEPOSITION_HOST_FILEREPLACEMENT_HPP

#include "FileContent.hpp"

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace imageposition {

/// Who may read the new file.
enum class Readers {
  Same,      ///< As the user's file that it replaces, or as any new one.
  OwnerAlone ///< Even where others could read the old one.
};

/// Whether this program may have written that content.
using ContentCheck = bool (*)(std::string_view content);

/// The new content of a file, first beside it under another name, on disk before it takes its
/// place. It is safe in a folder where others may write: the folder is opened once, and a name in
/// it is only ever created or replaced, never written through. Throws a `FileTrouble`; the file is
/// then as it was.
class FileReplacement {
public:
  /// Writes the content. Symbolic links that belong to the user or to root are followed, and others
  /// refused, whether the file or a folder on the way; so is anything but an ordinary file that the
  /// user may write.
  ///
  /// With `isOurs`, for a file that the user did not name, a link in its place is never followed,
  /// and a file is replaced only when it belongs to the user and has a content that this program
  /// has written.
  FileReplacement(const std::string &path, std::string_view content,
                  Readers readers = Readers::Same, ContentCheck isOurs = nullptr);
  /// Leaves nothing behind unless `commit` has succeeded.
  ~FileReplacement();
  FileReplacement(const FileReplacement &) = delete;
  FileReplacement &operator=(const FileReplacement &) = delete;

  void commit();

  /// Called before `commit`, lets `revert` undo it.
  void keepFormer();
  /// Puts the former file back, or takes the new one away where there was none. False when that
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
  std::string temporary_; // empty when there is none
  std::string former_;    // the former file's second name; empty when there is none
  bool isNew_ = false;
};

} // namespace imageposition

#endif
