/// A display for views that are never shown.
#ifndef IMAGEPOSITION_PANELS_BATCH_PRIVATEDISPLAY_HPP
#define IMAGEPOSITION_PANELS_BATCH_PRIVATEDISPLAY_HPP

namespace imageposition {

/// Whether DISPLAY is set, and not empty.
bool isDisplayNamed();

/// Starts an Xvfb for this process alone and waits until it is ready. Sets DISPLAY to it, and
/// XAUTHORITY to its key, without which other users' programs cannot connect. The program is the
/// first Xvfb in an absolute folder of PATH that no other user could have changed.
///
/// The server ends with this process and not before: GNUstep never closes its connection, and would
/// end the process if it lost it. Throws a `Failure` with `ExitCode::Display` and Xvfb's own
/// message.
void startPrivateDisplay();

} // namespace imageposition

#endif
