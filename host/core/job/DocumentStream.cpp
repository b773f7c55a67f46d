#include "DocumentStream.hpp"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace imageposition {

namespace {

constexpr std::size_t kChunkSize = 65536;
constexpr int kMillisecondsBetweenCallbacks = 250;

/// Bytes from the current position to the end; 0 for a pipe.
std::uint64_t bytesAhead(int descriptor) {
  struct stat status {};
  const off_t position = lseek(descriptor, 0, SEEK_CUR);
  if (position < 0 || fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
    return 0;
  return static_cast<std::uint64_t>(std::max<off_t>(status.st_size - position, 0));
}

[[noreturn]] void fail(int reason) { throw std::system_error(reason, std::generic_category()); }

} // namespace

std::optional<std::uint64_t> documentSize(const std::string &path) {
  struct stat status {};
  const bool isInput = path == "-";
  if ((isInput ? fstat(STDIN_FILENO, &status) : stat(path.c_str(), &status)) != 0 ||
      (!isInput && access(path.c_str(), R_OK) != 0))
    fail(errno);
  if (S_ISDIR(status.st_mode))
    fail(EISDIR);
  if (!S_ISREG(status.st_mode))
    return std::nullopt;
  return static_cast<std::uint64_t>(status.st_size);
}

DocumentStream::DocumentStream(const std::string &path)
    : descriptor_(STDIN_FILENO), ownsDescriptor_(path != "-"), buffer_(kChunkSize) {
  if (ownsDescriptor_)
    descriptor_ =
        ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); // a pipe may lack a writer
  if (descriptor_ < 0)
    fail(errno);
  missing_ = bytesAhead(descriptor_);
}

DocumentStream::~DocumentStream() {
  if (ownsDescriptor_)
    close(descriptor_);
}

std::optional<std::string_view> DocumentStream::next(const std::function<bool()> &keepWaiting) {
  pollfd waiting{descriptor_, POLLIN, 0};
  ssize_t count = -1;
  do {
    while (poll(&waiting, 1, kMillisecondsBetweenCallbacks) <= 0)
      if (!keepWaiting())
        return std::nullopt;
    count = read(descriptor_, buffer_.data(), buffer_.size());
  } while (count < 0 && (errno == EINTR || errno == EAGAIN));
  if (count < 0)
    fail(errno);
  const auto size = static_cast<std::size_t>(count);
  missing_ -= std::min<std::uint64_t>(missing_, size);
  return std::string_view(buffer_.data(), size);
}

} // namespace imageposition
