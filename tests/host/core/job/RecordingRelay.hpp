/// What a program really says to CUPS.
#ifndef IMAGEPOSITION_TESTS_HOST_RECORDINGRELAY_HPP
#define IMAGEPOSITION_TESTS_HOST_RECORDINGRELAY_HPP

#include <cups/cups.h>

#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace imageposition::test {

/// Stands between a client and a server, both on Unix sockets, for one connection, and keeps what
/// the client sends.
class RecordingRelay {
public:
  RecordingRelay(const std::string &path, const std::string &server);
  /// Waits for the client's end of the connection.
  ~RecordingRelay();
  RecordingRelay(const RecordingRelay &) = delete;
  RecordingRelay &operator=(const RecordingRelay &) = delete;

  /// The first request of that operation; null when there was none. To be freed with ippDelete.
  ipp_t *request(ipp_op_t operation);

private:
  void relay(const std::string &server);

  int listener_;
  std::mutex mutex_; // of `sent_`
  std::string sent_;
  std::thread thread_;
};

} // namespace imageposition::test

#endif
