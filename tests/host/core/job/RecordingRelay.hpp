/// Records the requests that a program sends to CUPS.
#ifndef IMAGEPOSITION_TESTS_HOST_CORE_JOB_RECORDINGRELAY_HPP
#define IMAGEPOSITION_TESTS_HOST_CORE_JOB_RECORDINGRELAY_HPP

#include <cups/cups.h>

#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace imageposition::test {

/// Relays one connection between a client and a server, both on Unix sockets, and records what the
/// client sends.
class RecordingRelay {
public:
  RecordingRelay(const std::string &path, const std::string &server);
  /// Waits until the client closes the connection.
  ~RecordingRelay();
  RecordingRelay(const RecordingRelay &) = delete;
  RecordingRelay &operator=(const RecordingRelay &) = delete;

  /// Returns the first request for the operation, or null. The caller frees it with ippDelete.
  ipp_t *request(ipp_op_t operation);

private:
  void relay(const std::string &server);

  int listener_;
  std::mutex mutex_; // guards `sent_`
  std::string sent_;
  std::thread thread_;
};

} // namespace imageposition::test

#endif
