#include "DrawnRectangles.hpp"

#include "DrawnPdf.hpp"
#include "ShiftedPdf.hpp"
#include "TemporaryData.hpp"

#include <gtest/gtest.h>

namespace imageposition {

namespace {

using namespace imageposition::test;

DrawnPage drawn(const PageToDraw &page) {
  return drawnRectangles(temporaryFile(pdfDrawing({page}))).at(0);
}

TEST(DrawnRectangles, StandWhereTheReaderSeesThem) {
  const struct {
    PageToDraw page;
    double width, left, top, right, bottom;
  } rows[] = {
      {{"0 0 595 842", 0, "", "72 144 100 50 re f"}, 595, 72, 648, 172, 698},
      {{"0 0 595 842", 90, "", "72 144 100 50 re f"}, 842, 144, 72, 194, 172},
      {{"0 0 595 842", 180, "", "72 144 100 50 re f"}, 595, 423, 144, 523, 194},
      {{"0 0 595 842", 270, "", "72 144 100 50 re f"}, 842, 648, 423, 698, 523},
      {{"10 20 605 862", 0, "", "82 164 100 50 re f"}, 595, 72, 648, 172, 698},
      {{"0 0 595 842", 0, "", "q 1 0 0 1 72 100 cm q 2 0 0 2 0 44 cm Q 0 44 100 50 re f Q"},
       595,
       72,
       648,
       172,
       698},
  };
  for (const auto &row : rows) {
    const DrawnPage page = drawn(row.page);
    EXPECT_DOUBLE_EQ(page.width.count, row.width);
    ASSERT_EQ(page.rectangles.size(), 1u);
    const PageRectangle &one = page.rectangles[0];
    EXPECT_NEAR(one.left.count, row.left, 1e-6) << row.page.rotation;
    EXPECT_NEAR(one.top.count, row.top, 1e-6) << row.page.rotation;
    EXPECT_NEAR(one.right.count, row.right, 1e-6) << row.page.rotation;
    EXPECT_NEAR(one.bottom.count, row.bottom, 1e-6) << row.page.rotation;
  }
}

TEST(DrawnRectangles, AreFoundInForms) {
  const std::string form =
      "<< /Type /XObject /Subtype /Form /BBox [0 0 9 9] /Matrix [1 0 0 1 2 3] /Length 14 >>\n"
      "stream\n70 141 5 5 re f\nendstream";
  const std::string content = "q 1 0 0 1 10 20 cm /X Do Q";
  const std::string pdf =
      pdfOf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
             "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R /Resources << "
             "/XObject << /X 5 0 R >> >> >>",
             streamOf(content), form});
  const auto pages = drawnRectangles(temporaryFile(pdf));
  ASSERT_EQ(pages.at(0).rectangles.size(), 1u);
  EXPECT_NEAR(pages[0].rectangles[0].left.count, 82, 1e-6);
  EXPECT_NEAR(pages[0].rectangles[0].bottom.count, 842 - 164, 1e-6);
}

TEST(DrawnRectangles, EndForAFormThatDrawsItself) {
  const std::string form =
      "<< /Type /XObject /Subtype /Form /BBox [0 0 9 9] /Resources << /XObject "
      "<< /X 5 0 R >> >> /Length 19 >>\nstream\n0 0 5 5 re f /X Do \nendstream";
  const std::string pdf =
      pdfOf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
             "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R /Resources << "
             "/XObject << /X 5 0 R >> >> >>",
             streamOf("/X Do"), form});
  EXPECT_LT(drawnRectangles(temporaryFile(pdf)).at(0).rectangles.size(), 20u);
}

TEST(DrawnRectangles, RefuseWhatIsNoPdf) {
  EXPECT_THROW(drawnRectangles(temporaryFile("Dear Sir or Madam")), PdfTrouble);
  EXPECT_THROW(drawnRectangles(temporaryFile()), PdfTrouble);
}

} // namespace

} // namespace imageposition
