/// What the program was started with, before the platform sees it.
///
/// The platform reads all arguments and environment variables as text, and ends the program with a
/// message about itself over the first that is none.
#ifndef IMAGEPOSITION_HOST_STARTTEXTS_HPP
#define IMAGEPOSITION_HOST_STARTTEXTS_HPP

#include <string>
#include <vector>

namespace imageposition {

/// Throws a `Failure` with `ExitCode::Usage` that names the first argument that is not UTF-8.
void refuseForeignArguments(const std::vector<std::string> &words);

/// Starts the program again without the environment variables that are not UTF-8, such as the
/// name of a folder in another encoding that a shell remembers. Returns when there are none.
void leaveOutForeignVariables(char **arguments);

} // namespace imageposition

#endif
