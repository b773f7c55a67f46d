/// GNUstep's daemons, which a dialog mostly does without.
#ifndef IMAGEPOSITION_GUI_STARTUP_DAEMONS_H
#define IMAGEPOSITION_GUI_STARTUP_DAEMONS_H

namespace imageposition {

/// Disables distributed notifications, which this program neither sends nor receives. They would
/// start a daemon that outlives the dialog.
void leaveOutNotificationDaemon();

/// For a run without a window, which never copies or pastes: selecting text then starts no daemon.
void leaveOutPasteboardDaemon();

/// For a run with a window: the first copy, cut or paste starts the pasteboard daemon and the one
/// that announces it. GNUstep would start them for the text that a window selects when it opens,
/// and wait five seconds for a notification that never arrives, because notifications are disabled.
/// Other programs therefore cannot paste a mere selection. Dropping a file starts none. If the
/// daemon cannot be started, requesting a pasteboard raises NSPasteboardCommunicationException.
void startPasteboardOnDemand();

} // namespace imageposition

#endif
