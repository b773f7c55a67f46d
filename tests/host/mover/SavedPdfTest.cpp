// PDF files that print-dialog saves in place of a job.
#include "DrawnBoxes.hpp"
#include "DrawnPdf.hpp"
#include "FileContent.hpp"
#include "KeptJobs.hpp"
#include "ShiftedPdf.hpp"
#include "TemporaryData.hpp"

#include <fcntl.h>
#include <gmock/gmock.h>

namespace imageposition {

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

using Words = std::vector<std::string>;
using Boxes = std::vector<std::array<double, 4>>;

constexpr double kPointsPerTenth = 72 / 254.0;

class SavedPdf : public testing::Test {
protected:
  ProcessResult save(const Words &options, const std::string &printer = "duplex-plain") {
    Words words{PRINT_DIALOG, "--batch",
                "--ppd",      std::string(IMAGEPOSITION_SAMPLES) + "/" + printer + ".ppd",
                "--pdf",      saved()};
    words.insert(words.end(), options.begin(), options.end());
    return runProcess(words, {"HOME=" + folder_.path("")});
  }
  std::string saved() const { return folder_.path("saved.pdf"); }
  std::string document() { return folder_.write("pages.pdf", pdfDrawing({{}, {}, {}})); }

  static constexpr const char *kBackRight = "BackLeftRightMargin=-30 TopBottomMargin=20 "
                                            "com.morva.printsettings.19AImagePositionEnable=True";

  TemporaryFolder folder_;
};

TEST_F(SavedPdf, HasTheSidesMovedByTheirOffsetsWhoeverWouldMoveThem) {
  for (const char *const printer : {"duplex-plain", "duplex-shift"}) {
    SCOPED_TRACE(printer);
    const auto unmoved = save({document()}, printer);
    ASSERT_EQ(unmoved.status, 0) << testing::PrintToString(unmoved);
    const Boxes before = boxesInPostScript(contentOf(saved()));
    const auto moved = save({"-o", kBackRight, document()}, printer);
    ASSERT_EQ(moved.status, 0) << testing::PrintToString(moved);
    const Boxes after = boxesInPostScript(contentOf(saved()));
    ASSERT_EQ(after.size(), 3U);
    ASSERT_EQ(before.size(), 3U);
    for (std::size_t i = 0; i < after.size(); i++) {
      EXPECT_NEAR(after[i][0], before[i][0] + (i == 1 ? -30 * kPointsPerTenth : 0), 0.1);
      EXPECT_NEAR(after[i][1], before[i][1] - (i == 1 ? 0 : 20 * kPointsPerTenth), 0.1);
    }
  }
}

TEST_F(SavedPdf, IsLaidOutAsItWouldBePrinted) {
  const auto result = save({"-o", "number-up=2", "-o", "page-ranges=1-1", document()});
  ASSERT_EQ(result.status, 0) << testing::PrintToString(result);
  EXPECT_EQ(boxesInPostScript(contentOf(saved())).size(), 1U);
  ASSERT_EQ(save({"-o", "number-up=2", "-n", "3", document()}).status, 0);
  EXPECT_EQ(boxesInPostScript(contentOf(saved())).size(), 2U) << "copies are the printer's work";
}

TEST_F(SavedPdf, SaysWhereItIsAndThatItIsMoved) {
  const auto moved = save({"-o", kBackRight, document()});
  EXPECT_THAT(moved.errors, HasSubstr("The pages are in " + saved()));
  EXPECT_THAT(moved.errors, HasSubstr("print that file without any"));
  EXPECT_TRUE(isShifted(Descriptor(open(saved().c_str(), O_RDONLY))));
  const auto unmoved = save({document()});
  EXPECT_THAT(unmoved.errors, Not(HasSubstr("offsets")));
  EXPECT_FALSE(isShifted(Descriptor(open(saved().c_str(), O_RDONLY))));
  EXPECT_EQ(save({"-s", document()}).errors, "");
}

TEST_F(SavedPdf, IsWrittenFromStandardInputAndOtherTypes) {
  const auto text =
      runProcess({"sh", "-c", "echo some words | \"$0\" --batch --ppd \"$1\" --pdf \"$2\"",
                  PRINT_DIALOG, IMAGEPOSITION_SAMPLES "/duplex-plain.ppd", saved()});
  ASSERT_EQ(text.status, 0) << testing::PrintToString(text);
  EXPECT_EQ(boxesInPostScript(contentOf(saved())).size(), 1U);
}

TEST_F(SavedPdf, StaysAsItWasIfTheJobFails) {
  folder_.write("saved.pdf", "mine");
  const std::string damaged = folder_.write("damaged.pdf", "%PDF-1.4\nnothing");
  const struct {
    Words options;
    const char *message;
  } rows[] = {{{damaged}, "No file was written."},
              {{folder_.path("missing.pdf")}, "missing.pdf"},
              {{document(), document()}, "A PDF file has one document"},
              {{"--dry-run", document()}, "Leave out --ticket and --dry-run"},
              {{"--ticket", folder_.path("job.json"), document()}, "Leave out --ticket"}};
  for (const auto &row : rows) {
    const auto result = save(row.options);
    EXPECT_NE(result.status, 0);
    EXPECT_THAT(result.errors, HasSubstr(row.message));
    EXPECT_EQ(contentOf(saved()), "mine");
  }
}

TEST_F(SavedPdf, NeedsADocument) {
  const auto result =
      runProcess({"sh", "-c", "\"$0\" --batch --ppd \"$1\" --pdf \"$2\" </dev/null", PRINT_DIALOG,
                  IMAGEPOSITION_SAMPLES "/duplex-plain.ppd", saved()});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.errors, HasSubstr("Name a document to save as PDF."));
}

TEST_F(SavedPdf, NamesTheFileThatCannotBeWritten) {
  const auto result =
      runProcess({PRINT_DIALOG, "--batch", "--ppd", IMAGEPOSITION_SAMPLES "/duplex-plain.ppd",
                  "--pdf", folder_.path("no/such/folder.pdf"), document()});
  EXPECT_EQ(result.status, 6);
  EXPECT_THAT(result.errors, HasSubstr("no/such/folder.pdf"));
}

} // namespace

} // namespace imageposition
