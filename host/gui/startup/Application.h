/// The platform's application object, started the way a dialog needs it.
#ifndef IMAGEPOSITION_HOST_APPLICATION_H
#define IMAGEPOSITION_HOST_APPLICATION_H

namespace imageposition {

/// Before anything else of the platform: its log lines go to the system's log, not between this
/// program's messages (the user default GSLogSyslog, set to NO, brings them back to standard
/// error).
void setPlatformDefaults();

/// Connects to the display: no application icon, no menu, nothing loaded that a dialog does not
/// need. Throws a `Failure` with `ExitCode::Display`.
void startApplication();

} // namespace imageposition

#endif
