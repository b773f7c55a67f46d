/// The module's one entry: what the program calls when it needs a window or a panel.
#ifndef IMAGEPOSITION_GNUSTEP_ENTRY_HPP
#define IMAGEPOSITION_GNUSTEP_ENTRY_HPP

#include "CommandLine.hpp"
#include "ExitCode.hpp"

/// Shows the window, or sets panels without one, and prints. Writes what fails to standard error,
/// and throws nothing. Call it once, on the main thread. `arguments` stays the caller's.
extern "C" imageposition::ExitCode printDialogRun(const imageposition::Arguments &arguments);

namespace imageposition {

/// As the dynamic loader knows it.
constexpr const char *kModuleEntry = "printDialogRun";
using ModuleEntry = decltype(printDialogRun);

} // namespace imageposition

#endif
