/// The platform's daemons, which a dialog mostly does without.
#ifndef IMAGEPOSITION_HOST_DAEMONS_H
#define IMAGEPOSITION_HOST_DAEMONS_H

namespace imageposition {

/// Notifications between programs need a daemon, which would be started and outlive the dialog;
/// nothing here sends or awaits one.
void leaveOutNotificationDaemon();

/// For runs in which nobody copies or pastes: selecting text then starts no daemon for it.
void leaveOutPasteboardDaemon();

/// For the others: the pasteboard's daemon, and the one that announces it, are started by the first
/// copy, cut or paste. The platform would start them for the text that a window selects at its
/// beginning, and wait five seconds for an announcement that the notifications left out cannot
/// bring. A selection alone is then not offered to other programs. Without the daemon, asking for a
/// pasteboard raises NSPasteboardCommunicationException.
void startPasteboardOnDemand();

} // namespace imageposition

#endif
