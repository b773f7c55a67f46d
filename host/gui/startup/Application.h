/// Starts AppKit's application object for a dialog.
#ifndef IMAGEPOSITION_GUI_STARTUP_APPLICATION_H
#define IMAGEPOSITION_GUI_STARTUP_APPLICATION_H

namespace imageposition {

/// Registers GNUstep defaults. Call it before the application object exists. GNUstep then logs to
/// the system log, separate from this program's messages; set the user default GSLogSyslog to NO to
/// log to standard error.
void setPlatformDefaults();

/// Connects to the display without loading what a dialog does not need, such as an application icon
/// or a menu. Throws a `Failure` with `ExitCode::Display`.
void startApplication();

} // namespace imageposition

#endif
