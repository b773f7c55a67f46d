/// A document, read piece by piece.
#ifndef IMAGEPOSITION_HOST_DOCUMENTSTREAM_HPP
#define IMAGEPOSITION_HOST_DOCUMENTSTREAM_HPP

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// Bytes in all of what `DocumentStream` would read, without opening it; none for a pipe. Throws a
/// `std::system_error` when it cannot be read.
std::optional<std::uint64_t> documentSize(const std::string &path);

class DocumentStream {
public:
  /// A file, or standard input for "-". Throws a `std::system_error` when it cannot be read.
  explicit DocumentStream(const std::string &path);
  ~DocumentStream();
  DocumentStream(const DocumentStream &) = delete;
  DocumentStream &operator=(const DocumentStream &) = delete;

  /// The next piece, valid until the next call; empty at the end. A pipe that has nothing yet is
  /// waited for while `keepWaiting` says so, asked about four times a second; none when it does
  /// not. Throws a `std::system_error`.
  std::optional<std::string_view> next(const std::function<bool()> &keepWaiting);

  /// Bytes that a file had when it was opened and that have not come; at its end, those by which it
  /// has shrunk. 0 for a pipe.
  std::uint64_t missing() const noexcept { return missing_; }

private:
  int descriptor_;
  bool isOwn_;
  std::vector<char> buffer_;
  std::uint64_t missing_;
};

} // namespace imageposition

#endif
