#include "PageRenderer.hpp"

#include "DrawnPdf.hpp"
#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"
#include "Waiting.hpp"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/wait.h>

namespace imageposition {

namespace {

using namespace imageposition::test;

constexpr std::uint32_t kWhite = 0xFFFFFFFFU;
constexpr std::uint32_t kRed = 0xFFFF0000U;
constexpr std::uint32_t kBlue = 0xFF0000FFU;

class Renderer : public testing::Test {
protected:
  std::vector<RenderedPage> render(const std::string &content, const RenderRequest &request) {
    const Descriptor pdf(open(folder_.write("document", content).c_str(), O_RDWR | O_CLOEXEC));
    return renderPages(pdf, request, [] { return true; });
  }

  RenderedPage renderPage(const std::string &content, int most = 500, double scale = 1) {
    auto pages = render(content, {{0}, scale, most});
    EXPECT_EQ(pages.size(), 1u);
    return pages.empty() ? RenderedPage() : std::move(pages[0]);
  }

  RenderProblem problemWith(const std::string &content) {
    try {
      renderPage(content);
      ADD_FAILURE() << "rendered";
    } catch (const RenderFailure &failure) {
      return failure.problem();
    }
    return {};
  }

  TemporaryFolder folder_;
};

std::uint32_t pixelAt(const RenderedPage &page, int x, int y) {
  EXPECT_EQ(page.pixels.size(), static_cast<std::size_t>(page.width * page.height));
  return page.pixels.at(static_cast<std::size_t>(y * page.width + x));
}

std::ptrdiff_t inkOn(const RenderedPage &page) {
  return std::count_if(page.pixels.begin(), page.pixels.end(),
                       [](std::uint32_t pixel) { return pixel != kWhite; });
}

/// 100 by 200 points, a red square in its lower left corner and a blue one above it on the right.
PageToDraw markedPage() {
  PageToDraw page;
  page.box = "0 0 100 200";
  page.content = "1 0 0 rg 0 0 20 20 re f 0 0 1 rg 80 20 20 20 re f";
  return page;
}

TEST_F(Renderer, DrawsPagesFromTheTopOnWhite) {
  const RenderedPage page = renderPage(pdfDrawing({markedPage()}));
  EXPECT_EQ(page.width, 100);
  EXPECT_EQ(page.height, 200);
  EXPECT_EQ(page.pageWidth.count, 100);
  EXPECT_EQ(page.pageHeight.count, 200);
  EXPECT_EQ(pixelAt(page, 10, 190), kRed);
  EXPECT_EQ(pixelAt(page, 90, 170), kBlue);
  EXPECT_EQ(pixelAt(page, 50, 50), kWhite);
}

TEST_F(Renderer, TurnsPagesAsDisplayed) {
  const struct {
    int rotation, width, height, redX, redY;
  } rows[] = {{90, 200, 100, 10, 10}, {180, 100, 200, 90, 10}, {270, 200, 100, 190, 90}};
  for (const auto &row : rows) {
    PageToDraw turned = markedPage();
    turned.rotation = row.rotation;
    const RenderedPage page = renderPage(pdfDrawing({turned}));
    EXPECT_EQ(page.width, row.width) << row.rotation;
    EXPECT_EQ(page.height, row.height) << row.rotation;
    EXPECT_EQ(pixelAt(page, row.redX, row.redY), kRed) << row.rotation;
  }
}

TEST_F(Renderer, CropsPagesAsDisplayed) {
  PageToDraw cropped = markedPage();
  cropped.more = "/CropBox [10 10 90 110]";
  cropped.rotation = 90;
  const RenderedPage page = renderPage(pdfDrawing({cropped}));
  EXPECT_EQ(page.width, 100);
  EXPECT_EQ(page.height, 80);
  EXPECT_EQ(pixelAt(page, 2, 2), kRed);
  EXPECT_EQ(pixelAt(page, 20, 20), kWhite);
}

TEST_F(Renderer, DrawsPagesInTheOrderOfTheRequest) {
  std::vector<PageToDraw> pages(3, markedPage());
  for (std::size_t i = 0; i < pages.size(); i++)
    pages[i].box = "0 0 100 " + std::to_string(200 + 10 * i);
  const auto rendered = render(pdfDrawing(pages), {{2, 0, 7, 1}, 0.5, 500});
  ASSERT_EQ(rendered.size(), 4u);
  EXPECT_EQ(rendered[0].height, 110);
  EXPECT_EQ(rendered[1].height, 100);
  EXPECT_EQ(rendered[2].height, 0) << "a page that is not in the document";
  EXPECT_TRUE(rendered[2].pixels.empty());
  EXPECT_EQ(pixelAt(rendered[3], 5, 100), kRed);
}

TEST_F(Renderer, FitsAnyPageIntoItsPixels) {
  const struct {
    const char *box;
    int width, height;
  } rows[] = {
      {"0 0 14173 14173", 240, 240}, {"0 0 2.83 2.83", 3, 3},     {"0 0 14173 2.83", 240, 1},
      {"-50 -50 50 150", 100, 200},  {"0 0 1000 2000", 120, 240}, {"100 200 0 0", 100, 200},
  };
  for (const auto &row : rows) {
    const RenderedPage page = renderPage(pdfWithPages({row.box}), 240);
    EXPECT_EQ(page.width, row.width) << row.box;
    EXPECT_EQ(page.height, row.height) << row.box;
  }
}

TEST_F(Renderer, SmoothsEdges) {
  PageToDraw slanted = markedPage();
  slanted.content = "0 0 m 100 200 l 100 0 l f";
  const RenderedPage page = renderPage(pdfDrawing({slanted}));
  EXPECT_TRUE(std::any_of(page.pixels.begin(), page.pixels.end(), [](std::uint32_t pixel) {
    return pixel != kWhite && pixel != 0xFF000000U;
  }));
}

/// Text in a font that is not in the document.
std::string pdfWithText(const std::string &font, const std::string &text) {
  return pdfOf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 100 100] /Contents 4 0 R "
                "/Resources << /Font << /F " +
                    font + " >> >> >>",
                streamOf("BT /F 40 Tf 5 30 Td " + text + " Tj ET")});
}

