/// Preparing the arguments and the environment for GNUstep before it is loaded.
///
/// GNUstep reads all arguments and environment variables as strings, and aborts with an internal
/// error if one is not UTF-8.
#ifndef IMAGEPOSITION_CORE_COMMAND_STARTTEXTS_HPP
#define IMAGEPOSITION_CORE_COMMAND_STARTTEXTS_HPP

#include "PluginTrust.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// Throws a `Failure` with `ExitCode::Usage` that names the first argument that is not UTF-8. The
/// `documents` among them may have any encoding.
void requireUtf8Arguments(const std::vector<std::string> &words,
                          const std::vector<std::string> &documents);

/// Replaces the letters outside ASCII by "?" in arguments that are not UTF-8, where the kernel
/// keeps them: GNUstep reads /proc/self/cmdline when it is loaded. `argv` is main's. Copy it
/// before.
void hideArgumentsThatAreNotUtf8(char **argv);

/// Removes the environment variables that are not UTF-8, for example OLDPWD with a folder name in
/// another encoding.
void removeVariablesThatAreNotUtf8();

/// Removes the environment variables that tell GNUstep where to find its files, programs and code.
/// Keeps `GNUSTEP_CONFIG_FILE` unless it is relative or another user could have modified the file;
/// in the latter case, returns the part of the path that they could have modified.
std::optional<UntrustedPart> removeGnustepVariables();

/// Removes the lock of GNUstep's user defaults if a killed program has left it. GNUstep holds it
/// for less than a millisecond, but waits for twenty seconds or more before it removes one.
void removeForgottenDefaultsLock();

} // namespace imageposition

#endif
