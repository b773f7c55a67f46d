/// A connection to CUPS with a timeout.
#ifndef IMAGEPOSITION_CORE_CUPS_CUPSCONNECTION_HPP
#define IMAGEPOSITION_CORE_CUPS_CUPSCONNECTION_HPP

#include <cups/cups.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace imageposition {

/// A connection to the server that CUPS_SERVER or client.conf names. It is separate from libcups's
/// default connection. Use it on one thread at a time.
class CupsConnection {
public:
  /// Called about four times a second while waiting for the server. Returns false to give up. Must
  /// not throw.
  using KeepWaiting = std::function<bool()>;

  /// Returns null if the server cannot be reached; `cupsLastErrorString` or errno gives the reason.
  static std::unique_ptr<CupsConnection> open(std::chrono::milliseconds timeout,
                                              KeepWaiting keepWaiting);
  ~CupsConnection();
  CupsConnection(const CupsConnection &) = delete;
  CupsConnection &operator=(const CupsConnection &) = delete;

  http_t *http() const noexcept { return http_; }

private:
  CupsConnection(http_t *http, KeepWaiting keepWaiting);

  http_t *http_;
  KeepWaiting keepWaiting_;
};

/// The address of the CUPS server, for messages.
std::string cupsServerName();

/// Why the last CUPS operation on this thread failed, on one line of UTF-8. Empty if CUPS gives no
/// reason, or reports success.
std::string cupsReason();

} // namespace imageposition

#endif
