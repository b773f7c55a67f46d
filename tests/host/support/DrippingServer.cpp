#include "DrippingServer.hpp"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace imageposition::test {

namespace {

constexpr int kBetweenBytes = 20; // milliseconds
const std::string kStart = "HTTP/1.1 200 OK\r\n";
const std::string kHeader = "X-Drop: drip\r\n";

} // namespace

DrippingServer::DrippingServer()
    : path_(folder_.path("socket")), listener_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path_.copy(address.sun_path, sizeof address.sun_path - 1);
  if (listener_ < 0 || bind(listener_, reinterpret_cast<sockaddr *>(&address), sizeof address) ||
      listen(listener_, 8))
    throw std::system_error(errno, std::generic_category(), path_);
  thread_ = std::thread([this] { serve(); });
}

DrippingServer::~DrippingServer() {
  isOver_ = true;
  thread_.join();
  close(listener_);
}

void DrippingServer::serve() {
  struct Client {
    int descriptor;
    std::size_t sent;
  };
  std::vector<Client> clients;
  while (!isOver_) {
    pollfd waiting{listener_, POLLIN, 0};
    if (poll(&waiting, 1, kBetweenBytes) > 0)
      clients.push_back({accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC), 0});
    for (Client &client : clients) {
      const std::size_t at = client.sent++;
      const char byte =
          at < kStart.size() ? kStart[at] : kHeader[(at - kStart.size()) % kHeader.size()];
      send(client.descriptor, &byte, 1, MSG_NOSIGNAL | MSG_DONTWAIT);
    }
  }
  for (const Client &client : clients)
    close(client.descriptor);
}

} // namespace imageposition::test
