#include "DriverlessPrinter.hpp"

#include "Waiting.hpp"

#include <cups/cups.h>

#include <filesystem>
#include <netinet/in.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace imageposition::test {

namespace {

int freePort() {
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

bool isListening(int port) {
  http_t *const http =
      httpConnect2("localhost", port, nullptr, AF_UNSPEC, HTTP_ENCRYPTION_NEVER, 1, 1000, nullptr);
  httpClose(http);
  return http != nullptr;
}

} // namespace

DriverlessPrinter::DriverlessPrinter()
    : port_(freePort()),
      process_({WITH_ANNOUNCER, "ippeveprinter", "-2", "-s", "15,10", "-n", "localhost", "-p",
                std::to_string(port_), "-d", folder_.path(), "-K", folder_.path(), "-f",
                "application/pdf,image/jpeg,image/urf,image/pwg-raster", "Photo"},
               {"HOME=" + folder_.path(), "PATH=/usr/sbin:/usr/bin:/sbin:/bin"}, 3000) {
  isReady_ = becomesTrue([this] { return isListening(port_) || process_.hasEnded(); }) &&
             !process_.hasEnded();
}

bool DriverlessPrinter::addQueue(const PrivateCups &cups, const std::string &name) const {
  const std::string uri = "ipp://localhost:" + std::to_string(port_) + "/ipp/print";
  cups.run({"lpadmin", "-p", name, "-E", "-v", uri, "-m", "everywhere"});
  // CUPS writes the description after it has confirmed the queue.
  return becomesTrue(
      [&] { return std::filesystem::exists(cups.root() + "/ppd/" + name + ".ppd"); });
}

} // namespace imageposition::test
