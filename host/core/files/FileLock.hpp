/// Locks that programs of this user agree on.
#ifndef IMAGEPOSITION_CORE_FILES_FILELOCK_HPP
#define IMAGEPOSITION_CORE_FILES_FILELOCK_HPP

#include "FileContent.hpp"

#include <string>

namespace imageposition {

/// Holds the lock of flock(2) on a file, which it creates if necessary.
class FileLock {
public:
  /// Waits for a moment if another process holds the lock. Then throws a `FileTrouble` that names
  /// the process. Throws one also if the file cannot be opened.
  explicit FileLock(const std::string &path);

private:
  Descriptor file_;
};

} // namespace imageposition

#endif
