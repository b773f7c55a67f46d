/// What GNUstep learns about this process, and what code it may bring into it.
#ifndef IMAGEPOSITION_HOST_PLATFORMPROCESS_H
#define IMAGEPOSITION_HOST_PLATFORMPROCESS_H

namespace imageposition {

/// Call before anything else of GNUstep. GNUstep takes every argument that begins with a hyphen for
/// a user default, even after "--", and some defaults name code to load; from here on it knows the
/// program's name as the only argument, and the environment as it is now.
void hideArgumentsFromPlatform();

/// Has GNUstep load a bundle (a theme, a back end, a bundle that a user default names) only if
/// nobody else could have changed it. One that is not loaded is named on standard error.
void refuseUntrustedBundles();

} // namespace imageposition

#endif
