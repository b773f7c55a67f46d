#include "LibraryFile.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <link.h>

namespace imageposition {

namespace {

constexpr unsigned char kOwnClass = sizeof(void *) == 8 ? ELFCLASS64 : ELFCLASS32;
constexpr std::size_t kMostEntries = 65536;
constexpr std::size_t kLongestString = 65536; // of a name or a list of folders

using Segment = ElfW(Phdr);
using Entry = ElfW(Dyn);

template <typename Record> bool readAt(std::ifstream &file, std::uint64_t offset, Record &record) {
  file.clear();
  file.seekg(static_cast<std::streamoff>(offset));
  return !!file.read(reinterpret_cast<char *>(&record), sizeof record);
}

bool isForThisProcessor(const ElfW(Ehdr) & header) {
  return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 &&
         header.e_ident[EI_CLASS] == kOwnClass && header.e_phentsize == sizeof(Segment);
}

/// Whether the range lies within a file of this size.
bool isWithin(std::uint64_t offset, std::uint64_t length, std::uint64_t size) {
  return length <= size && offset <= size - length;
}

/// A library's segments and their contents.
class Library {
public:
  explicit Library(const std::string &path) : file_(path, std::ios::binary | std::ios::ate) {
    const std::streamoff end = file_.tellg();
    size_ = end > 0 ? static_cast<std::uint64_t>(end) : 0;
    ElfW(Ehdr) header;
    isOwnKind_ = readAt(file_, 0, header) && isForThisProcessor(header);
    for (unsigned i = 0; isOwnKind_ && i < header.e_phnum; i++) {
      Segment segment;
      if (!readAt(file_, header.e_phoff + i * sizeof segment, segment)) {
        isWhole_ = false;
        return;
      }
      segments_.push_back(segment);
      if (segment.p_type == PT_LOAD && !isWithin(segment.p_offset, segment.p_filesz, size_))
        isWhole_ = false;
    }
  }

  /// True for a library for this processor.
  bool isOwnKind() const { return isOwnKind_; }
  /// False if a segment extends beyond the end of the file.
  bool isWhole() const { return isWhole_; }

  /// The dynamic section without its terminating entry; none if that entry is missing.
  std::optional<std::vector<Entry>> dynamicEntries() {
    const auto segment = std::find_if(segments_.begin(), segments_.end(), [](const Segment &each) {
      return each.p_type == PT_DYNAMIC;
    });
    std::vector<Entry> entries;
    if (segment == segments_.end())
      return entries;
    const std::uint64_t count = segment->p_filesz / sizeof(Entry);
    for (std::uint64_t i = 0; i < std::min<std::uint64_t>(count, kMostEntries); i++) {
      Entry entry;
      if (!readAt(file_, segment->p_offset + i * sizeof entry, entry))
        break;
      if (entry.d_tag == DT_NULL)
        return entries;
      entries.push_back(entry);
    }
    return std::nullopt;
  }

  /// The string at an address of the loaded library; none if no segment contains all of it.
  std::optional<std::string> stringAt(std::uint64_t address) {
    for (const Segment &segment : segments_) {
      if (segment.p_type != PT_LOAD || !isWithin(segment.p_offset, segment.p_filesz, size_) ||
          address < segment.p_vaddr || address - segment.p_vaddr >= segment.p_filesz)
        continue;
      const std::uint64_t within = address - segment.p_vaddr;
      std::string string(std::min<std::uint64_t>(segment.p_filesz - within, kLongestString), '\0');
      file_.clear();
      file_.seekg(static_cast<std::streamoff>(segment.p_offset + within));
      file_.read(&string[0], static_cast<std::streamsize>(string.size()));
      const std::size_t end = string.find('\0');
      return file_ && end != std::string::npos ? std::optional(string.substr(0, end))
                                               : std::nullopt;
    }
    return std::nullopt;
  }

private:
  std::ifstream file_;
  std::uint64_t size_ = 0;
  std::vector<Segment> segments_;
  bool isOwnKind_ = false;
  bool isWhole_ = true;
};

/// Where to store an entry's string; null if the entry does not concern other libraries.
std::string *placeFor(const Entry &entry, LibraryNeeds &needs) {
  switch (entry.d_tag) {
  case DT_NEEDED:
  case DT_FILTER:
  case DT_AUXILIARY:
    return &needs.libraries.emplace_back();
  case DT_RUNPATH:
    return &needs.runPath.emplace();
  case DT_RPATH:
    return &needs.oldRunPath.emplace();
  default:
    return nullptr;
  }
}

} // namespace

bool isCutShort(const std::string &path) {
  const Library library(path);
  return library.isOwnKind() && !library.isWhole();
}

std::optional<LibraryNeeds> readNeeds(const std::string &path) {
  LibraryNeeds needs;
  Library library(path);
  if (!library.isOwnKind())
    return needs;
  const auto entries = library.dynamicEntries();
  if (!entries)
    return std::nullopt;
  const auto strings = std::find_if(entries->begin(), entries->end(),
                                    [](const Entry &entry) { return entry.d_tag == DT_STRTAB; });
  for (const Entry &entry : *entries) {
    std::string *const place = placeFor(entry, needs);
    if (place == nullptr)
      continue;
    if (strings == entries->end())
      return std::nullopt;
    const auto string = library.stringAt(std::uint64_t{strings->d_un.d_ptr} + entry.d_un.d_val);
    if (!string)
      return std::nullopt;
    *place = *string;
  }
  return needs;
}

} // namespace imageposition
