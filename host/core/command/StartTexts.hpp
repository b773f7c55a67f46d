/// What the program was started with, made fit for GNUstep before that is loaded.
///
/// GNUstep reads all arguments and environment variables as strings, and ends the program with a
/// message about itself over the first that is not UTF-8.
#ifndef IMAGEPOSITION_HOST_STARTTEXTS_HPP
#define IMAGEPOSITION_HOST_STARTTEXTS_HPP

#include "PluginTrust.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// Throws a `Failure` with `ExitCode::Usage` that names the first argument that is not UTF-8.
void refuseForeignArguments(const std::vector<std::string> &words);

/// Removes the environment variables that are not UTF-8, such as the name of a folder in another
/// encoding that a shell remembers.
void leaveOutForeignVariables();

/// Removes the environment variables by which GNUstep is told where its files, programs and code
/// are. `GNUSTEP_CONFIG_FILE` stays unless somebody else could have changed what it names: the part
/// that they could have changed is then returned.
std::optional<UntrustedPart> leaveOutPlatformVariables();

} // namespace imageposition

#endif
