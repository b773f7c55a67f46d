#include "LibraryFile.hpp"

#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>

#include <link.h>
#include <random>

namespace {

using namespace imageposition;
using imageposition::test::contentOf;
using imageposition::test::TemporaryFolder;
using testing::Contains;
using testing::IsEmpty;
using testing::StartsWith;

class LibraryFile : public testing::Test {
protected:
  const TemporaryFolder folder;
  const std::string self = contentOf("/proc/self/exe");
};

TEST_F(LibraryFile, ListsItsDependencies) {
  const auto needs = readNeeds("/proc/self/exe");
  ASSERT_TRUE(needs);
  EXPECT_THAT(needs->libraries, Contains(StartsWith("libstdc++.so.")));
  EXPECT_THAT(needs->libraries, Contains(StartsWith("libc.so.")));
  EXPECT_FALSE(isCutShort("/proc/self/exe"));
}

TEST_F(LibraryFile, HasNoDependenciesIfItIsNotALibrary) {
  for (const std::string &path :
       {folder.write("empty", ""), folder.write("text", "no code"), folder.path("none"),
        folder.path(), folder.write("other", std::string(self).replace(4, 1, 1, char(9)))}) {
    const auto needs = readNeeds(path);
    ASSERT_TRUE(needs) << path;
    EXPECT_THAT(needs->libraries, IsEmpty()) << path;
    EXPECT_FALSE(isCutShort(path)) << path;
  }
}

TEST_F(LibraryFile, IsNotReadBeyondItsEnd) {
  for (std::size_t size = 64; size < 65536; size += size / 2) {
    const std::string path = folder.write("cut", self.substr(0, size));
    EXPECT_TRUE(isCutShort(path)) << size;
    readNeeds(path); // the sanitizers detect reads out of bounds
  }
}

TEST_F(LibraryFile, MayContainArbitraryHeaders) {
  std::mt19937 random(1);
  constexpr std::size_t kTables = 4096; // the ELF header and the program headers
  for (int i = 0; i < 300; i++) {
    std::string bytes = self.substr(0, kTables);
    for (int change = 0; change < 8; change++)
      bytes[16 + random() % (1024 - 16)] = static_cast<char>(random());
    const std::string path = folder.write("changed", bytes);
    isCutShort(path);
    readNeeds(path);
  }
}

TEST_F(LibraryFile, IsMalformedIfItsStringTableIsOutsideTheFile) {
  std::string bytes = self;
  const auto *const header = reinterpret_cast<const ElfW(Ehdr) *>(bytes.data());
  const auto *segment = reinterpret_cast<const ElfW(Phdr) *>(bytes.data() + header->e_phoff);
  while (segment->p_type != PT_DYNAMIC)
    ++segment;
  auto *entry = reinterpret_cast<ElfW(Dyn) *>(bytes.data() + segment->p_offset);
  while (entry->d_tag != DT_STRTAB)
    ++entry;
  entry->d_un.d_ptr = ~ElfW(Addr){0} / 2;
  EXPECT_FALSE(readNeeds(folder.write("changed", bytes)));
  entry->d_tag = DT_DEBUG;
  EXPECT_FALSE(readNeeds(folder.write("changed", bytes)));
}

} // namespace
