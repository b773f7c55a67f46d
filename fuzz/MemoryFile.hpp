/// A file in memory, for readers that take a path.
#ifndef IMAGEPOSITION_FUZZ_MEMORYFILE_HPP
#define IMAGEPOSITION_FUZZ_MEMORYFILE_HPP

#include "Check.hpp"

#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace imageposition::fuzz {

class MemoryFile {
public:
  explicit MemoryFile(const std::string &content) : descriptor_(memfd_create("fuzz", MFD_CLOEXEC)) {
    check(descriptor_ >= 0 && write(descriptor_, content.data(), content.size()) ==
                                  static_cast<ssize_t>(content.size()),
          "there is room for a file");
  }
  ~MemoryFile() { close(descriptor_); }
  MemoryFile(const MemoryFile &) = delete;
  MemoryFile &operator=(const MemoryFile &) = delete;

  int descriptor() const noexcept { return descriptor_; }
  /// Valid while the object lives.
  std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

private:
  int descriptor_;
};

} // namespace imageposition::fuzz

#endif
