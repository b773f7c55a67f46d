/// When to print a job, as lp -H accepts it.
#ifndef IMAGEPOSITION_CORE_COMMAND_HOLDTIME_HPP
#define IMAGEPOSITION_CORE_COMMAND_HOLDTIME_HPP

#include <string>
#include <vector>

namespace imageposition {

/// The job options that lp derives from it: "hold", "immediate" (at once, before others), "resume"
/// and "release" (at once), a time as HH:MM or HH:MM:SS (UTC), or one of CUPS's names, such as
/// "night". Throws a `Failure` with `ExitCode::Usage` for anything else.
std::vector<std::string> optionsForHold(const std::string &when);

} // namespace imageposition

#endif
