#include "DocumentExaminer.hpp"

#include "DrawnPdf.hpp"
#include "FileVersion.hpp"
#include "ForbiddingPdf.hpp"
#include "PdfFile.hpp"
#include "TemporaryFolder.hpp"
#include "Waiting.hpp"

#include <atomic>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace imageposition {

namespace {

using namespace imageposition::test;

constexpr const char *kA4 = "0 0 595.276 841.89";
constexpr const char *kA5 = "0 0 419.53 595.28";

class Examiner : public testing::Test {
protected:
  Examiner() {
    examiner_.tell([this] { ended_++; });
  }

  /// Waits until the document has been examined.
  std::optional<DocumentFacts> examine(const std::string &path) {
    const int before = ended_;
    examiner_.examine(path);
    EXPECT_TRUE(becomesTrue([&] { return ended_ > before; })) << path;
    return examiner_.facts();
  }

  std::optional<DocumentFacts> examineContent(const std::string &content) {
    return examine(folder_.write("document", content));
  }

  TemporaryFolder folder_;
  std::atomic<int> ended_{0};
  DocumentExaminer examiner_;
};

TEST_F(Examiner, CallsBackAtOnceIfTheDocumentHasBeenExamined) {
  const std::string path = folder_.write("document", pdfWithPages({kA5}));
  DocumentExaminer examiner;
  examiner.examine(path);
  ASSERT_TRUE(becomesTrue([&] { return examiner.isDone(); }));
  EXPECT_EQ(examiner.path(), path);
  EXPECT_EQ(examiner.version(), fileVersion(path));
  int told = 0;
  examiner.tell([&] { told++; });
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(examiner.facts());
}

TEST_F(Examiner, CountsPagesAndMeasuresThem) {
  const auto facts = examineContent(pdfWithPages({kA5, kA5, kA5}));
  ASSERT_TRUE(facts && facts->paper);
  EXPECT_EQ(facts->pages, 3);
  EXPECT_TRUE(facts->paper->isSame({{419.53}, {595.28}}));
}

TEST_F(Examiner, MeasuresPagesAsTheReaderSeesThem) {
  for (const char *const rotation : {"/Rotate 90", "/Rotate -90", "/Rotate 450"}) {
    const auto turned = examineContent(pdfWithPages({"0 0 100 200"}, rotation));
    ASSERT_TRUE(turned && turned->paper) << rotation;
    EXPECT_EQ(turned->paper->width.count, 200) << rotation;
    EXPECT_EQ(turned->paper->length.count, 100) << rotation;
  }
  const auto upsideDown = examineContent(pdfWithPages({"0 0 100 200"}, "/Rotate 180"));
  ASSERT_TRUE(upsideDown && upsideDown->paper);
  EXPECT_EQ(upsideDown->paper->width.count, 100);
}

TEST_F(Examiner, HasNoPaperForPagesOfSeveralSizes) {
  const auto facts = examineContent(pdfWithPages({kA4, kA5}));
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->pages, 2);
  EXPECT_FALSE(facts->paper);
}

TEST_F(Examiner, MeasuresTheBoxThatIsPrinted) {
  const auto cropped = examineContent(pdfWithPages({kA4}, "/CropBox [10 10 429.53 605.28]"));
  ASSERT_TRUE(cropped && cropped->paper);
  EXPECT_TRUE(cropped->paper->isSame({{419.53}, {595.28}}));
  const auto scaled = examineContent(pdfWithPages({"0 0 100 200"}, "/UserUnit 2"));
  ASSERT_TRUE(scaled && scaled->paper);
  EXPECT_TRUE(scaled->paper->isSame({{200}, {400}}));
}

TEST_F(Examiner, ReadsADamagedTableOfObjects) {
  std::string content = pdfWithPages({kA4, kA4});
  content.replace(content.rfind("startxref"), std::string::npos, "startxref\n7\n%%EOF\n");
  const auto facts = examineContent(content);
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->pages, 2);
}

TEST_F(Examiner, FindsADocumentInTheCurrentFolderWhateverItsName) {
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder_.path());
  folder_.write("--help", pdfWithPages({kA4}));
  folder_.write("b\xE9 \xFF.pdf", pdfWithPages({kA4}));
  EXPECT_TRUE(examine("--help"));
  EXPECT_TRUE(examine("b\xE9 \xFF.pdf"));
  std::filesystem::current_path(before);
}

TEST_F(Examiner, KnowsNothingOfWhatIsNoUsablePdf) {
  const std::string loop = pdfOf(
      {"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [2 0 R 2 0 R] /Count 2 >>"});
  const std::string encrypted = [] {
    std::string content = pdfWithPages({kA4});
    content.insert(content.rfind("/Root"),
                   "/Encrypt << /Filter /Standard /V 1 /R 2 /Length 40 /P -4 /O <" +
                       std::string(64, '1') + "> /U <" + std::string(64, '2') +
                       "> >> /ID [<31323334> <31323334>] ");
    return content;
  }();
  const struct {
    const char *what;
    std::string content;
  } rows[] = {
      {"empty", ""},
      {"text", "Dear Sir or Madam"},
      {"a header alone", "%PDF-1.4\n"},
      {"cut short", pdfWithPages({kA4}).substr(0, 40)},
      {"without pages", pdfWithPages({})},
      {"pages in a loop", loop},
      {"encrypted", encrypted},
      {"deeply nested", "%PDF-1.4\n1 0 obj\n" + std::string(2'000'000, '[')},
      {"noise", "%PDF-1.4\n" + std::string(1'000'000, '\xA5')},
  };
  for (const auto &row : rows)
    EXPECT_FALSE(examineContent(row.content)) << row.what;
}

TEST_F(Examiner, KnowsWhyADocumentCannotBePrinted) {
  EXPECT_FALSE(examineContent(pdfWithPassword()));
  EXPECT_EQ(examiner_.defect(), DocumentDefect::Password);
  EXPECT_TRUE(examineContent(pdfWithPages({kA4})));
  EXPECT_FALSE(examiner_.defect());
  EXPECT_FALSE(examineContent(pdfThatForbidsPrinting()));
  EXPECT_EQ(examiner_.defect(), DocumentDefect::Forbidden);
  EXPECT_FALSE(examineContent(pdfWithPages({kA4}).substr(0, 40)));
  EXPECT_EQ(examiner_.defect(), DocumentDefect::Damaged);
  EXPECT_FALSE(examineContent("Dear reader, %PDF-1.4 is the header of a PDF file."));
  EXPECT_FALSE(examiner_.defect());
}

TEST_F(Examiner, DoesNotWaitForAPipe) {
  const std::string pipe = folder_.path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_FALSE(examine(pipe));
  EXPECT_FALSE(examine(folder_.path()));
  EXPECT_FALSE(examine(folder_.path("missing")));
  EXPECT_FALSE(examine("/dev/zero"));
}

TEST_F(Examiner, GivesUpOnAFileThatTakesTooLong) {
  const std::string path = folder_.write("large.pdf", "%PDF-1.4\n");
  std::filesystem::resize_file(path, std::uintmax_t(2) << 30); // without taking room on the disk
  EXPECT_FALSE(examine(path));
}

TEST_F(Examiner, LeavesADocumentForAnother) {
  const std::string large = folder_.write("large.pdf", "%PDF-1.4\n");
  std::filesystem::resize_file(large, std::uintmax_t(2) << 30);
  examiner_.examine(large);
  EXPECT_TRUE(examineContent(pdfWithPages({kA4})));
  examiner_.examine("");
  EXPECT_FALSE(examiner_.facts());
}

} // namespace

} // namespace imageposition
