#include "DraggedFiles.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace imageposition {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(DraggedFiles, AreTheLocalFilesOfTheList) {
  EXPECT_THAT(filesInUriList("file:///a/b.pdf\r\nfile://localhost/c.pdf\r\nfile:/d.pdf\r\n"),
              ElementsAre("/a/b.pdf", "/c.pdf", "/d.pdf"));
  char host[256] = "";
  gethostname(host, sizeof host - 1);
  EXPECT_THAT(filesInUriList("file://" + std::string(host) + "/e.pdf"), ElementsAre("/e.pdf"));
  EXPECT_THAT(filesInUriList("# comment\nhttp://example.org/a.pdf\nfile://elsewhere.example/b\n"
                             "file://\nfile:\nfile:relative\n\n/plain\n"),
              IsEmpty());
  EXPECT_THAT(filesInUriList(""), IsEmpty());
}

TEST(DraggedFiles, HaveTheirNamesUnescaped) {
  EXPECT_THAT(filesInUriList("file:///with%20blank/%C3%A9%c3%A9.pdf"),
              ElementsAre("/with blank/\u00E9\u00E9.pdf"));
  EXPECT_THAT(filesInUriList("file:///100%\nfile:///%4\nfile:///%zz\nfile:///%FF"),
              ElementsAre("/100%", "/%4", "/%zz", "/\xFF"));
  EXPECT_THAT(filesInUriList("file:///a%00b"), IsEmpty());
}

} // namespace

} // namespace imageposition