TEST_F(Renderer, DrawsTextWhoseFontsAreNotEmbedded) {
  const std::string latin = pdfWithText(
      "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>",
      "(Wide)");
  EXPECT_GT(inkOn(renderPage(latin)), 300);
  const std::string japanese = pdfWithText(
      "<< /Type /Font /Subtype /Type0 /BaseFont /Ryumin-Light /Encoding /UniJIS-UCS2-H "
      "/DescendantFonts [<< /Type /Font /Subtype /CIDFontType0 /BaseFont /Ryumin-Light "
      "/CIDSystemInfo << /Registry (Adobe) /Ordering (Japan1) /Supplement 2 >> /DW 1000 "
      "/FontDescriptor << /Type /FontDescriptor /FontName /Ryumin-Light /Flags 6 /FontBBox [0 -200 "
      "1000 900] /ItalicAngle 0 /Ascent 800 /Descent -200 /CapHeight 800 /StemV 80 >> >>] >>",
      "<65E5672C>");
  EXPECT_GT(inkOn(renderPage(japanese)), 300);
}

TEST_F(Renderer, NeedsNoFontCacheAndNoHome) {
  const std::string configuration =
      folder_.write("fonts.conf", "<fontconfig><dir>/usr/share/fonts/truetype/dejavu</dir>"
                                  "<cachedir>/nowhere</cachedir></fontconfig>");
  const std::string before = std::getenv("HOME") != nullptr ? std::getenv("HOME") : "";
  setenv("HOME", "/nowhere", 1);
  setenv("FONTCONFIG_FILE", configuration.c_str(), 1);
  const std::string latin =
      pdfWithText("<< /Type /Font /Subtype /Type1 /BaseFont /Times-Roman >>", "(Wide)");
  EXPECT_GT(inkOn(renderPage(latin)), 300);
  unsetenv("FONTCONFIG_FILE");
  before.empty() ? unsetenv("HOME") : setenv("HOME", before.c_str(), 1);
}

TEST_F(Renderer, SaysWhyADocumentCannotBeRendered) {
  EXPECT_EQ(problemWith(pdfWithPassword()), RenderProblem::Password);
  for (const std::string &content :
       {std::string(), std::string("Dear Sir or Madam"), std::string("%PDF-1.4\n"),
        pdfWithPages({}), pdfDrawing({markedPage()}).substr(0, 60),
        "%PDF-1.4\n" + std::string(1'000'000, '\xA5')})
    EXPECT_EQ(problemWith(content), RenderProblem::Damaged) << content.substr(0, 100);
  const Descriptor folder(open(folder_.path().c_str(), O_RDONLY | O_CLOEXEC));
  EXPECT_THROW(renderPages(folder, {{0}, 1, 100}, [] { return true; }), RenderFailure);
}

TEST_F(Renderer, ReadsADamagedTableOfObjects) {
  std::string content = pdfDrawing({markedPage()});
  content.replace(content.rfind("startxref"), std::string::npos, "startxref\n7\n%%EOF\n");
  EXPECT_EQ(pixelAt(renderPage(content), 10, 190), kRed);
}

