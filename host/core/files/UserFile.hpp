/// The files that the program keeps for a user.
#ifndef IMAGEPOSITION_CORE_FILES_USERFILE_HPP
#define IMAGEPOSITION_CORE_FILES_USERFILE_HPP

#include "FileReplacement.hpp"

#include <functional>
#include <optional>
#include <string>

namespace imageposition {

/// The program's folder in $XDG_STATE_HOME, what programs remember, or $XDG_CONFIG_HOME, what users
/// set up. Empty for a user without a home folder.
std::string stateFolder();
std::string configurationFolder();

/// Replaces the file by what `change` makes of its content, which is none if there is no file.
/// Creates folders that are missing. Several processes may do so at the same time. `isOurs` is as
/// for `FileReplacement`. Throws a `FileTrouble`, as `change` may; the file is then unchanged.
void changeUserFile(const std::string &path,
                    const std::function<std::string(const std::optional<std::string> &)> &change,
                    ContentCheck isOurs);

} // namespace imageposition

#endif
