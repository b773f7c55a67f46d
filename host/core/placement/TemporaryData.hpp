/// Temporary files without a name, and private folders for programs that need names.
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

/// A path in the folder for temporary files at which there is nothing, for a `TemporaryPlace`. Two
/// processes that know it can both delete the folder, so it is gone even if one of them is killed.
std::string unusedPlace();

/// Deletes the folder with what is in it, if it exists and belongs to this user.
void deletePlace(const std::string &path) noexcept;

/// A folder that only this user can enter. The destructor deletes it with what is in it.
class TemporaryPlace {
public:
  /// Throws a `std::system_error` if there is something at the path.
  explicit TemporaryPlace(std::string path);
  ~TemporaryPlace() { deletePlace(path_); }
  TemporaryPlace(const TemporaryPlace &) = delete;
  TemporaryPlace &operator=(const TemporaryPlace &) = delete;

private:
  const std::string path_;
};

} // namespace imageposition

#endif
