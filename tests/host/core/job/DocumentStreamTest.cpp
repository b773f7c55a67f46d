#include "DocumentStream.hpp"

#include "TemporaryFolder.hpp"

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace imageposition;
using imageposition::test::TemporaryFolder;

constexpr std::uint64_t kFourGibibytes = 0x100000000;

/// Redirects standard input to a file during its lifetime.
class InputFrom {
public:
  explicit InputFrom(const std::string &path) : before_(dup(STDIN_FILENO)) {
    const int file = open(path.c_str(), O_RDONLY);
    dup2(file, STDIN_FILENO);
    close(file);
  }
  ~InputFrom() {
    dup2(before_, STDIN_FILENO);
    close(before_);
  }
  InputFrom(const InputFrom &) = delete;
  InputFrom &operator=(const InputFrom &) = delete;

private:
  int before_;
};

/// Sparse files around the limits of 31-bit and 32-bit sizes.
class LargeDocument : public testing::TestWithParam<std::uint64_t> {
protected:
  LargeDocument() { std::filesystem::resize_file(path, GetParam()); }

  TemporaryFolder folder;
  const std::string path = folder.write("large.pdf", "%PDF");
};

std::string readFrom(DocumentStream &stream) {
  return std::string(stream.next([] { return true; }).value());
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Sizes, LargeDocument,
                         testing::Values(kFourGibibytes / 2 - 1, kFourGibibytes / 2,
                                         kFourGibibytes - 1, kFourGibibytes, kFourGibibytes + 5));

TEST_P(LargeDocument, HasItsFullSize) { EXPECT_EQ(documentSize(path), GetParam()); }

TEST_P(LargeDocument, CanBeOpenedAndRead) {
  DocumentStream stream(path);
  EXPECT_EQ(readFrom(stream).substr(0, 4), "%PDF");
}

TEST_P(LargeDocument, OnStandardInputHasItsFullSizeAndIsReadToItsEnd) {
  const InputFrom input(path);
  EXPECT_EQ(documentSize("-"), GetParam());
  ASSERT_EQ(lseek(STDIN_FILENO, -7, SEEK_END), static_cast<off_t>(GetParam()) - 7);
  DocumentStream stream("-");
  EXPECT_EQ(readFrom(stream), std::string(7, '\0'));
  EXPECT_EQ(readFrom(stream), "");
}

TEST(DocumentStream, CountsTheBytesThatAFileLostSinceItWasOpened) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.txt", "text");
  DocumentStream stream(path), whole(path);
  EXPECT_EQ(readFrom(whole), "text");
  EXPECT_EQ(whole.missing(), 0u);
  std::filesystem::resize_file(path, 1);
  EXPECT_EQ(readFrom(stream), "t");
  EXPECT_EQ(readFrom(stream), "");
  EXPECT_EQ(stream.missing(), 3u);
}

TEST(DocumentStream, OnStandardInputCountsFromTheCurrentPosition) {
  const TemporaryFolder folder;
  const InputFrom input(folder.write("a.txt", "text"));
  ASSERT_EQ(lseek(STDIN_FILENO, 3, SEEK_SET), 3);
  DocumentStream stream("-");
  EXPECT_EQ(readFrom(stream), "t");
  EXPECT_EQ(stream.missing(), 0u);
}

// The year 2045.
TEST(DocumentStream, ReadsADocumentWhoseTimeExceeds32Bits) {
  const TemporaryFolder folder;
  const std::string path = folder.write("late.txt", "text");
  const timespec times[] = {{2366841600, 0}, {2366841600, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
  EXPECT_EQ(documentSize(path), 4u);
  DocumentStream stream(path);
  EXPECT_EQ(readFrom(stream), "text");
}
