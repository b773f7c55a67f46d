#include "ShiftedPdf.hpp"

#include "DrawnPdf.hpp"
#include "DrawnRectangles.hpp"
#include "TemporaryData.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <random>

namespace imageposition {

namespace {

using namespace imageposition::test;

constexpr double kPointsPerTenth = 72 / 254.0;
constexpr double kTolerance = 0.001; // points

struct Shifted {
  Descriptor file;
  std::size_t pages;
  std::vector<DrawnPage> drawn;
};

Shifted shifted(const std::string &pdf, const ShiftPlan &plan) {
  Descriptor result = temporaryFile();
  const std::size_t pages = shiftPages(temporaryFile(pdf), result, plan);
  auto drawn = drawnRectangles(result);
  return {std::move(result), pages, std::move(drawn)};
}

ShiftPlan planOf(Offset front, Offset back) {
  ShiftPlan plan;
  plan.front = front;
  plan.back = back;
  return plan;
}

void expectMoved(const PageRectangle &before, const PageRectangle &after, const Offset &by,
                 const std::string &what) {
  const double right = static_cast<double>(by.right.count) * kPointsPerTenth;
  const double down = static_cast<double>(by.down.count) * kPointsPerTenth;
  EXPECT_NEAR(after.left.count, before.left.count + right, kTolerance) << what;
  EXPECT_NEAR(after.right.count, before.right.count + right, kTolerance) << what;
  EXPECT_NEAR(after.top.count, before.top.count + down, kTolerance) << what;
  EXPECT_NEAR(after.bottom.count, before.bottom.count + down, kTolerance) << what;
}

TEST(ShiftPages, MovesEachSideByItsOffset) {
  const std::string pdf = pdfWithNumberedPages(5);
  const auto before = drawnRectangles(temporaryFile(pdf));
  const ShiftPlan plan = planOf({{25}, {-7}}, {{-30}, {14}});
  const Shifted after = shifted(pdf, plan);
  ASSERT_EQ(after.drawn.size(), 5u);
  for (std::size_t i = 0; i < 5; i++)
    expectMoved(before[i].rectangles.at(0), after.drawn[i].rectangles.at(0),
                i % 2 == 0 ? plan.front : plan.back, std::to_string(i));
}

TEST(ShiftPages, MovesTheRotatedPageAsItsReaderSeesIt) {
  for (const int rotation : {0, 90, 180, 270, -90, 450}) {
    PageToDraw page;
    page.rotation = rotation;
    const std::string pdf = pdfDrawing({page});
    const auto before = drawnRectangles(temporaryFile(pdf));
    const Offset offset{{25}, {-7}};
    const Shifted after = shifted(pdf, planOf(offset, {}));
    expectMoved(before[0].rectangles.at(0), after.drawn[0].rectangles.at(0), offset,
                std::to_string(rotation));
  }
}

TEST(ShiftPages, CountsInThePagesUnit) {
  PageToDraw page;
  page.more = "/UserUnit 2";
  const std::string pdf = pdfDrawing({page});
  const auto before = drawnRectangles(temporaryFile(pdf));
  const Shifted after = shifted(pdf, planOf({{20}, {0}}, {}));
  expectMoved(before[0].rectangles.at(0), after.drawn[0].rectangles.at(0), {{10}, {0}}, "");
}

TEST(ShiftPages, PadsToWholeSheetsWithABlankPageOfTheSameSize) {
  ShiftPlan plan = planOf({{10}, {0}}, {{10}, {0}});
  plan.isPadded = true;
  PageToDraw last;
  last.box = "0 0 842 595";
  last.rotation = 90;
  const Shifted odd = shifted(pdfDrawing({PageToDraw(), PageToDraw(), last}), plan);
  ASSERT_EQ(odd.drawn.size(), 4u);
  EXPECT_EQ(odd.pages, 4u);
  EXPECT_TRUE(odd.drawn[3].rectangles.empty());
  EXPECT_DOUBLE_EQ(odd.drawn[3].width.count, 595);
  EXPECT_DOUBLE_EQ(odd.drawn[3].height.count, 842);
  EXPECT_EQ(shifted(pdfWithNumberedPages(2), plan).pages, 2u);
}

TEST(ShiftPages, KeepsPagesThatShareTheirContents) {
  const std::string pdf = pdfOf(
      {"<< /Type /Catalog /Pages 2 0 R >>",
       "<< /Type /Pages /Kids [3 0 R 4 0 R 3 0 R] /Count 3 /Rotate 90 /MediaBox [0 0 595 842] >>",
       "<< /Type /Page /Parent 2 0 R /Contents [5 0 R 6 0 R] >>",
       "<< /Type /Page /Parent 2 0 R /Contents 5 0 R >>", streamOf("72 144 100 50 re f"),
       streamOf("1 1 5 5 re f")});
  const auto before = drawnRectangles(temporaryFile(pdf));
  const ShiftPlan plan = planOf({{25}, {-7}}, {{-30}, {14}});
  const Shifted after = shifted(pdf, plan);
  ASSERT_EQ(after.drawn.size(), 3u);
  for (std::size_t i = 0; i < 3; i++) {
    ASSERT_EQ(after.drawn[i].rectangles.size(), before[i].rectangles.size());
    for (std::size_t j = 0; j < before[i].rectangles.size(); j++)
      expectMoved(before[i].rectangles[j], after.drawn[i].rectangles[j],
                  i == 1 ? plan.back : plan.front, std::to_string(i));
  }
}

TEST(ShiftPages, RemembersThatTheImageWasMoved) {
  const std::string pdf = pdfWithNumberedPages(1);
  EXPECT_FALSE(isShifted(temporaryFile(pdf)));
  ShiftPlan plan = planOf({{10}, {0}}, {});
  const Shifted once = shifted(pdf, plan);
  EXPECT_TRUE(isShifted(once.file));
  const Descriptor again = temporaryFile();
  try {
    shiftPages(once.file, again, plan);
    ADD_FAILURE() << "moved twice";
  } catch (const PdfTrouble &trouble) {
    EXPECT_EQ(trouble.kind(), PdfTrouble::Kind::MovedBefore);
  }
  plan.isMovedAgain = true;
  EXPECT_EQ(shiftPages(once.file, again, plan), 1u);
}

TEST(ShiftPages, KeepsWhatOthersRememberInTheCatalogue) {
  std::string pdf = pdfWithNumberedPages(1);
  const std::string catalogue = "/Catalog";
  pdf.insert(pdf.find(catalogue) + catalogue.size(),
             " /PieceInfo << /Other << /LastModified (D:2020) /Private 7 >> >>");
  const Shifted moved = shifted(pdf, planOf({{10}, {0}}, {}));
  QPDF read;
  read.processFile(pathOf(moved.file).c_str());
  EXPECT_EQ(read.getRoot().getKey("/PieceInfo").getKey("/Other").getKey("/Private").getIntValue(),
            7);
}

TEST(ShiftPages, ReportsItsProgress) {
  std::vector<int> percents;
  const Descriptor result = temporaryFile();
  shiftPages(temporaryFile(pdfWithNumberedPages(50)), result, planOf({{10}, {0}}, {}),
             [&](int percent) { percents.push_back(percent); });
  ASSERT_FALSE(percents.empty());
  EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
  EXPECT_EQ(percents.back(), 100);
}

TEST(ShiftPages, RefusesWhatHasNoUsablePages) {
  const std::string loop = pdfOf(
      {"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [2 0 R 2 0 R] /Count 2 >>"});
  const struct {
    const char *what;
    std::string content;
  } rows[] = {
      {"empty", ""},
      {"text", "Dear Sir or Madam"},
      {"a header alone", "%PDF-1.4\n"},
      {"without pages", pdfWithPages({})},
      {"pages in a loop", loop},
      {"without a box",
       pdfOf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
              "<< /Type /Page /Parent 2 0 R >>"})},
      {"a box of words", pdfWithPages({"/a /b /c /d"})},
      {"a box with one word", pdfWithPages({"0 0 595 /d"})},
      {"a box of another count", pdfWithPages({"0 0 595"})},
      {"a box without area", pdfWithPages({"0 0 0 842"})},
      {"a box that begins where it ends", pdfWithPages({"7 7 7 7"})},
      {"deeply nested", "%PDF-1.4\n1 0 obj\n" + std::string(200'000, '[')},
      {"noise", "%PDF-1.4\n" + std::string(100'000, '\xA5')},
  };
  for (const auto &row : rows) {
    const Descriptor result = temporaryFile();
    try {
      shiftPages(temporaryFile(row.content), result, planOf({{10}, {0}}, {}));
      ADD_FAILURE() << row.what;
    } catch (const PdfTrouble &trouble) {
      EXPECT_EQ(trouble.kind(), PdfTrouble::Kind::Damaged) << row.what;
    }
  }
}

TEST(ShiftPages, MovesPagesOfAnySize) {
  for (const char *const box :
       {"0 0 14173 14173", "0 0 2.8 2.8", "595 842 0 0", "-50 -70 545 772"}) {
    PageToDraw page;
    page.box = box;
    const std::string pdf = pdfDrawing({page});
    const auto before = drawnRectangles(temporaryFile(pdf));
    const Offset offset{{-99}, {100}};
    const Shifted after = shifted(pdf, planOf(offset, {}));
    ASSERT_EQ(after.drawn.size(), 1u) << box;
    EXPECT_NEAR(std::abs(after.drawn[0].rectangles.at(0).left.count -
                         before[0].rectangles.at(0).left.count),
                99 * kPointsPerTenth, kTolerance)
        << box;
  }
}

TEST(ShiftPages, MovesALongDocumentOfMixedPages) {
  std::vector<PageToDraw> pages(3000);
  const char *const boxes[] = {"0 0 595 842",     "0 0 842 595", "595 842 0 0",
                               "-50 -70 545 772", "0 0 2.8 2.8", "0 0 14173 14173"};
  for (std::size_t i = 0; i < pages.size(); i++) {
    pages[i].box = boxes[i % 6];
    pages[i].rotation = static_cast<int>(i / 6 % 4) * 90;
  }
  const std::string pdf = pdfDrawing(pages);
  const auto before = drawnRectangles(temporaryFile(pdf));
  const ShiftPlan plan = planOf({{25}, {-7}}, {{-30}, {14}});
  const Shifted after = shifted(pdf, plan);
  ASSERT_EQ(after.drawn.size(), before.size());
  for (std::size_t i = 0; i < before.size(); i++)
    expectMoved(before[i].rectangles.at(0), after.drawn[i].rectangles.at(0),
                i % 2 == 0 ? plan.front : plan.back, std::to_string(i));
}

/// Moves the page under its contents: the other way to move an image.
Descriptor withMovedBoxes(const std::string &pdf, const Offset &offset) {
  const Descriptor source = temporaryFile(pdf);
  QPDF document;
  document.processFile(pathOf(source).c_str());
  for (QPDFPageObjectHelper page : QPDFPageDocumentHelper(document).getAllPages()) {
    const auto rotation = page.getAttribute("/Rotate", false).getIntValue();
    const double right = static_cast<double>(offset.right.count) * kPointsPerTenth;
    const double down = static_cast<double>(offset.down.count) * kPointsPerTenth;
    // The axes of the user space as the reader sees them; the box moves against the offset.
    const double x[] = {right, down, -right, -down}, y[] = {-down, right, down, -right};
    auto box = page.getMediaBox().getArrayAsRectangle();
    const auto quarter = static_cast<std::size_t>((rotation % 360 + 360) % 360 / 90);
    box.llx -= x[quarter];
    box.urx -= x[quarter];
    box.lly -= y[quarter];
    box.ury -= y[quarter];
    page.getObjectHandle().replaceKey("/MediaBox", QPDFObjectHandle::newFromRectangle(box));
  }
  Descriptor result = temporaryFile();
  FILE *const stream = fdopen(dup(result.get()), "wb");
  QPDFWriter writer(document);
  writer.setOutputFile("result", stream, true);
  writer.write();
  return result;
}

TEST(ShiftPages, PlacesAlikeWhetherTheContentsOrTheBoxesMove) {
  std::mt19937 random(20);
  const auto between = [&](int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
  };
  for (int round = 0; round < 100; round++) {
    std::vector<PageToDraw> pages(static_cast<std::size_t>(between(1, 4)));
    for (PageToDraw &page : pages) {
      const int left = between(-500, 500), bottom = between(-500, 500);
      page.box = std::to_string(left) + " " + std::to_string(bottom) + " " +
                 std::to_string(left + between(3, 3000)) + " " +
                 std::to_string(bottom + between(3, 3000));
      page.rotation = 90 * between(-4, 8);
      page.content = std::to_string(between(-100, 900)) + " " + std::to_string(between(-100, 900)) +
                     " 30 20 re f";
    }
    const std::string pdf = pdfDrawing(pages);
    const Offset offset{{between(-1000, 1000)}, {between(-1000, 1000)}};
    const Shifted one = shifted(pdf, planOf(offset, offset));
    const auto other = drawnRectangles(withMovedBoxes(pdf, offset));
    ASSERT_EQ(one.drawn.size(), other.size());
    for (std::size_t i = 0; i < other.size(); i++)
      expectMoved(other[i].rectangles.at(0), one.drawn[i].rectangles.at(0), {}, pdf);
  }
}

} // namespace

} // namespace imageposition
