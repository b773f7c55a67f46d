/// Notices that a file was changed or replaced.
#ifndef IMAGEPOSITION_CORE_FILES_FILEVERSION_HPP
#define IMAGEPOSITION_CORE_FILES_FILEVERSION_HPP

#include <string>

namespace imageposition {

/// Identifies the content of a regular file without reading it: another string after each change,
/// as far as the file system's times can tell. Empty if there is no such file. Not for display.
std::string fileVersion(const std::string &path);

} // namespace imageposition

#endif
