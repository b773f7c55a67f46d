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
  /// Called every `kBetweenCalls` while waiting for the server. Returns false to give up. Must
  /// not throw.
  using KeepWaiting = std::function<bool()>;
  static constexpr std::chrono::milliseconds kBetweenCalls{250};

  /// Returns null if the server cannot be reached; `cupsLastErrorString` or errno gives the reason.
  static std::unique_ptr<CupsConnection> open(std::chrono::milliseconds timeout,
                                              KeepWaiting keepWaiting);
  ~CupsConnection();
  CupsConnection(const CupsConnection &) = delete;
  CupsConnection &operator=(const CupsConnection &) = delete;

  http_t *http() const noexcept { return http_; }
  /// Waits for a response to a small request. Some calls of libcups use connections of their own,
  /// on which a silent server would keep them for minutes: find out before.
  void probe() const;

private:
  CupsConnection(http_t *http, KeepWaiting keepWaiting);

  http_t *http_;
  KeepWaiting keepWaiting_;
};

/// Gives up when CUPS has been silent for too long. Counts the calls, because time may pass without
/// silence: while the user enters a password. Pass it with `std::ref`.
class SilenceLimit {
public:
  static constexpr std::chrono::seconds kLimit{10};

  bool operator()() noexcept { return ++calls_ < kMostCalls; }
  bool isExceeded() const noexcept { return calls_ >= kMostCalls; }

private:
  static constexpr int kMostCalls = static_cast<int>(kLimit / CupsConnection::kBetweenCalls);

  int calls_ = 0;
};

/// The address of the CUPS server, for messages.
std::string cupsServerName();

/// Why the last CUPS operation on this thread failed, on one line of UTF-8. Empty if CUPS gives no
/// reason, or reports success.
std::string cupsReason();

} // namespace imageposition

#endif
