/// Limits what GNUstep sees of this process and what code it loads into it.
#ifndef IMAGEPOSITION_GUI_STARTUP_PLATFORMPROCESS_H
#define IMAGEPOSITION_GUI_STARTUP_PLATFORMPROCESS_H

namespace imageposition {

/// Hides all arguments but the program's name from GNUstep, which would treat every argument that
/// begins with a hyphen as a user default, even after "--". Some defaults name code to load. Call
/// this before any other GNUstep function.
void hideArgumentsFromPlatform();

/// Makes GNUstep load a bundle (a theme, a back end, one that a user default names) only if no
/// other user could have changed it. Reports each refused bundle on standard error.
void refuseUntrustedBundles();

} // namespace imageposition

#endif
