/// Temporary files without a name, and a private folder for programs that need names.
#ifndef IMAGEPOSITION_CORE_PLACEMENT_TEMPORARYDATA_HPP
#define IMAGEPOSITION_CORE_PLACEMENT_TEMPORARYDATA_HPP

#include "FileContent.hpp"

#include <string>
#include <string_view>

namespace imageposition {

/// A file in the folder for temporary files that has no name there, so it is gone as soon as no
/// process has it open. At its beginning. Throws a `std::system_error`.
Descriptor temporaryFile(std::string_view content = {});

/// Writes all of it at the file's position. Throws a `std::system_error`.
void append(const Descriptor &file, std::string_view content);

/// A path with which a program that this process starts, or this process, can open the file again.
std::string pathOf(const Descriptor &file);

/// How the names of temporary folders begin.
constexpr const char *kPlacePrefix = "print-dialog.";

/// A folder that only this user can enter. The destructor deletes it with what is in it.
class TemporaryPlace {
public:
  /// Throws a `std::system_error`.
  TemporaryPlace();
  ~TemporaryPlace();
  TemporaryPlace(const TemporaryPlace &) = delete;
  TemporaryPlace &operator=(const TemporaryPlace &) = delete;

  const std::string &path() const noexcept { return path_; }

private:
  std::string path_;
};

} // namespace imageposition

#endif
