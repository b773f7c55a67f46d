#include "host/LibraryFile.hpp"

#include <cstdint>
#include <cstring>
#include <fstream>
#include <link.h>

namespace imageposition {

namespace {

constexpr unsigned char kOwnClass = sizeof(void *) == 8 ? ELFCLASS64 : ELFCLASS32;

template <typename Record> bool readAt(std::ifstream &file, std::uint64_t offset, Record &record) {
  file.seekg(static_cast<std::streamoff>(offset));
  return !!file.read(reinterpret_cast<char *>(&record), sizeof record);
}

bool isOwnKind(const ElfW(Ehdr) & header) {
  return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 &&
         header.e_ident[EI_CLASS] == kOwnClass && header.e_phentsize == sizeof(ElfW(Phdr));
}

} // namespace

bool isCutShort(const std::string &path) {
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  const auto size = static_cast<std::uint64_t>(file.tellg());
  ElfW(Ehdr) header;
  if (!file || !readAt(file, 0, header) || !isOwnKind(header))
    return false;
  for (unsigned i = 0; i < header.e_phnum; i++) {
    ElfW(Phdr) segment;
    if (!readAt(file, header.e_phoff + i * sizeof segment, segment))
      return true;
    if (segment.p_type == PT_LOAD &&
        (segment.p_filesz > size || segment.p_offset > size - segment.p_filesz))
      return true;
  }
  return false;
}

} // namespace imageposition
