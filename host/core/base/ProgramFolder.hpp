/// Finds files that are installed relative to the running program.
#ifndef IMAGEPOSITION_CORE_BASE_PROGRAMFOLDER_HPP
#define IMAGEPOSITION_CORE_BASE_PROGRAMFOLDER_HPP

#include <string>
#include <vector>

namespace imageposition {

/// Returns the path of `name`, relative to the folder of the running program. Symbolic links to the
/// program are resolved. Returns an empty string if the program's path is unknown.
std::string besideProgram(const std::string &name);

/// Whether the file may be run as a part of this program: false if another user could have put it
/// there, for example next to a program in /tmp. Group permissions are ignored: a group that can
/// replace the part can replace the program, too.
bool isTrustedPart(const std::string &path);

/// The first of the paths that exists and is a trusted part; empty if there is none.
std::string trustedPart(const std::vector<std::string> &paths);

/// The path of another program of print-dialog: beside the running one, as in a build folder, or
/// where it is installed. Empty if it is in neither place, or is not a trusted part.
std::string installedProgram(const std::string &name);

} // namespace imageposition

#endif
