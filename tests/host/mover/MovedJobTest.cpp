// Jobs of print-dialog compared with those of lp with the same options, as a printer gets them.
#include "MovedJobFixture.hpp"

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>

namespace imageposition {

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

class MovedJob : public MovedJobFixture {
protected:
  static void SetUpTestSuite() {
    startCups();
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
      expectMovedBoxes(direct, moved, 0.3); // hints move text
    }
}

TEST_F(MovedJob, ArrivesThroughDriversOfOtherKinds) {
  const struct {
    const char *queue;
    Boxes (*boxes)(const std::string &);
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
        expectMovedBoxes(direct, moved, row.tolerance);
      }
}

TEST_F(MovedJob, BeginsEachOfSeveralDocumentsWithAFront) {
  for (const Words &options :
       {Words{}, Words{"-n", "2", "-o", "Collate=True"}, Words{"-o", "outputorder=reverse"}}) {
    SCOPED_TRACE(testing::PrintToString(options));
    expectMoved("office", options, {numbered(3), numbered(2), numbered(1)});
  }
}

TEST_F(MovedJob, PadsADocumentForADriverWithABlankSide) {
  const Words documents{numbered(3), numbered(2)};
  const auto ours = print("postscript", {}, documents);
  ASSERT_EQ(ours.status, 0) << testing::PrintToString(ours);
  auto moved = boxesInPostScript(kept->contentOf(ours));
  auto direct = boxesInPostScript(kept->contentOf(lp("postscript", {}, documents)));
  ASSERT_EQ(moved.size(), 6u);
  ASSERT_EQ(direct.size(), 5u);
  EXPECT_EQ(moved[3], Boxes::value_type());
  expectMovedBoxes({direct.begin(), direct.begin() + 3}, {moved.begin(), moved.begin() + 3},
                   kTolerance);
  expectMovedBoxes({direct.begin() + 3, direct.end()}, {moved.begin() + 4, moved.end()},
                   kTolerance);
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
