#include "DriverlessPrinter.hpp"

#include "FreePort.hpp"
#include "Waiting.hpp"

#include <cups/cups.h>

#include <filesystem>

namespace imageposition::test {

namespace {

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
                std::to_string(port_), "-d", jobs_.path(), "-k", "-c", "/bin/true", "-K",
                folder_.path(), "-f", "application/pdf,image/jpeg,image/urf,image/pwg-raster",
                "Photo"},
               {"HOME=" + folder_.path(), "PATH=/usr/sbin:/usr/bin:/sbin:/bin"}, 3000) {
  isReady_ = becomesTrue([this] { return isListening(port_) || process_.hasEnded(); }) &&
             !process_.hasEnded();
}

bool DriverlessPrinter::addQueue(const PrivateCups &cups, const std::string &name) const {
  const std::string uri = "ipp://localhost:" + std::to_string(port_) + "/ipp/print";
  return cups.addDriverlessQueue(name, uri);
}

std::string DriverlessPrinter::documentOf(int job) const {
  const std::string prefix = std::to_string(job) + "-", end = "%%EOF\n";
  std::string content;
  const bool isThere = becomesTrue([&] {
    for (const auto &file : std::filesystem::directory_iterator(jobs_.path()))
      if (file.path().filename().string().compare(0, prefix.size(), prefix) == 0 &&
          file.path().extension() == ".pdf")
        content = contentOf(file.path().string());
    return content.size() >= end.size() &&
           content.compare(content.size() - end.size(), end.size(), end) == 0;
  });
  return isThere ? content : "";
}

} // namespace imageposition::test
