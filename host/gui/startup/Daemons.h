/// GNUstep's daemons, which a dialog mostly does without.
#ifndef IMAGEPOSITION_GUI_STARTUP_DAEMONS_H
#define IMAGEPOSITION_GUI_STARTUP_DAEMONS_H

namespace imageposition {

/// Leaves out notifications between programs, which this program neither sends nor awaits. They
/// would start a daemon that outlives the dialog.
void leaveOutNotificationDaemon();

/// For a run without a window, where nobody copies or pastes: selecting text then starts no daemon.
void leaveOutPasteboardDaemon();

/// For a run with a window: the first copy, cut or paste starts the pasteboard's daemon, and the
/// one that announces it. GNUstep would start them for the text that a window selects when it
/// opens, and wait five seconds for a notification that never comes, since notifications are left
/// out. A mere selection is therefore not offered to other programs. If the daemon cannot be
/// started, asking for a pasteboard raises NSPasteboardCommunicationException.
void startPasteboardOnDemand();

} // namespace imageposition

#endif
