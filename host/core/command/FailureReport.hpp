/// Turning exceptions into the program's exit status.
#ifndef IMAGEPOSITION_CORE_COMMAND_FAILUREREPORT_HPP
#define IMAGEPOSITION_CORE_COMMAND_FAILUREREPORT_HPP

#include "ExitCode.hpp"

#include <functional>
#include <ostream>

namespace imageposition {

/// Returns what `run` returns. If it throws, writes the message as one line to `errors` and returns
/// the `Failure`'s code, or `Fault` for any other exception.
ExitCode exitCodeOf(const std::function<ExitCode()> &run, std::ostream &errors);

/// Ends the process at once if a background thread still waits for CUPS; otherwise returns. Ending
/// as usual would destroy objects that the thread uses. Standard output must have been checked.
void endIfCallsAreRunning(ExitCode code);

} // namespace imageposition

#endif
