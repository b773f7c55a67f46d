/// Reads a document in chunks.
#ifndef IMAGEPOSITION_CORE_JOB_DOCUMENTSTREAM_HPP
#define IMAGEPOSITION_CORE_JOB_DOCUMENTSTREAM_HPP

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// The size of a document in bytes, without opening it; nullopt for a pipe. `path` is as for
/// `DocumentStream`. Throws a `std::system_error` if the document cannot be read.
std::optional<std::uint64_t> documentSize(const std::string &path);

class DocumentStream {
public:
  /// Opens a file, or standard input for "-". Throws a `std::system_error` if it cannot be read.
  explicit DocumentStream(const std::string &path);
  ~DocumentStream();
  DocumentStream(const DocumentStream &) = delete;
  DocumentStream &operator=(const DocumentStream &) = delete;

  /// Returns the next chunk, valid until the next call; empty at the end. While a pipe has no data,
  /// calls `keepWaiting` about four times a second, and returns nullopt once that returns false.
  /// Throws a `std::system_error`.
  std::optional<std::string_view> next(const std::function<bool()> &keepWaiting);

  /// The number of bytes not yet read, of those that a file had when it was opened. At its end, the
  /// number of bytes by which it has shrunk. 0 for a pipe.
  std::uint64_t missing() const noexcept { return missing_; }

private:
  int descriptor_;
  bool ownsDescriptor_;
  std::vector<char> buffer_;
  std::uint64_t missing_;
};

} // namespace imageposition

#endif
