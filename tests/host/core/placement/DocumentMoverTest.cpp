#include "DocumentMover.hpp"

#include "DrawnPdf.hpp"
#include "DrawnRectangles.hpp"
#include "ForbiddingPdf.hpp"
#include "ProcessRun.hpp"
#include "TemporaryData.hpp"
#include "TemporaryFolder.hpp"
#include "Waiting.hpp"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace imageposition {

namespace {

using namespace imageposition::test;
using testing::HasSubstr;

constexpr double kPointsPerTenth = 72 / 254.0;

constexpr const char *kPpd = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TEST.PPD"
*Product: "(Test)"
*Manufacturer: "Test"
*ModelName: "Test"
*ShortNickName: "Test"
*NickName: "Test"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*cupsFilter: "application/vnd.cups-pdf 0 -"
*OpenUI *PageSize: PickOne
*DefaultPageSize: A4
*PageSize A4: ""
*PageSize A5: ""
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: A4
*PageRegion A4: ""
*PageRegion A5: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4: "18 36 577 806"
*ImageableArea A5: "18 36 402 559"
*DefaultPaperDimension: A4
*PaperDimension A4: "595 842"
*PaperDimension A5: "420 595"
*OpenUI *Duplex: PickOne
*DefaultDuplex: DuplexNoTumble
*Duplex DuplexNoTumble: ""
*Duplex None: ""
*CloseUI: *Duplex
)ppd";

class DocumentMover : public testing::Test {
protected:
  DocumentMover() : before_(std::getenv("TMPDIR") != nullptr ? std::getenv("TMPDIR") : "") {
    setenv("TMPDIR", folder_.path().c_str(), 1);
    const auto programs = layoutPrograms();
    EXPECT_TRUE(programs) << "cups-filters is not installed";
    if (programs) {
      task_.filters = programs->filters;
      task_.chooser = programs->chooser;
    }
    task_.title = "test";
    task_.user = "ann";
    task_.options = "OutputOrder=Normal emit-jcl=false";
    task_.plan.front = {{25}, {-7}};
    task_.plan.back = {{-30}, {14}};
    task_.verdict = cache_.path("verdict");
  }
  ~DocumentMover() override {
    before_.empty() ? unsetenv("TMPDIR") : setenv("TMPDIR", before_.c_str(), 1);
    EXPECT_EQ(folder_.fileCount(), 0u) << "a temporary file is left";
  }

  std::optional<MovedDocument> move(
      const std::string &content, const MoveProgress &progress = [](int) { return true; }) {
    return moveDocument(task_, temporaryFile(content), "report", kPpd, progress);
  }

  MoveProblem problemWith(const std::string &content) {
    try {
      move(content);
      ADD_FAILURE() << "moved";
    } catch (const ShiftFailure &failure) {
      message_ = failure.what();
      reason_ = failure.reason();
      return failure.problem();
    }
    return MoveProblem::Fault;
  }

  /// Programs in place of CUPS's.
  void replaceFilters(const std::string &script) {
    programs_.write("filter/pdftopdf", "#!/bin/sh\n" + script);
    chmod(programs_.path("filter/pdftopdf").c_str(), 0755);
    task_.filters = programs_.path("filter");
  }

  TemporaryFolder folder_, cache_, programs_;
  const std::string before_;
  MoverTask task_;
  std::string message_, reason_;
};

TEST_F(DocumentMover, LaysOutAndMovesADocument) {
  const auto moved = move(pdfWithNumberedPages(3));
  ASSERT_TRUE(moved);
  EXPECT_EQ(moved->pages, 3);
  const auto pages = drawnRectangles(moved->file);
  ASSERT_EQ(pages.size(), 3u);
  for (std::size_t i = 0; i < 3; i++) {
    const Offset &by = i == 1 ? task_.plan.back : task_.plan.front;
    const PageRectangle &one = pages[i].rectangles.at(0);
    EXPECT_NEAR(one.left.count,
                72 + 10.0 * static_cast<double>(i) +
                    static_cast<double>(by.right.count) * kPointsPerTenth,
                0.01);
    EXPECT_NEAR(one.bottom.count, 842 - 144 + static_cast<double>(by.down.count) * kPointsPerTenth,
                0.01);
  }
}

