/// A port for a server of a test.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_FREEPORT_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_FREEPORT_HPP

#include <netinet/in.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace imageposition::test {

/// A TCP port of the loopback interface on which nothing listens.
inline int freePort() {
  const int probe = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  auto *const generic = reinterpret_cast<sockaddr *>(&address);
  const bool isFound = bind(probe, generic, size) == 0 && getsockname(probe, generic, &size) == 0;
  close(probe);
  if (!isFound)
    throw std::runtime_error("no free port");
  return ntohs(address.sin_port);
}

} // namespace imageposition::test

#endif