TEST_F(Renderer, ReadsALargeFile) {
  const std::string path = folder_.write("large", pdfDrawing({markedPage()}));
  const auto size = std::filesystem::file_size(path);
  std::filesystem::resize_file(path, size + (std::uintmax_t(1) << 30)); // takes no room on the disk
  Descriptor pdf(open(path.c_str(), O_RDWR | O_CLOEXEC));
  const std::string end =
      "startxref\n" +
      std::to_string(
          contentOf(folder_.write("small", pdfDrawing({markedPage()}))).rfind("xref\n0")) +
      "\n%%EOF\n";
  lseek(pdf.get(), 0, SEEK_END);
  ASSERT_EQ(write(pdf.get(), end.data(), end.size()), static_cast<ssize_t>(end.size()));
  const auto pages = renderPages(pdf, {{0}, 1, 500}, [] { return true; });
  ASSERT_EQ(pages.size(), 1u);
  EXPECT_EQ(pixelAt(pages[0], 10, 190), kRed);
}

/// Each form draws the next one ten times. `pages` precede the page with the first form.
std::string pdfThatTakesForever(const std::vector<std::string> &pages = {}) {
  constexpr int kForms = 12;
  std::string calls;
  for (int i = 0; i < 10; i++)
    calls += "/X Do ";
  const std::string form = "<< /Type /XObject /Subtype /Form /BBox [0 0 100 100] /Length ";
  const auto resourcesWith = [](int number) {
    return " /Resources << /XObject << /X " + std::to_string(number) + " 0 R >> >> ";
  };
  std::vector<std::string> objects{
      "<< /Type /Catalog /Pages 2 0 R >>", "",
      "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 100 100] /Contents 4 0 R" + resourcesWith(5) +
          ">>",
      streamOf(calls)};
  for (int i = 0; i < kForms; i++)
    objects.push_back(form + std::to_string(calls.size()) + resourcesWith(i + 6) + ">>\nstream\n" +
                      calls + "\nendstream");
  objects.push_back(form + "17 >>\nstream\n0 0 100 100 re f \nendstream");
  std::string kids;
  for (const std::string &page : pages) {
    objects.push_back(page);
    kids += std::to_string(objects.size()) + " 0 R ";
  }
  objects[1] = "<< /Type /Pages /Kids [" + kids + "3 0 R] /Count " +
               std::to_string(pages.size() + 1) + " >>";
  return pdfOf(objects);
}

TEST_F(Renderer, MayNotTakeLong) {
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(problemWith(pdfThatTakesForever()), RenderProblem::TooLong);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST_F(Renderer, KeepsTheFirstPageWhenTheSecondTakesTooLong) {
  const std::string content =
      pdfThatTakesForever({"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] >>"});
  const auto pages = render(content, {{0, 1}, 1, 100});
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_EQ(pages[0].width, 9);
  EXPECT_EQ(pages[1].width, 0);
}

/// A page with an image that takes more memory than the process may have.
TEST_F(Renderer, MayNotTakeMuchMemory) {
  const std::string content =
      pdfOf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
             "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 100 100] /Contents 4 0 R /Resources << "
             "/XObject "
             "<< /X 5 0 R >> >> >>",
             streamOf("100 0 0 100 0 0 cm /X Do"),
             "<< /Type /XObject /Subtype /Image /Width 1000000000 /Height 2 /BitsPerComponent 8 "
             "/ColorSpace /DeviceRGB /Length 3 >>\nstream\nabc\nendstream"});
  try {
    for (const RenderedPage &page : render(content, {{0}, 1, 100}))
      EXPECT_LE(page.width, 100);
  } catch (const RenderFailure &failure) {
    EXPECT_NE(failure.problem(), RenderProblem::Damaged);
  }
}

bool isRunning() { return runProcess({"pgrep", "-f", "print-dialog-renderer 0.123"}).status == 0; }

TEST_F(Renderer, EndsAtOnceWhenCancelled) {
  const Descriptor pdf(
      open(folder_.write("document", pdfThatTakesForever()).c_str(), O_RDONLY | O_CLOEXEC));
  const auto start = std::chrono::steady_clock::now();
  auto cancelled = start;
  const auto pages = renderPages(pdf, {{0}, 0.123, 100}, [&] {
    cancelled = std::chrono::steady_clock::now();
    return cancelled - start < std::chrono::milliseconds(300);
  });
  EXPECT_LT(std::chrono::steady_clock::now() - cancelled, std::chrono::milliseconds(500))
      << "0.2 s on an idle machine";
  EXPECT_TRUE(pages.empty());
  EXPECT_FALSE(isRunning());
}

TEST_F(Renderer, EndsWithItsParent) {
  const std::string path = folder_.write("document", pdfThatTakesForever());
  const pid_t parent = fork();
  if (parent == 0) {
    renderPages(Descriptor(open(path.c_str(), O_RDONLY)), {{0}, 0.123, 100}, [] { return true; });
    _exit(0);
  }
  EXPECT_TRUE(becomesTrue(isRunning));
  kill(parent, SIGKILL);
  waitpid(parent, nullptr, 0);
  EXPECT_TRUE(becomesTrue([] { return !isRunning(); }));
}

} // namespace

} // namespace imageposition