TEST_F(DocumentMover, LaysOutAsTheOptionsSay) {
  task_.options = "number-up=2 page-ranges=1 OutputOrder=Normal emit-jcl=false";
  const auto moved = move(pdfWithNumberedPages(4));
  ASSERT_TRUE(moved);
  EXPECT_EQ(moved->pages, 1);
  EXPECT_EQ(drawnRectangles(moved->file).at(0).rectangles.size(), 2u);
}

TEST_F(DocumentMover, ConvertsTextAndImagesAndPostScript) {
  const std::string picture = "P3\n2 2\n255\n255 0 0 0 255 0 0 0 255 0 0 0\n";
  const std::string postScript = "%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n72 144 "
                                 "100 50 rectfill showpage\n%%EOF\n";
  const struct {
    const char *what;
    std::string content;
  } rows[] = {{"text", "Dear Sir or Madam\n"}, {"an image", picture}, {"PostScript", postScript}};
  for (const auto &row : rows) {
    const auto moved = move(row.content);
    ASSERT_TRUE(moved) << row.what;
    EXPECT_EQ(moved->pages, 1) << row.what;
  }
}

TEST_F(DocumentMover, DoesWithoutTheChooserForPdfAlone) {
  task_.chooser.clear();
  EXPECT_TRUE(move(pdfWithNumberedPages(1)));
  EXPECT_EQ(problemWith("Dear Sir or Madam\n"), MoveProblem::NoConversion);
}

TEST_F(DocumentMover, RespectsTheOwnerOfTheDocumentForSomePagesToo) {
  task_.pages = "1";
  EXPECT_EQ(problemWith(pdfThatForbidsPrinting()), MoveProblem::Forbidden);
}

TEST_F(DocumentMover, SaysWhyADocumentCannotBeMoved) {
  const struct {
    std::string content;
    MoveProblem problem;
    const char *message;
  } rows[] = {
      {pdfWithPassword(), MoveProblem::Encrypted, "protected by a password"},
      {pdfThatForbidsPrinting(), MoveProblem::Forbidden, "does not allow printing"},
      {"%PDF-1.4\nnothing", MoveProblem::Damaged, "damaged"},
      {std::string("\x7f"
                   "ELF\0\0\0\1\2\3",
                   11),
       MoveProblem::NoConversion, "does not read this type"},
  };
  for (const auto &row : rows) {
    EXPECT_EQ(problemWith(row.content), row.problem) << row.message;
    EXPECT_THAT(message_, HasSubstr(row.message));
    EXPECT_THAT(message_, HasSubstr("\"report\""));
    const bool isPrintable =
        row.problem != MoveProblem::Encrypted && row.problem != MoveProblem::Forbidden;
    const char *const advice = " To print without moving the image, use --no-shift.";
    EXPECT_EQ(message_, isPrintable ? reason_ + advice : reason_);
  }
}

TEST_F(DocumentMover, RefusesWhatWasMovedBefore) {
  const auto moved = move(pdfWithNumberedPages(1));
  ASSERT_TRUE(moved);
  EXPECT_EQ(problemWith(contentOf(pathOf(moved->file))), MoveProblem::MovedBefore);
}

TEST_F(DocumentMover, RefusesFiltersThatLayOutInAnotherWay) {
  const std::string real = task_.filters + "/pdftopdf";
  // Scales each page to half its size, as a version with other defaults might.
  replaceFilters("exec " + real + " \"$1\" \"$2\" \"$3\" \"$4\" \"$5 number-up=2\" \"$6\"");
  EXPECT_EQ(problemWith(pdfWithNumberedPages(1)), MoveProblem::OtherLayout);
  EXPECT_THAT(message_, HasSubstr("reliably"));
}

