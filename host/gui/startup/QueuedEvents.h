/// Delivers events of the display that Xlib has already read.
#ifndef IMAGEPOSITION_GUI_STARTUP_QUEUEDEVENTS_H
#define IMAGEPOSITION_GUI_STARTUP_QUEUEDEVENTS_H

namespace imageposition {

/// Ends the wait of the main run loop when Xlib has events queued. GNUstep 1.28 handles such events
/// and then goes on waiting, because no descriptor was readable: a click is not finished before the
/// next event arrives. Lasts as long as the process. Call once, after NSApplication has connected
/// to the display. Throws a `std::system_error`.
void deliverQueuedEvents();

} // namespace imageposition

#endif
