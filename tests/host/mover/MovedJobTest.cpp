// Jobs of print-dialog compared with those of lp with the same options, as a printer gets them.
#include "DrawnBoxes.hpp"
#include "DrawnPdf.hpp"
#include "DrawnRectangles.hpp"
#include "KeptJobs.hpp"
#include "TemporaryData.hpp"

#include <cups/raster.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <memory>

namespace imageposition {

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

constexpr double kPointsPerTenth = 72 / 254.0;
constexpr double kTolerance = 0.05 * 10 * kPointsPerTenth; // 0.05 mm

constexpr Offset kFront{{25}, {-7}};
constexpr Offset kBack{{-30}, {14}};

using Words = std::vector<std::string>;

const Words kOffsets{"-o", "LeftRightMargin=25",
                     "-o", "TopBottomMargin=-7",
                     "-o", "BackLeftRightMargin=-30",
                     "-o", "BackTopBottomMargin=14",
                     "-o", "com.morva.printsettings.19AImagePositionEnable=True"};

constexpr const char *kTakesPdf = "*cupsFilter: \"application/vnd.cups-pdf 0 -\"\n";
constexpr const char *kTakesRaster = "*cupsFilter: \"application/vnd.cups-raster 0 -\"\n";
constexpr const char *kTakesPostScript = "";

std::string ppdWith(const std::string &more) {
  std::string text = contentOf(IMAGEPOSITION_SAMPLES "/duplex-plain.ppd");
  text.insert(text.find("*DefaultFont:"), more);
  return text;
}

/// The same as `boxesInPostScript` for raster of one bit for each pixel, read from its pixels.
std::vector<std::array<double, 4>> boxesInRaster(const std::string &content) {
  const Descriptor file = temporaryFile(content);
  cups_raster_t *const raster = cupsRasterOpen(file.get(), CUPS_RASTER_READ);
  std::vector<std::array<double, 4>> boxes;
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
std::vector<std::string> documentsIn(const std::string &content) {
  constexpr const char *kStart = "%PDF-";
  std::vector<std::string> documents;
  for (std::size_t start = content.find(kStart); start != std::string::npos;) {
    const std::size_t next = content.find(kStart, start + 1);
    documents.push_back(content.substr(start, next - start));
    start = next;
  }
  return documents;
}

class MovedJob : public testing::Test {
protected:
  static void SetUpTestSuite() {
    kept = std::make_unique<KeptJobs>();
    ASSERT_TRUE(kept->cups().isRunning()) << kept->cups().log();
    addQueue("office", kTakesPdf);
    addQueue("postscript", kTakesPostScript);
    addQueue("raster", kTakesRaster);
    addQueue("reversing", std::string(kTakesPdf) + "*DefaultOutputOrder: Reverse\n");
    addQueue("manual", std::string(kTakesPdf) + "*cupsManualCopies: True\n");
    addQueue("jcl",
             std::string(kTakesPdf) +
                 "*JCLBegin: \"<1B>%-12345X@PJL JOB<0A>\"\n*JCLToPSInterpreter: \"@PJL ENTER "
                 "LANGUAGE = POSTSCRIPT <0A>\"\n*JCLEnd: \"<1B>%-12345X@PJL EOJ <0A>\"\n"
                 "*JCLToPDFInterpreter: \"@PJL ENTER LANGUAGE = PDF <0A>\"\n");
    addQueue("minus", std::string(kTakesPdf) + "*LandscapeOrientation: Minus90\n");
    addQueue("defaults", kTakesPdf,
             {"-o", "number-up-default=2", "-o", "fit-to-page-default=true"});
  }
  static void TearDownTestSuite() { kept.reset(); }

  static void addQueue(const std::string &name, const std::string &ppd, const Words &words = {}) {
    const auto added = kept->addQueue(name, ppdWith(ppd), words);
    ASSERT_EQ(added.status, 0) << testing::PrintToString(added);
  }

  ProcessResult print(const std::string &queue, const Words &options, const Words &documents,
                      const Words &more = kOffsets) {
    Words words{PRINT_DIALOG, "--batch", "-d", queue};
    for (const Words *part : {&options, &more, &documents})
      words.insert(words.end(), part->begin(), part->end());
    return runProcess(words, kept->cups().environment());
  }

  ProcessResult lp(const std::string &queue, const Words &options, const Words &documents) {
    Words words{"lp", "-d", queue};
    for (const Words *part : {&options, &documents})
      words.insert(words.end(), part->begin(), part->end());
    return kept->cups().run(words);
  }

  /// Compares what the printer gets, document by document and side by side.
  void expectMoved(const std::string &queue, const Words &options, const Words &documents) {
    const auto ours = print(queue, options, documents);
    ASSERT_EQ(ours.status, 0) << testing::PrintToString(ours);
    const auto theirs = lp(queue, options, documents);
    ASSERT_EQ(theirs.status, 0) << testing::PrintToString(theirs);
    const auto moved = documentsIn(kept->contentOf(ours));
    const auto direct = documentsIn(kept->contentOf(theirs));
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
      const Offset &by = i % 2 == 0 ? kFront : kBack; // as the printer's mechanics count
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
  static inline std::unique_ptr<KeptJobs> kept;
};

TEST_F(MovedJob, HasEachSideWhereLpHasItPlusTheOffset) {
  const std::vector<Words> rows{
      {},
      {"-o", "page-ranges=2-4"},
      {"-o", "page-set=even"},
      {"-o", "page-set=odd"},
      {"-o", "page-set=even", "-o", "outputorder=reverse"},
      {"-o", "number-up=2"},
      {"-o", "number-up=4", "-o", "number-up-layout=btrl", "-o", "page-border=single"},
      {"-n", "2"},
      {"-n", "3", "-o", "Collate=True"},
      {"-o", "outputorder=reverse"},
      {"-o", "outputorder=reverse", "-n", "2", "-o", "Collate=True"},
      {"-o", "outputorder=reverse", "-o", "number-up=2"},
      {"-o", "fit-to-page"},
      {"-o", "print-scaling=fill"},
      {"-o", "print-scaling=none"},
      {"-o", "fit-to-page", "-o", "media=A5"},
      {"-o", "landscape"},
      {"-o", "landscape", "-o", "number-up=2"},
      {"-o", "orientation-requested=6"},
      {"-o", "mirror"},
      {"-o", "booklet=true"},
      {"-o", "booklet=shuffle-only", "-o", "page-ranges=1-3"},
      {"-o", "page-left=72", "-o", "page-top=100", "-o", "fit-to-page"},
      {"-o", "page-left=72", "-o", "page-top=100"},
      {"-o", "position=top-left"},
      {"-o", "Duplex=DuplexTumble"},
      {"-o", "sides=two-sided-short-edge"},
      {"-o", "media=Letter"},
  };
  for (const Words &options : rows)
    for (const std::string &document : {numbered(5), mixed()}) {
      SCOPED_TRACE(testing::PrintToString(options) + " " + document);
      expectMoved("office", options, {document});
    }
}

TEST_F(MovedJob, FollowsTheQueue) {
  for (const char *const queue : {"reversing", "manual", "jcl", "minus", "defaults"})
    for (const Words &options : {Words{}, Words{"-n", "2"}, Words{"-o", "number-up=4"}})
      for (const std::string &document : {numbered(3), mixed()}) {
        SCOPED_TRACE(std::string(queue) + " " + testing::PrintToString(options) + " " + document);
        expectMoved(queue, options, {document});
      }
}

/// By how much a box has moved, in points, to the right and upwards.
void expectMovedBox(const std::array<double, 4> &from, const std::array<double, 4> &to,
                    const Offset &by, double tolerance) {
  for (const std::size_t edge : {0u, 2u})
    EXPECT_NEAR(to[edge] - from[edge], static_cast<double>(by.right.count) * kPointsPerTenth,
                tolerance);
  for (const std::size_t edge : {1u, 3u})
    EXPECT_NEAR(to[edge] - from[edge], -static_cast<double>(by.down.count) * kPointsPerTenth,
                tolerance);
}

TEST_F(MovedJob, ConvertsDocumentsAsLpDoes) {
  std::string picture = "P3\n40 20\n255\n";
  for (int pixel = 0; pixel < 40 * 20; pixel++)
    picture += "200 0 0\n";
  const std::string documents[] = {
      folder_.write("picture.ppm", picture),
      folder_.write("text.txt", "Dear Sir or Madam\n\fYours faithfully\n"),
      folder_.write("drawing.ps", "%!PS-Adobe-3.0\n%%Pages: 2\n%%EndComments\n%%Page: 1 1\n72 144 "
                                  "100 50 rectfill showpage\n%%Page: 2 2\n82 144 100 50 rectfill "
                                  "showpage\n%%EOF\n")};
  for (const std::string &document : documents)
    for (const Words &options :
         {Words{}, Words{"-o", "number-up=2"}, Words{"-o", "scaling=50"}, Words{"-o", "landscape"},
          Words{"-o", "fit-to-page"}, Words{"-o", "position=top-left", "-o", "ppi=100"}}) {
      SCOPED_TRACE(document + testing::PrintToString(options));
      const auto ours = print("office", options, {document});
      ASSERT_EQ(ours.status, 0) << testing::PrintToString(ours);
      const auto moved = boxesInPostScript(kept->contentOf(ours)); // Ghostscript reads PDF, too
      const auto direct = boxesInPostScript(kept->contentOf(lp("office", options, {document})));
      ASSERT_FALSE(direct.empty()) << kept->cups().log();
      ASSERT_EQ(moved.size(), direct.size());
      for (std::size_t i = 0; i < direct.size(); i++)
        expectMovedBox(direct[i], moved[i], i % 2 == 0 ? kFront : kBack, 0.3); // hints move text
    }
}

TEST_F(MovedJob, ArrivesThroughDriversOfOtherKinds) {
  const struct {
    const char *queue;
    std::vector<std::array<double, 4>> (*boxes)(const std::string &);
    double tolerance; // points; a pixel of the raster is 0.24
  } rows[] = {{"postscript", boxesInPostScript, kTolerance}, {"raster", boxesInRaster, 0.25}};
  for (const auto &row : rows)
    for (const std::string &document : {numbered(3), mixed()})
      for (const Words &options : {Words{}, Words{"-o", "number-up=2"}}) {
        SCOPED_TRACE(std::string(row.queue) + " " + testing::PrintToString(options) + document);
        const auto ours = print(row.queue, options, {document});
        ASSERT_EQ(ours.status, 0) << testing::PrintToString(ours);
        const auto moved = row.boxes(kept->contentOf(ours));
        const auto direct = row.boxes(kept->contentOf(lp(row.queue, options, {document})));
        ASSERT_FALSE(direct.empty()) << kept->cups().log();
        ASSERT_EQ(moved.size(), direct.size());
        for (std::size_t i = 0; i < direct.size(); i++) {
          SCOPED_TRACE("side " + std::to_string(i + 1));
          expectMovedBox(direct[i], moved[i], i % 2 == 0 ? kFront : kBack, row.tolerance);
        }
      }
}

TEST_F(MovedJob, BeginsEachOfSeveralDocumentsWithAFront) {
  for (const Words &options :
       {Words{}, Words{"-n", "2", "-o", "Collate=True"}, Words{"-o", "outputorder=reverse"}}) {
    SCOPED_TRACE(testing::PrintToString(options));
    expectMoved("office", options, {numbered(3), numbered(2), numbered(1)});
  }
}

TEST_F(MovedJob, TellsNobodyToMoveItAgain) {
  const auto sent = print("office", {"-H", "hold"}, {numbered(1)});
  ASSERT_EQ(sent.status, 0) << testing::PrintToString(sent);
  const int job = KeptJobs::numberIn(sent.output);
  EXPECT_EQ(kept->cups().jobAttribute(job, "LeftRightMargin"), "");
  EXPECT_EQ(kept->cups().jobAttribute(job, "BackTopBottomMargin"), "");
  EXPECT_EQ(kept->cups().jobAttribute(job, "com.morva.printsettings.19AImagePositionEnable"),
            "false");
  EXPECT_EQ(kept->cups().jobAttribute(job, "print-dialog-image-shift"),
            "front 2.5 -0.7 back -3 1.4");
  EXPECT_EQ(kept->cups().jobAttribute(job, "document-name-supplied"), "pages-1.pdf");
  kept->cups().run({"cancel", "-a", "-x"});
}

TEST_F(MovedJob, SendsTheDocumentAsItIsIfNothingMoves) {
  const std::string document = numbered(2);
  for (const Words &options :
       {Words{}, Words{"-o", "LeftRightMargin=0"}, Words{"-o", "LeftRightMargin=25", "--no-shift"},
        Words{"-o", "LeftRightMargin=25", "-o", "Duplex=None"}}) {
    const auto ours = print("office", options, {document}, {});
    ASSERT_EQ(ours.status, 0) << testing::PrintToString(ours);
    const auto theirs = lp("office", {}, {document});
    const auto one = drawnRectangles(temporaryFile(kept->contentOf(ours)));
    const auto other = drawnRectangles(temporaryFile(kept->contentOf(theirs)));
    ASSERT_EQ(one.size(), other.size());
    EXPECT_TRUE(one[0].rectangles == other[0].rectangles) << testing::PrintToString(options);
  }
}

TEST_F(MovedJob, SaysInADryRunThatItIsMovedHere) {
  const auto result = print("office", {"--dry-run"}, {numbered(1)});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(
      result.errors,
      HasSubstr("The image is moved here, before the job is sent. The front moves 2.5 mm to "
                "the right and 0.7 mm up. The back moves 3 mm to the left and 1.4 mm down"));
  EXPECT_THAT(result.output, HasSubstr("page-set (nameWithoutLanguage) = all"));
  EXPECT_THAT(result.output, Not(HasSubstr("LeftRightMargin")));
  EXPECT_THAT(result.output, HasSubstr("document-name (nameWithoutLanguage) = pages-1.pdf\n"));
  const auto unmoved = print("office", {"--dry-run", "--no-shift"}, {numbered(1)});
  EXPECT_THAT(unmoved.errors, Not(HasSubstr("moved here")));
  EXPECT_THAT(unmoved.output, Not(HasSubstr("page-set")));
}

TEST_F(MovedJob, SaysOnceWhatIsPushedOutOfThePrintableArea) {
  const std::string front = "A front that fills its printable area loses 2.5 mm at the right and "
                            "0.7 mm at the top.",
                    back = "A back that fills its printable area loses 3 mm at the left and 1.4 mm "
                           "at the bottom.";
  EXPECT_EQ(print("office", {}, {numbered(1)}).errors, front + " " + back + "\n");
  EXPECT_THAT(print("office", {"--dry-run"}, {numbered(1)}).errors, HasSubstr(front + " " + back));
  EXPECT_EQ(print("office", {"-s"}, {numbered(1)}).errors, "");
  EXPECT_EQ(print("office", {"-o", "Duplex=None"}, {numbered(1)}).errors, "");
  EXPECT_EQ(print("office", {"--no-shift"}, {numbered(1)}).errors, "");
}

TEST_F(MovedJob, SendsNothingIfADocumentCannotBeMoved) {
  const auto result = print("office", {}, {numbered(1), folder_.write("bad.pdf", "%PDF-1.4\nx")});
  EXPECT_EQ(result.status, 9);
  EXPECT_THAT(result.errors, HasSubstr("\"bad.pdf\" cannot be moved"));
  EXPECT_THAT(result.errors, HasSubstr("--no-shift"));
  EXPECT_EQ(kept->cups().run({"lpstat", "-o"}).output, "");
}

TEST_F(MovedJob, SendsNothingIfTheJobIsRaw) {
  const auto result = print("office", {"-o", "raw"}, {numbered(1)});
  EXPECT_EQ(result.status, 9);
  EXPECT_THAT(result.errors, HasSubstr("raw job cannot be moved"));
  EXPECT_EQ(print("office", {"-o", "raw", "--no-shift"}, {numbered(1)}).status, 0);
}

TEST_F(MovedJob, LeavesNothingBehindWhenItIsKilled) {
  const std::string document = numbered(3000);
  for (const int signal : {SIGTERM, SIGKILL}) {
    const TemporaryFolder temporary;
    Words environment = kept->cups().environment();
    environment.push_back("TMPDIR=" + temporary.path());
    Words words{PRINT_DIALOG, "--batch", "-d", "office", "-o", "LeftRightMargin=25", document};
    Process dialog(words, environment);
    const auto isMoving = [&] {
      for (const auto &entry : std::filesystem::directory_iterator(temporary.path()))
        if (entry.is_directory()) // besides what libcups makes
          return true;
      return false;
    };
    EXPECT_TRUE(becomesTrue([&] { return isMoving() || dialog.hasEnded(); }));
    dialog.send(signal);
    EXPECT_EQ(dialog.wait().status, 128 + signal);
    EXPECT_TRUE(becomesTrue([&] { return temporary.fileCount() == 0; }));
    EXPECT_TRUE(becomesTrue([&] {
      return runProcess({"pgrep", "-f", "print-dialog-mover.*" + document}).status == 1;
    }));
  }
}

TEST_F(MovedJob, ReadsStandardInput) {
  const std::string document = numbered(2);
  Words words{"sh", "-c",     "cat \"$1\" | \"$2\" --batch -d office -o LeftRightMargin=25",
              "sh", document, PRINT_DIALOG};
  const auto ours = runProcess(words, kept->cups().environment());
  ASSERT_EQ(ours.status, 0) << testing::PrintToString(ours);
  const auto pages = drawnRectangles(temporaryFile(kept->contentOf(ours)));
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_NEAR(pages[1].rectangles.at(0).left.count, 82 + 25 * kPointsPerTenth, kTolerance);
}

} // namespace

} // namespace imageposition
