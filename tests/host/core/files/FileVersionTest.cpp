#include "FileVersion.hpp"

#include "TemporaryFolder.hpp"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>

namespace imageposition {

namespace {

using namespace imageposition::test;

TEST(FileVersion, ChangesWithTheFile) {
  const TemporaryFolder folder;
  const std::string path = folder.write("letter.pdf", "first");
  const std::string first = fileVersion(path);
  EXPECT_FALSE(first.empty());
  EXPECT_EQ(fileVersion(path), first);

  std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) -
                                             std::chrono::milliseconds(10));
  const std::string earlier = fileVersion(path);
  EXPECT_NE(earlier, first);

  folder.write("letter.pdf", "longer than the first");
  const std::string longer = fileVersion(path);
  EXPECT_NE(longer, earlier);

  // As editors save: a new file under the old name.
  std::filesystem::rename(folder.write("new.pdf", "longer than the first"), path);
  EXPECT_NE(fileVersion(path), longer);
}

TEST(FileVersion, IsEmptyWithoutARegularFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(fileVersion(folder.path() + "/none"), "");
  EXPECT_EQ(fileVersion(folder.path()), "");
}

} // namespace

} // namespace imageposition
