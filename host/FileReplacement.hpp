/// A file that is written whole or not at all.
#ifndef IMAGEPOSITION_HOST_FILEREPLACEMENT_HPP
#define IMAGEPOSITION_HOST_FILEREPLACEMENT_HPP

#include <string>
#include <string_view>

namespace imageposition {

/// Who may read the new file.
enum class Readers {
  Same,      ///< As the file that it replaces, or as any new one.
  OwnerAlone ///< Even where others could read the old one.
};

/// The new content of a file, first beside it under another name, on disk before it takes its
/// place. Throws a `Failure` with `ExitCode::Ticket`; the file is then as it was.
class FileReplacement {
public:
  /// Writes the content. A symbolic link is followed; anything but an ordinary file is refused.
  FileReplacement(const std::string &path, std::string_view content,
                  Readers readers = Readers::Same);
  /// Leaves nothing behind unless `commit` has succeeded.
  ~FileReplacement();
  FileReplacement(const FileReplacement &) = delete;
  FileReplacement &operator=(const FileReplacement &) = delete;

  void commit();

private:
  [[noreturn]] void fail(int reason) const;
  void writeContent(int descriptor, std::string_view content, Readers readers) const;

  std::string path_;
  std::string temporary_; // empty when there is none
};

} // namespace imageposition

#endif
