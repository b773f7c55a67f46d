/// Reads whole files, and says why one cannot be read or written.
#ifndef IMAGEPOSITION_HOST_FILECONTENT_HPP
#define IMAGEPOSITION_HOST_FILECONTENT_HPP

#include <optional>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <utility>

namespace imageposition {

/// What stands in the way of reading or writing a file, as a clause without the file's name and
/// without a full stop.
class FileTrouble : public std::runtime_error {
public:
  explicit FileTrouble(const std::string &reason) : std::runtime_error(reason) {}
  /// In the system's words.
  explicit FileTrouble(int error);
  /// The system's number; 0 where the reason is another.
  int error() const noexcept { return error_; }

private:
  int error_ = 0;
};

/// An open file, closed at the end. -1 for none.
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
  /// The caller closes it.
  int release() noexcept { return std::exchange(descriptor_, -1); }

private:
  int descriptor_;
};

/// None when there is no such file. Throws a `FileTrouble`: for anything but an ordinary file, too,
/// and for more than `kLargestContent` bytes. Waits for no pipe.
std::optional<std::string> contentOfFile(const std::string &path);
/// The same for a file that is open for reading.
std::string contentOfFile(const Descriptor &file);

/// Far beyond every file that this program writes.
constexpr std::size_t kLargestContent = std::size_t(64) << 20;

} // namespace imageposition

#endif
