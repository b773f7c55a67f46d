#include "ChosenPages.hpp"

#include "DrawnPdf.hpp"
#include "DrawnRectangles.hpp"
#include "PdfDocument.hpp"
#include "TemporaryData.hpp"

#include <gtest/gtest.h>
#include <qpdf/QPDF.hh>
#include <utility>
#include <vector>

namespace imageposition {

namespace {

using namespace imageposition::test;

Descriptor chosen(const std::string &pdf, const char *pages) {
  Descriptor result = temporaryFile();
  choosePages(temporaryFile(pdf), result, PageRanges::parse(pages));
  return result;
}

std::vector<int> numbersOf(const Descriptor &file) {
  std::vector<int> numbers;
  for (const DrawnPage &page : drawnRectangles(file))
    numbers.push_back(static_cast<int>(page.rectangles.at(0).left.count - 72 + 0.5) / 10 + 1);
  return numbers;
}

TEST(ChosenPages, AreTheOnlyOnesLeft) {
  const std::string pdf = pdfWithNumberedPages(9);
  EXPECT_EQ(numbersOf(chosen(pdf, "2-3,8")), (std::vector<int>{2, 3, 8}));
  EXPECT_EQ(numbersOf(chosen(pdf, "8-")), (std::vector<int>{8, 9}));
  EXPECT_EQ(numbersOf(chosen(pdf, "9,20-30")), (std::vector<int>{9}));
}

TEST(ChosenPages, OfALongDocumentMakeAShortFile) {
  const Descriptor all = temporaryFile(pdfWithNumberedPages(500));
  const Descriptor few = chosen(pdfWithNumberedPages(500), "100-102");
  EXPECT_LT(lseek(few.get(), 0, SEEK_END) * 20, lseek(all.get(), 0, SEEK_END));
}

TEST(ChosenPages, KeepWhatTheyInherit) {
  const std::string pdf =
      pdfOf({"<< /Type /Catalog /Pages 2 0 R >>",
             "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 /Rotate 90 "
             "/MediaBox [0 0 300 400] /Resources << >> >>",
             "<< /Type /Page /Parent 2 0 R >>", "<< /Type /Page /Parent 2 0 R >>"});
  withPdf(chosen(pdf, "2"), [](QPDF &document) {
    QPDFObjectHandle page = document.getAllPages().at(0);
    EXPECT_EQ(page.getKey("/Rotate").getIntValue(), 90);
    EXPECT_EQ(page.getKey("/MediaBox").getArrayItem(3).getIntValue(), 400);
  });
}

TEST(ChosenPages, AreFoundInATreeOfManyNodes) {
  const std::string page = "<< /Type /Page /Parent 3 0 R /MediaBox [0 0 ";
  const std::string pdf =
      pdfOf({"<< /Type /Catalog /Pages 2 0 R >>",
             "<< /Type /Pages /Kids [3 0 R 6 0 R 7 0 R 6 0 R] /Count 5 /Rotate 90 >>",
             "<< /Type /Pages /Parent 2 0 R /Kids [4 0 R 5 0 R] /Count 2 /Rotate 180 >>",
             page + "10 10] >>", page + "20 20] /Rotate 270 >>", page + "30 30] >>",
             "<< /Type /Pages /Parent 2 0 R /Kids [<< /Type /Page /MediaBox [0 0 40 40] >>] "
             "/Count 1 >>"});
  std::vector<std::pair<long long, long long>> sizesAndTurns;
  withPdf(chosen(pdf, "1-9"), [&](QPDF &document) {
    for (QPDFObjectHandle found : document.getAllPages())
      sizesAndTurns.emplace_back(found.getKey("/MediaBox").getArrayItem(2).getIntValue(),
                                 found.getKey("/Rotate").getIntValue());
  });
  EXPECT_EQ(sizesAndTurns, (std::vector<std::pair<long long, long long>>{
                               {10, 180}, {20, 270}, {30, 90}, {40, 90}, {30, 90}}));
}

TEST(ChosenPages, AreCountedFromTheRootOfTheTree) {
  const std::string page = "<< /Type /Page /MediaBox [0 0 10 10] /Parent ";
  for (const std::string named : {"2", "4", "5"}) {
    const std::string pdf =
        pdfOf({"<< /Type /Catalog /Pages " + named + " 0 R >>",
               "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>", page + "2 0 R /Rotate 90 >>",
               "<< /Type /Pages /Parent 2 0 R /Kids [5 0 R] /Count 1 >>", page + "4 0 R >>"});
    withPdf(chosen(pdf, "1"), [&](QPDF &document) {
      QPDFObjectHandle first = document.getAllPages().at(0);
      EXPECT_TRUE(first.hasKey("/Rotate")) << named;
    });
  }
}

TEST(ChosenPages, RefuseALoopInThePageTree) {
  EXPECT_THROW(chosen(pdfOf({"<< /Type /Catalog /Pages 2 0 R >>",
                             "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                             "<< /Type /Pages /Kids [2 0 R] /Count 1 >>"}),
                      "1"),
               PdfTrouble);
}

TEST(ChosenPages, KeepTheLayersAndFormsOfTheDocument) {
  const std::string pdf =
      pdfOf({"<< /Type /Catalog /Pages 2 0 R /OCProperties << /OCGs [] /D << >> >> "
             "/AcroForm << /Fields [] >> /Outlines 3 0 R >>",
             "<< /Type /Pages /Kids [4 0 R] /Count 1 >>", "<< /Type /Outlines /Count 0 >>",
             "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 100 100] >>"});
  withPdf(chosen(pdf, "1"), [](QPDF &document) {
    EXPECT_TRUE(document.getRoot().hasKey("/OCProperties"));
    EXPECT_TRUE(document.getRoot().hasKey("/AcroForm"));
    EXPECT_FALSE(document.getRoot().hasKey("/Outlines")) << "leads to other pages";
  });
}

TEST(ChosenPages, KeepTheirFieldsOfAFormWithoutTheOtherPages) {
  const std::string page = "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 ";
  const std::string field = "<< /Type /Annot /Subtype /Widget /FT /Tx /P ";
  const std::string pdf =
      pdfOf({"<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [5 0 R 6 0 R] >> >>",
             "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>", page + "30 30] /Annots [5 0 R] >>",
             page + "40 40] /Annots [6 0 R] >>", field + "3 0 R /T (first) >>",
             field + "4 0 R /T (second) >>"});
  withPdf(chosen(pdf, "2"), [](QPDF &document) {
    QPDFObjectHandle only = document.getAllPages().at(0);
    QPDFObjectHandle fields = document.getRoot().getKey("/AcroForm").getKey("/Fields");
    EXPECT_EQ(only.getKey("/Annots").getArrayItem(0).getObjGen(),
              fields.getArrayItem(1).getObjGen());
    EXPECT_EQ(fields.getArrayItem(1).getKey("/P").getObjGen(), only.getObjGen());
    EXPECT_TRUE(fields.getArrayItem(0).getKey("/P").isNull()) << "a page that was not chosen";
  });
}

TEST(ChosenPages, ThatDoNotExistAreATrouble) {
  EXPECT_THROW(chosen(pdfWithNumberedPages(3), "4-"), PdfTrouble);
  EXPECT_THROW(chosen("no document", "1"), PdfTrouble);
  EXPECT_THROW(chosen(pdfWithPassword(), "1"), PdfTrouble);
}

} // namespace

} // namespace imageposition
