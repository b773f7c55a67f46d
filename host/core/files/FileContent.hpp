/// Reads and writes whole files.
#ifndef IMAGEPOSITION_CORE_FILES_FILECONTENT_HPP
#define IMAGEPOSITION_CORE_FILES_FILECONTENT_HPP

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace imageposition {

/// Why a file cannot be read or written. The message is a clause without the file's name and
/// without a full stop.
class FileTrouble : public std::runtime_error {
public:
  explicit FileTrouble(const std::string &reason) : std::runtime_error(reason) {}
  /// `error` is an `errno` value, whose message is used.
  explicit FileTrouble(int error);
  /// The `errno` value; 0 for other reasons.
  int error() const noexcept { return error_; }

private:
  int error_ = 0;
};

/// Owns a file descriptor, or -1 for none.
class Descriptor {
public:
  explicit Descriptor(int descriptor) noexcept : descriptor_(descriptor) {}
  Descriptor(Descriptor &&other) noexcept : descriptor_(other.release()) {}
  Descriptor &operator=(Descriptor &&other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~Descriptor() {
    if (isOpen())
      ::close(descriptor_);
  }

  bool isOpen() const noexcept { return descriptor_ >= 0; }
  int get() const noexcept { return descriptor_; }
  /// Gives up ownership: the caller closes the descriptor.
  int release() noexcept { return std::exchange(descriptor_, -1); }

private:
  int descriptor_;
};

/// Returns nullopt if there is no such file. Throws a `FileTrouble` if it cannot be read, is not a
/// regular file, or has more than `kLargestContent` bytes. Never waits for a pipe.
std::optional<std::string> contentOfFile(const std::string &path);
/// The same for a file that is already open for reading.
std::string contentOfFile(const Descriptor &file);

/// Writes everything, in several steps if necessary. Returns false, with the reason in `errno`, if
/// that fails; part of the content may be written then.
bool writeAll(int descriptor, std::string_view content) noexcept;

/// The content of an open file of any size, mapped for reading. The file must not become shorter.
class MappedFile {
public:
  /// Borrows the descriptor during the call. Throws a `FileTrouble`.
  explicit MappedFile(const Descriptor &file);
  ~MappedFile();
  MappedFile(const MappedFile &) = delete;
  MappedFile &operator=(const MappedFile &) = delete;

  std::string_view content() const noexcept { return content_; }

private:
  std::string_view content_;
};

/// In bytes; far larger than any file that this program writes.
constexpr std::size_t kLargestContent = std::size_t(64) << 20;

} // namespace imageposition

#endif
