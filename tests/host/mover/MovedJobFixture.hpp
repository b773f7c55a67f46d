/// Compares jobs of print-dialog with those of lp with the same options, as a printer gets them.
#ifndef IMAGEPOSITION_TESTS_HOST_MOVER_MOVEDJOBFIXTURE_HPP
#define IMAGEPOSITION_TESTS_HOST_MOVER_MOVEDJOBFIXTURE_HPP

#include "DrawnBoxes.hpp"
#include "DrawnPdf.hpp"
#include "DrawnRectangles.hpp"
#include "KeptJobs.hpp"
#include "TemporaryData.hpp"

#include <cups/raster.h>

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace imageposition::test {

constexpr double kPointsPerTenth = 72 / 254.0;
constexpr double kTolerance = 0.05 * 10 * kPointsPerTenth; // 0.05 mm

constexpr Offset kFront{{25}, {-7}};
constexpr Offset kBack{{-30}, {14}};

using Words = std::vector<std::string>;

inline const Words kOffsets{"-o", "LeftRightMargin=25",
                            "-o", "TopBottomMargin=-7",
                            "-o", "BackLeftRightMargin=-30",
                            "-o", "BackTopBottomMargin=14",
                            "-o", "com.morva.printsettings.19AImagePositionEnable=True"};

constexpr const char *kTakesPdf = "*cupsFilter: \"application/vnd.cups-pdf 0 -\"\n";
constexpr const char *kTakesRaster = "*cupsFilter: \"application/vnd.cups-raster 0 -\"\n";
constexpr const char *kTakesPostScript = "";

inline std::string ppdWith(const std::string &more, const std::string &sample = "duplex-plain") {
  std::string text = contentOf(IMAGEPOSITION_SAMPLES "/" + sample + ".ppd");
  text.insert(text.find("*DefaultFont:"), more);
  return text;
}

/// The same as `boxesInPostScript` for raster of one bit for each pixel, read from its pixels.
inline Boxes boxesInRaster(const std::string &content) {
  const Descriptor file = temporaryFile(content);
  cups_raster_t *const raster = cupsRasterOpen(file.get(), CUPS_RASTER_READ);
  Boxes boxes;
  cups_page_header2_t page{};
  while (cupsRasterReadHeader2(raster, &page) != 0 && page.cupsBitsPerPixel == 1) {
    std::vector<unsigned char> line(page.cupsBytesPerLine);
    const unsigned char blank = page.cupsColorSpace == CUPS_CSPACE_K ? 0 : 0xFF;
    unsigned left = page.cupsWidth, right = 0, top = page.cupsHeight, bottom = 0;
    for (unsigned y = 0; y < page.cupsHeight; y++) {
      cupsRasterReadPixels(raster, line.data(), page.cupsBytesPerLine);
      for (unsigned x = 0; x < page.cupsWidth; x++) {
        if (((line[x / 8] ^ blank) & (0x80 >> x % 8)) == 0)
          continue;
        left = std::min(left, x);
        right = std::max(right, x + 1);
        top = std::min(top, y);
        bottom = y + 1;
      }
    }
    const double x = 72.0 / page.HWResolution[0], y = 72.0 / page.HWResolution[1];
    boxes.push_back(
        {left * x, (page.cupsHeight - bottom) * y, right * x, (page.cupsHeight - top) * y});
  }
  cupsRasterClose(raster);
  return boxes;
}

/// The documents of a job, which a printer gets one after the other.
inline std::vector<std::string> documentsIn(const std::string &content) {
  constexpr const char *kStart = "%PDF-";
  std::vector<std::string> documents;
  for (std::size_t start = content.find(kStart); start != std::string::npos;) {
    const std::size_t next = content.find(kStart, start + 1);
    documents.push_back(content.substr(start, next - start));
    start = next;
  }
  return documents;
}

/// By how much a box has moved, in points, to the right and upwards.
inline void expectMovedBox(const std::array<double, 4> &from, const std::array<double, 4> &to,
                           const Offset &by, double tolerance) {
  for (const std::size_t edge : {0u, 2u})
    EXPECT_NEAR(to[edge] - from[edge], static_cast<double>(by.right.count) * kPointsPerTenth,
                tolerance);
  for (const std::size_t edge : {1u, 3u})
    EXPECT_NEAR(to[edge] - from[edge], -static_cast<double>(by.down.count) * kPointsPerTenth,
                tolerance);
}

/// Compares all sides of a job.
inline void expectMovedBoxes(const Boxes &direct, const Boxes &moved, double tolerance) {
  ASSERT_FALSE(direct.empty());
  ASSERT_EQ(moved.size(), direct.size());
  for (std::size_t i = 0; i < direct.size(); i++) {
    SCOPED_TRACE("side " + std::to_string(i + 1));
    expectMovedBox(direct[i], moved[i], i % 2 == 0 ? kFront : kBack, tolerance);
  }
}

/// Each suite starts a CUPS, which its tests share.
class MovedJobFixture : public testing::Test {
protected:
  static void startCups() {
    kept = std::make_unique<KeptJobs>();
    ASSERT_TRUE(kept->cups().isRunning()) << kept->cups().log();
  }
  static void TearDownTestSuite() { kept.reset(); }

  static void addQueue(const std::string &name, const std::string &ppd, const Words &words = {}) {
    const auto added = kept->addQueue(name, ppdWith(ppd), words);
    ASSERT_EQ(added.status, 0) << testing::PrintToString(added);
  }

  ProcessResult print(const std::string &queue, const Words &options, const Words &documents,
                      const Words &offsets = kOffsets) {
    Words words{PRINT_DIALOG, "--batch", "-d", queue};
    for (const Words *part : {&options, &offsets, &documents})
      words.insert(words.end(), part->begin(), part->end());
    return runProcess(words, kept->cups().environment());
  }

  ProcessResult lp(const std::string &queue, const Words &options, const Words &documents) {
    Words words{"lp", "-d", queue};
    for (const Words *part : {&options, &documents})
      words.insert(words.end(), part->begin(), part->end());
    return kept->cups().run(words);
  }

  /// Compares what the printer gets, by `front_` and `back_`, document by document and side by
  /// side. `offsets` are the options of the moved job alone.
  void expectMoved(const std::string &queue, const Words &options, const Words &documents,
                   const Words &offsets = kOffsets) {
    const auto ours = print(queue, options, documents, offsets);
    ASSERT_EQ(ours.status, 0) << testing::PrintToString(ours);
    const auto theirs = lp(queue, options, documents);
    ASSERT_EQ(theirs.status, 0) << testing::PrintToString(theirs);
    expectMoved(kept->contentOf(theirs), kept->contentOf(ours));
  }

  void expectMoved(const std::string &directJob, const std::string &movedJob) {
    const auto direct = documentsIn(directJob), moved = documentsIn(movedJob);
    ASSERT_FALSE(direct.empty()) << kept->cups().log();
    ASSERT_EQ(moved.size(), direct.size());
    for (std::size_t i = 0; i < direct.size(); i++)
      expectMoved(drawnRectangles(temporaryFile(direct[i])),
                  drawnRectangles(temporaryFile(moved[i])), i + 1 < direct.size());
  }

  void expectMoved(const std::vector<DrawnPage> &direct, const std::vector<DrawnPage> &moved,
                   bool isPadded) {
    const std::size_t padding = isPadded && direct.size() % 2 != 0 ? 1 : 0;
    ASSERT_EQ(moved.size(), direct.size() + padding);
    for (std::size_t i = 0; i < direct.size(); i++) {
      SCOPED_TRACE("side " + std::to_string(i + 1));
      const Offset &by = i % 2 == 0 ? front_ : back_; // as the printer's mechanics count
      ASSERT_EQ(moved[i].rectangles.size(), direct[i].rectangles.size());
      if (direct[i].rectangles.empty())
        continue; // blank sides are alike, whichever way up
      EXPECT_NEAR(moved[i].width.count, direct[i].width.count, kTolerance);
      EXPECT_NEAR(moved[i].height.count, direct[i].height.count, kTolerance);
      for (std::size_t j = 0; j < direct[i].rectangles.size(); j++) {
        const PageRectangle &from = direct[i].rectangles[j], &to = moved[i].rectangles[j];
        const double right = static_cast<double>(by.right.count) * kPointsPerTenth;
        const double down = static_cast<double>(by.down.count) * kPointsPerTenth;
        EXPECT_NEAR(to.left.count, from.left.count + right, kTolerance);
        EXPECT_NEAR(to.right.count, from.right.count + right, kTolerance);
        EXPECT_NEAR(to.top.count, from.top.count + down, kTolerance);
        EXPECT_NEAR(to.bottom.count, from.bottom.count + down, kTolerance);
      }
    }
    for (std::size_t i = direct.size(); i < moved.size(); i++)
      EXPECT_TRUE(moved[i].rectangles.empty());
  }

  std::string numbered(int pages) {
    return folder_.write("pages-" + std::to_string(pages) + ".pdf", pdfWithNumberedPages(pages));
  }

  /// Upright, turned, wide and small pages.
  std::string mixed() {
    return folder_.write(
        "mixed.pdf",
        pdfDrawing({{"0 0 595 842", 0, "", "72 144 100 50 re f"},
                    {"0 0 842 595", 0, "", "72 144 100 50 re f"},
                    {"0 0 842 595", 90, "", "72 144 100 50 re f"},
                    {"0 0 420 595", 270, "", "72 144 100 50 re f"},
                    {"-50 -70 545 772", 180, "", "72 144 100 50 re f"},
                    {"0 0 1191 1684", 0, "/CropBox [50 50 645 892]", "172 144 100 50 re f"},
                    {"0 0 300 400", 0, "/UserUnit 1.5", "72 144 100 50 re f"}}));
  }

  TemporaryFolder folder_;
  Offset front_ = kFront, back_ = kBack;
  static inline std::unique_ptr<KeptJobs> kept;
};

} // namespace imageposition::test

#endif
