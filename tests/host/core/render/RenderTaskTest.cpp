#include "RenderTask.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace imageposition {

namespace {

TEST(RenderTask, ReadsBackTheRequestThatItWrote) {
  const RenderRequest request{{0, 7, 7}, 0.285714285714, 240};
  const auto read = readRenderRequest(wordsOf(request));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->pages, request.pages);
  EXPECT_EQ(read->pixelsPerPoint, request.pixelsPerPoint);
  EXPECT_EQ(read->mostPixels, request.mostPixels);
}

TEST(RenderTask, RefusesRequestsOutOfRange) {
  const std::vector<std::string> rows[] = {{},
                                           {"1", "100"},
                                           {"0", "100", "0"},
                                           {"-1", "100", "0"},
                                           {"nan", "100", "0"},
                                           {"inf", "100", "0"},
                                           {"1", "0", "0"},
                                           {"1", "4097", "0"},
                                           {"1", "100", "-1"},
                                           {"1", "100", "1x"},
                                           {"1", "100", ""},
                                           std::vector<std::string>(19, "1")};
  for (const auto &words : rows)
    EXPECT_FALSE(readRenderRequest(words)) << testing::PrintToString(words);
}

TEST(RenderTask, ReadsBackTheReportThatItWrote) {
  const PageReport report{3, {595.2755905511811}, {1.0 / 3}};
  const auto read = readPageReport(lineOf(report));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->page, 3);
  EXPECT_EQ(read->width.count, report.width.count);
  EXPECT_EQ(read->height.count, report.height.count);
  EXPECT_FALSE(readPageReport(lineOf({3, {}, {}}))->isRendered());
}

TEST(RenderTask, RefusesReportsThatCannotBe) {
  for (const char *const line :
       {"", "\n", "0\n", "0 100\n", "0 100 100", "0 100 -100\n", "0 0 100\n", "0 nan 100\n",
        "0 100 inf\n", "0 1e7 100\n", "-1 100 100\n", "0 100 100 \n", "0 100 100 100\n",
        " 0 100 100\n", "0  100 100\n", "99999999999 100 100\n", "0 0x10 100\n"})
    EXPECT_FALSE(readPageReport(line)) << line;
}

TEST(RenderTask, LimitsTheSizeOfAPage) {
  const struct {
    PageReport page;
    double scale;
    int most, width, height;
  } rows[] = {
      {{0, {100}, {200}}, 1, 1000, 100, 200},     {{0, {100}, {200}}, 0.5, 1000, 50, 100},
      {{0, {100.2}, {200}}, 1, 1000, 101, 200},   {{0, {100}, {200}}, 1, 100, 50, 100},
      {{0, {14173}, {2.8}}, 1, 100, 100, 1},      {{0, {2.8}, {2.8}}, 0.001, 100, 1, 1},
      {{0, {1e6}, {1e6}}, 1e4, 4096, 4096, 4096}, {{0, {}, {}}, 1, 100, 0, 0},
  };
  for (const auto &row : rows) {
    const PixelSize size = pixelSizeOf(row.page, {{0}, row.scale, row.most});
    EXPECT_EQ(size.width, row.width) << row.page.width.count << " x " << row.page.height.count;
    EXPECT_EQ(size.height, row.height) << row.page.width.count << " x " << row.page.height.count;
  }
}

} // namespace

} // namespace imageposition
