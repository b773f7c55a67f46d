#include "CupsConnection.hpp"

#include "VisibleText.hpp"

#include <cstring>
#include <sys/socket.h>
#include <utility>

namespace imageposition {

namespace {

int onTimeout(http_t *, void *keepWaiting) {
  return (*static_cast<CupsConnection::KeepWaiting *>(keepWaiting))() ? 1 : 0;
}

} // namespace

std::unique_ptr<CupsConnection> CupsConnection::open(std::chrono::milliseconds timeout,
                                                     KeepWaiting keepWaiting) {
  http_t *const http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(),
                                    1, static_cast<int>(timeout.count()), nullptr);
  if (http == nullptr)
    return nullptr;
  return std::unique_ptr<CupsConnection>(new CupsConnection(http, std::move(keepWaiting)));
}

CupsConnection::CupsConnection(http_t *http, KeepWaiting keepWaiting)
    : http_(http), keepWaiting_(std::move(keepWaiting)) {
  httpSetTimeout(http_, std::chrono::duration<double>(kBetweenCalls).count(), onTimeout,
                 &keepWaiting_);
}

CupsConnection::~CupsConnection() { httpClose(http_); }

void CupsConnection::probe() const {
  ippDelete(cupsDoRequest(http_, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/"));
}

std::string cupsServerName() {
  const std::string name = cupsServer();
  return name.empty() || name[0] == '/' ? name : name + ":" + std::to_string(ippPort());
}

std::string cupsReason() {
  const std::string reason = cupsLastErrorString();
  // libcups reports one of these for an incomplete response.
  const bool isNone = reason == ippErrorString(IPP_STATUS_OK) || reason == std::strerror(0);
  return isNone ? "" : visible(reason);
}

} // namespace imageposition
