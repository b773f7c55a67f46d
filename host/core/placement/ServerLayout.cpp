#include "ServerLayout.hpp"

#include "CupsHandles.hpp"
#include "Strings.hpp"

#include <array>
#include <optional>

namespace imageposition {

namespace {

constexpr std::string_view kPassedOn = "\n*cupsFilter2: \"application/pdf application/pdf ";
constexpr std::string_view kLandscape = "\n*LandscapeOrientation:";
constexpr int kPatience = 3000; // milliseconds, to connect
constexpr double kBetweenCalls = 0.25;
constexpr int kMostCalls = 12;
constexpr std::size_t kLargest = std::size_t{4} << 20; // bytes of a PPD

/// Counts the silence of a server.
struct Waiting {
  const std::function<bool()> &keepWaiting;
  int calls = 0;

  static int goOn(http_t *, void *self) {
    auto *const waiting = static_cast<Waiting *>(self);
    return ++waiting->calls < kMostCalls && waiting->keepWaiting() ? 1 : 0;
  }
};

/// A queue of another CUPS.
struct ServerQueue {
  std::string host;
  int port = 0;
  std::string path; ///< "/printers/office"
  bool isEncrypted = false;
};

std::optional<ServerQueue> queueAt(const std::string &device) {
  std::array<char, 32> scheme{};
  std::array<char, HTTP_MAX_HOST> host{};
  std::array<char, HTTP_MAX_URI> user{}, path{};
  int port = 0;
  const std::string plain = device.substr(0, device.find('?'));
  if (httpSeparateURI(HTTP_URI_CODING_ALL, plain.c_str(), scheme.data(), scheme.size(), user.data(),
                      user.size(), host.data(), host.size(), &port, path.data(),
                      path.size()) < HTTP_URI_STATUS_OK)
    return std::nullopt;
  const std::string_view name = scheme.data();
  if (name != "ipp" && name != "ipps" && name != "http" && name != "https")
    return std::nullopt;
  return ServerQueue{host.data(), port, path.data(), name.back() == 's'};
}

/// Empty if there is none. Without a password: CUPS gives descriptions to everyone.
std::string descriptionOn(const ServerQueue &queue, const std::function<bool()> &keepWaiting) {
  const HttpConnection http(
      httpConnect2(queue.host.c_str(), queue.port, nullptr, AF_UNSPEC,
                   queue.isEncrypted ? HTTP_ENCRYPTION_ALWAYS : HTTP_ENCRYPTION_IF_REQUESTED, 1,
                   kPatience, nullptr));
  if (!http)
    return {};
  Waiting waiting{keepWaiting};
  httpSetTimeout(http.get(), kBetweenCalls, Waiting::goOn, &waiting);
  httpClearFields(http.get());
  if (httpGet(http.get(), (queue.path + ".ppd").c_str()) != 0)
    return {};
  http_status_t status = HTTP_STATUS_CONTINUE;
  while (status == HTTP_STATUS_CONTINUE)
    status = httpUpdate(http.get());
  std::string text;
  std::array<char, 65536> part{};
  for (ssize_t count = 1; status == HTTP_STATUS_OK && count > 0 && text.size() < kLargest;) {
    count = httpRead2(http.get(), part.data(), part.size());
    if (count > 0)
      text.append(part.data(), static_cast<std::size_t>(count));
  }
  return text;
}

} // namespace

bool isLaidOutByServer(std::string_view description) {
  return description.find(kPassedOn) != std::string_view::npos;
}

std::string withLandscapeOf(std::string_view server, const std::string &description) {
  const std::size_t start = server.find(kLandscape), line = description.find('\n');
  if (start == std::string_view::npos || line == std::string::npos ||
      description.find(kLandscape) != std::string::npos)
    return description;
  const std::string_view rest = server.substr(start + kLandscape.size());
  const std::string value = trimmed(rest.substr(0, rest.find('\n')), " \t\r");
  if (value != "Plus90" && value != "Minus90")
    return description;
  return std::string(description).insert(line, std::string(kLandscape) + " " + value);
}

std::string withServerLayout(const std::string &description, const std::string &device,
                             const std::function<bool()> &keepWaiting) {
  if (!isLaidOutByServer(description))
    return description;
  const auto queue = queueAt(device);
  return queue ? withLandscapeOf(descriptionOn(*queue, keepWaiting), description) : description;
}

} // namespace imageposition
