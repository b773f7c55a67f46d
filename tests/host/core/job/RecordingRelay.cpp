#include "RecordingRelay.hpp"

#include <algorithm>
#include <cstring>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace imageposition::test {

namespace {

sockaddr_un addressOf(const std::string &path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  return address;
}

/// Returns false at the end of the stream.
bool forward(int from, int to, std::string &chunk) {
  char buffer[16384];
  const ssize_t count = read(from, buffer, sizeof buffer);
  if (count <= 0)
    return false;
  chunk.assign(buffer, static_cast<std::size_t>(count));
  return send(to, chunk.data(), chunk.size(), MSG_NOSIGNAL) == count;
}

struct Bytes {
  const char *next;
  std::size_t left;
};

ssize_t take(void *source, ipp_uchar_t *buffer, std::size_t size) {
  auto &bytes = *static_cast<Bytes *>(source);
  size = std::min(size, bytes.left);
  std::memcpy(buffer, bytes.next, size);
  bytes.next += size;
  bytes.left -= size;
  return static_cast<ssize_t>(size);
}

} // namespace

RecordingRelay::RecordingRelay(const std::string &path, const std::string &server)
    : listener_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  const sockaddr_un address = addressOf(path);
  if (bind(listener_, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0 ||
      listen(listener_, 1) != 0)
    throw std::runtime_error("no relay");
  thread_ = std::thread([=] { relay(server); });
}

RecordingRelay::~RecordingRelay() {
  shutdown(listener_, SHUT_RDWR); // wakes accept() if no client connected
  thread_.join();
  close(listener_);
}

void RecordingRelay::relay(const std::string &server) {
  const int client = accept(listener_, nullptr, nullptr);
  const int upstream = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_un address = addressOf(server);
  bool isOpen = client >= 0 && connect(upstream, reinterpret_cast<const sockaddr *>(&address),
                                       sizeof address) == 0;
  while (isOpen) {
    pollfd ends[2] = {{client, POLLIN, 0}, {upstream, POLLIN, 0}};
    poll(ends, 2, -1);
    std::string chunk;
    if (ends[1].revents != 0)
      isOpen = forward(upstream, client, chunk);
    if (isOpen && ends[0].revents != 0) {
      isOpen = forward(client, upstream, chunk);
      const std::lock_guard<std::mutex> lock(mutex_);
      sent_ += chunk;
    }
  }
  close(upstream);
  close(client);
}

ipp_t *RecordingRelay::request(ipp_op_t operation) {
  const std::lock_guard<std::mutex> lock(mutex_);
  for (std::size_t post = sent_.find("POST "); post != std::string::npos;
       post = sent_.find("POST ", post + 1)) {
    const std::size_t end = sent_.find("\r\n\r\n", post);
    if (end == std::string::npos)
      break;
    std::size_t start = end + 4;
    if (sent_.find("chunked", post) < end) // the first HTTP chunk contains all attributes
      start = sent_.find("\r\n", start) + 2;
    Bytes body{sent_.data() + start, sent_.size() - start};
    ipp_t *const request = ippNew();
    if (ippReadIO(&body, take, 1, nullptr, request) == IPP_STATE_DATA &&
        ippGetOperation(request) == operation)
      return request;
    ippDelete(request);
  }
  return nullptr;
}

} // namespace imageposition::test
