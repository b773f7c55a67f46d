/// The module with everything that needs GNUstep: the window and the plug-ins' panels.
#ifndef IMAGEPOSITION_APP_GNUSTEPMODULE_HPP
#define IMAGEPOSITION_APP_GNUSTEPMODULE_HPP

#include "Entry.hpp"

namespace imageposition {

/// Loads the module and returns its entry point. The module is never unloaded. GNUstep copies the
/// environment and the arguments at this point.
///
/// Looks next to the program, then where the module is installed with it, and refuses a file that
/// another user could have modified. Throws a `Failure` with `ExitCode::Fault`.
ModuleEntry &loadGnustepModule();

} // namespace imageposition

#endif
