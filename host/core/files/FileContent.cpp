#include "FileContent.hpp"

#include "FileTexts.hpp"

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

namespace imageposition {

namespace {

constexpr std::size_t kChunkSize = 65536;

void checkRegular(const Descriptor &file) {
  struct stat status {};
  if (fstat(file.get(), &status) != 0)
    throw FileTrouble(errno);
  if (S_ISDIR(status.st_mode))
    throw FileTrouble(EISDIR);
  if (!S_ISREG(status.st_mode))
    throw FileTrouble(messages::kNotAnOrdinaryFile);
}

} // namespace

FileTrouble::FileTrouble(int error) : std::runtime_error(systemReason(error)), error_(error) {}

MappedFile::MappedFile(const Descriptor &file) {
  checkRegular(file);
  struct stat status {};
  if (fstat(file.get(), &status) != 0)
    throw FileTrouble(errno);
  const auto size = static_cast<std::size_t>(status.st_size);
  if (size == 0) // which cannot be mapped
    return;
  void *const start = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file.get(), 0);
  if (start == MAP_FAILED)
    throw FileTrouble(errno);
  content_ = {static_cast<const char *>(start), size};
}

MappedFile::~MappedFile() {
  if (!content_.empty())
    munmap(const_cast<char *>(content_.data()), content_.size());
}

std::string contentOfFile(const Descriptor &file) {
  checkRegular(file);
  std::string content;
  for (;;) {
    const std::size_t before = content.size();
    if (before > kLargestContent)
      throw FileTrouble(EFBIG);
    content.resize(before + kChunkSize);
    const ssize_t count = read(file.get(), &content[before], kChunkSize);
    if (count < 0 && errno != EINTR)
      throw FileTrouble(errno);
    content.resize(before + (count < 0 ? 0 : static_cast<std::size_t>(count)));
    if (count == 0)
      return content;
  }
}

bool writeAll(int descriptor, std::string_view content) noexcept {
  while (!content.empty()) {
    const ssize_t count = write(descriptor, content.data(), content.size());
    if (count < 0 && errno == EINTR)
      continue;
    if (count < 0)
      return false;
    content.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

std::optional<std::string> contentOfFile(const std::string &path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (file.isOpen())
    return contentOfFile(file);
  if (errno == ENOENT)
    return std::nullopt;
  if (errno == ENXIO) // a socket
    throw FileTrouble(messages::kNotAnOrdinaryFile);
  throw FileTrouble(errno);
}

} // namespace imageposition
