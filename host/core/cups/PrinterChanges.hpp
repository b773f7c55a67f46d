/// Notices changes of CUPS's printers.
#ifndef IMAGEPOSITION_CORE_CUPS_PRINTERCHANGES_HPP
#define IMAGEPOSITION_CORE_CUPS_PRINTERCHANGES_HPP

#include <functional>
#include <memory>

namespace imageposition {

/// Subscribes to CUPS's events (RFC 3995 and 3996) on a background thread: printers that are added,
/// deleted or modified, and their states. A server with thousands of printers then sends its list
/// only after a change. For a server that offers no subscriptions, assumes a change every minute.
class PrinterChanges {
public:
  /// Calls `changed` on the background thread after each change from now on, also when the server
  /// comes or goes, and possibly once after this object was destroyed. If no thread can be created,
  /// there are no calls.
  explicit PrinterChanges(std::function<void()> changed);
  /// Ends the subscription, which takes a moment at most.
  ~PrinterChanges();
  PrinterChanges(const PrinterChanges &) = delete;
  PrinterChanges &operator=(const PrinterChanges &) = delete;

private:
  class Watch;

  std::shared_ptr<Watch> watch_; // shared with the background thread
};

} // namespace imageposition

#endif
