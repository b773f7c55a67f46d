/// A server whose responses never end.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_DRIPPINGSERVER_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_DRIPPINGSERVER_HPP

#include "TemporaryFolder.hpp"

#include <atomic>
#include <string>
#include <thread>

namespace imageposition::test {

/// Listens on a Unix socket, on a thread, while the object lives. Sends each client one byte of a
/// header at a time, so that the client never waits long enough for its timeout.
class DrippingServer {
public:
  /// Throws if it cannot listen.
  DrippingServer();
  ~DrippingServer();
  DrippingServer(const DrippingServer &) = delete;
  DrippingServer &operator=(const DrippingServer &) = delete;

  /// The value for CUPS_SERVER.
  const std::string &socket() const noexcept { return path_; }

private:
  void serve();

  const TemporaryFolder folder_;
  const std::string path_;
  int listener_;
  std::atomic<bool> isOver_{false};
  std::thread thread_;
};

} // namespace imageposition::test

#endif
