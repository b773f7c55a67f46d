/// The module's only entry point, called when the program needs a window or a panel.
#ifndef IMAGEPOSITION_GNUSTEP_ENTRY_HPP
#define IMAGEPOSITION_GNUSTEP_ENTRY_HPP

#include "CommandLine.hpp"
#include "DocumentExaminer.hpp"
#include "ExitCode.hpp"

/// Shows the window, or operates the panels without one, and prints. Writes errors to standard
/// error and never throws. Call it once, on the main thread. The window uses `examiner`, which may
/// be examining the document already. Both are borrowed.
extern "C" imageposition::ExitCode printDialogRun(const imageposition::Arguments &arguments,
                                                  imageposition::DocumentExaminer &examiner);

namespace imageposition {

/// The symbol to look up with `dlsym`.
constexpr const char *kModuleEntry = "printDialogRun";
using ModuleEntry = decltype(printDialogRun);

} // namespace imageposition

#endif
