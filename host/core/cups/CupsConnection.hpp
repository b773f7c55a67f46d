/// A connection to CUPS that gives up.
#ifndef IMAGEPOSITION_HOST_CUPSCONNECTION_HPP
#define IMAGEPOSITION_HOST_CUPSCONNECTION_HPP

#include <cups/cups.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace imageposition {

/// To the server that CUPS_SERVER or client.conf names; this object's own, so that it serves any
/// one thread.
class CupsConnection {
public:
  /// Asked about four times a second while the server lets us wait; false gives up. Must not throw.
  using KeepWaiting = std::function<bool()>;

  /// Null when the server cannot be reached; `cupsLastErrorString` or errno know why.
  static std::unique_ptr<CupsConnection> open(std::chrono::milliseconds patience,
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

/// Where CUPS is looked for, for a person.
std::string cupsServerName();

/// Why CUPS did not do what this thread asked last, on one line of UTF-8; empty where it gives no
/// reason, or the one that all went well.
std::string cupsReason();

} // namespace imageposition

#endif