TEST_F(DocumentMover, ChecksTheLayoutOncePerVersionOfTheFilters) {
  const std::string real = task_.filters + "/pdftopdf";
  const std::string runs = cache_.path("runs");
  const auto countedRuns = [&] { return contentOf(runs).size(); };
  replaceFilters("printf x >> " + runs + "\nexec " + real + " \"$@\"");
  ASSERT_TRUE(move(pdfWithNumberedPages(1)));
  EXPECT_EQ(countedRuns(), 3u); // twice for the check
  ASSERT_TRUE(move(pdfWithNumberedPages(1)));
  EXPECT_EQ(countedRuns(), 4u);
  replaceFilters("printf x >> " + runs + "\nexec " + real + " \"$@\" # another version");
  ASSERT_TRUE(move(pdfWithNumberedPages(1)));
  EXPECT_EQ(countedRuns(), 7u);
}

TEST_F(DocumentMover, ReportsTheFiltersError) {
  const std::string real = task_.filters + "/pdftopdf";
  replaceFilters("case \"$5\" in *fail*) echo 'ERROR: out of \033[2J toner' >&2; exit 1;; esac\n"
                 "exec " +
                 real + " \"$@\"");
  task_.options += " fail=1";
  EXPECT_EQ(problemWith(pdfWithNumberedPages(1)), MoveProblem::Layout);
  EXPECT_THAT(message_, HasSubstr("out of  [2J toner"));
}

/// Whether a process with these words in its command line is running.
bool isRunning(const std::string &words) { return runProcess({"pgrep", "-f", words}).status == 0; }

TEST_F(DocumentMover, CancelsAtOnceAndLeavesNothing) {
  const std::string real = task_.filters + "/pdftopdf";
  replaceFilters("case \"$5\" in *wait*) touch $TMPDIR/scratch; (setsid sleep 987654 &) ; sleep "
                 "987654;; esac\nexec " +
                 real + " \"$@\"");
  task_.options += " wait=1";
  EXPECT_FALSE(move(pdfWithNumberedPages(1), [](int) { return !isRunning("sleep 987654"); }));
  EXPECT_FALSE(isRunning("sleep 987654"));
}

TEST_F(DocumentMover, EndsWithItsParent) {
  const std::string real = task_.filters + "/pdftopdf";
  replaceFilters("case \"$5\" in *wait*) touch $TMPDIR/scratch; (setsid sleep 876543 &) ; sleep "
                 "876543;; esac\nexec " +
                 real + " \"$@\"");
  task_.options += " wait=1";
  const pid_t parent = fork();
  if (parent == 0) {
    move(pdfWithNumberedPages(1));
    _exit(0);
  }
  EXPECT_TRUE(becomesTrue([] { return isRunning("sleep 876543"); }));
  kill(parent, SIGKILL);
  waitpid(parent, nullptr, 0);
  EXPECT_TRUE(becomesTrue([] { return !isRunning("sleep 876543"); }));
  EXPECT_TRUE(becomesTrue([&] { return folder_.fileCount() == 0; }));
}

TEST_F(DocumentMover, KeepsTheUsersEnvironmentFromFilters) {
  const std::string real = task_.filters + "/pdftopdf";
  replaceFilters("env > " + cache_.path("environment") + "\nexec " + real + " \"$@\"");
  setenv("LD_SECRET", "hidden", 1);
  ASSERT_TRUE(move(pdfWithNumberedPages(1)));
  unsetenv("LD_SECRET");
  const std::string environment = contentOf(cache_.path("environment"));
  EXPECT_THAT(environment, HasSubstr("PPD="));
  EXPECT_THAT(environment, testing::Not(HasSubstr("LD_SECRET")));
}

} // namespace

} // namespace imageposition
