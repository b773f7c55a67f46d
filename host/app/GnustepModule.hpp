/// The module that has all of the program that needs GNUstep: the window, and plug-ins' panels.
#ifndef IMAGEPOSITION_APP_GNUSTEPMODULE_HPP
#define IMAGEPOSITION_APP_GNUSTEPMODULE_HPP

#include "Entry.hpp"

namespace imageposition {

/// Loads the module for good and returns its entry. GNUstep copies the environment and the
/// arguments as they are at that moment.
///
/// The module is taken from beside the program or from where it is installed with it, and only if
/// no other user could have changed it. Throws a `Failure` with `ExitCode::Fault`.
ModuleEntry &loadGnustepModule();

} // namespace imageposition

#endif
