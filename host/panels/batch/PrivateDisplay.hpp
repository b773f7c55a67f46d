/// A display for views that nobody looks at.
#ifndef IMAGEPOSITION_HOST_PRIVATEDISPLAY_HPP
#define IMAGEPOSITION_HOST_PRIVATEDISPLAY_HPP

namespace imageposition {

/// Whether DISPLAY names anything at all.
bool isDisplayNamed();

/// Starts an Xvfb of this process's own, from an absolute part of PATH in which nobody else could
/// have put it, waits until it answers, and names it in DISPLAY, and in
/// XAUTHORITY what to say to it: other users' programs cannot connect. It ends
/// when this process does and not before: the platform's connection to it is never closed, and
/// losing it would end the process. Throws a `Failure` with `ExitCode::Display`,
/// which has what Xvfb said.
void startPrivateDisplay();

} // namespace imageposition

#endif
