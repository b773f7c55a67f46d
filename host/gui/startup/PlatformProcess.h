/// What GNUstep learns about this process, and what code it may bring into it.
#ifndef IMAGEPOSITION_GUI_STARTUP_PLATFORMPROCESS_H
#define IMAGEPOSITION_GUI_STARTUP_PLATFORMPROCESS_H

namespace imageposition {

/// Leaves GNUstep the program's name as its only argument. It would take every argument that begins
/// with a hyphen for a user default, even after "--", and some defaults name code to load. Call
/// this before anything else of GNUstep.
void hideArgumentsFromPlatform();

/// Makes GNUstep load a bundle (a theme, a back end, one that a user default names) only if no
/// other user could have changed it. Names each that is not loaded on standard error.
void refuseUntrustedBundles();

} // namespace imageposition

#endif
