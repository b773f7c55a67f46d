/// Starts AppKit's application object the way a dialog needs it.
#ifndef IMAGEPOSITION_GUI_STARTUP_APPLICATION_H
#define IMAGEPOSITION_GUI_STARTUP_APPLICATION_H

namespace imageposition {

/// Registers defaults of GNUstep's. Call it before the application is there. GNUstep's log goes to
/// the system's log, away from this program's messages; the user default GSLogSyslog, set to NO,
/// brings it back to standard error.
void setPlatformDefaults();

/// Connects to the display, and loads nothing that a dialog does not need: no application icon, no
/// menu. Throws a `Failure` with `ExitCode::Display`.
void startApplication();

} // namespace imageposition

#endif
