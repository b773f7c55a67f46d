#include "SheetImages.hpp"

#include "BackgroundCall.hpp"
#include "DrawnPdf.hpp"
#include "ShownJob.hpp"
#include "TemporaryFolder.hpp"
#include "Waiting.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <memory>

namespace imageposition {

namespace {

using namespace imageposition::test;
using State = SheetImages::State;

constexpr std::uint32_t kPaper = 0;

/// The number of the page, from 0, that `pdfWithNumberedPages` has drawn; -1 without an image.
int pageOn(const SheetImages::Image &image) {
  if (image == nullptr)
    return -1;
  for (int x = 0; x < image->width; x++)
    for (int y = 0; y < image->height; y++)
      if (image->pixels[static_cast<std::size_t>(y * image->width + x)] != kPaper)
        return (x - 72 + 5) / 10;
  return -2;
}

class JobsSheets : public testing::Test {
protected:
  void SetUp() override {
    setenv("XDG_CONFIG_HOME", folder_.path("config").c_str(), 1);
    setenv("XDG_CACHE_HOME", folder_.path("cache").c_str(), 1);
    job_ = std::make_unique<PrintJob>(
        arguments_,
        OpenedPrinter{"office", std::make_unique<PrinterDescription>(PrinterDescription::fromFile(
                                    IMAGEPOSITION_SAMPLES "/duplex-plain.ppd"))});
  }
  void TearDown() override {
    images_.reset(); // its threads use what the process destroys at its end
    EXPECT_TRUE(becomesTrue([] { return RunningCall::count() == 0; }));
    unsetenv("XDG_CONFIG_HOME");
    unsetenv("XDG_CACHE_HOME");
  }

  void show(const std::string &content, int pages, double pixelsPerPoint = 1) {
    path_ = folder_.write("document", content);
    pages_ = pages;
    job_->setDocuments({path_});
    show();
    images_->setScale(pixelsPerPoint);
  }

  /// After a change of the job's settings.
  void show() {
    job_->printer().mark(job_->settings());
    images_->show(documentToShow(*job_, {}, pages_));
  }

  bool waitFor(State state) {
    return becomesTrue([&] {
      take();
      return images_->state() == state;
    });
  }

  void take() {
    if (isChanged_.exchange(false))
      images_->take();
  }

  /// Of the visible sheet.
  std::pair<int, int> pages() const { return {pageOn(images_->front()), pageOn(images_->back())}; }

  bool waitForPages(int front, int back) {
    return becomesTrue([&] {
      take();
      return pages() == std::pair(front, back);
    });
  }

  const TemporaryFolder folder_;
  Arguments arguments_;
  std::unique_ptr<PrintJob> job_;
  std::string path_;
  int pages_ = 0;
  std::atomic<bool> isChanged_{false};
  std::unique_ptr<SheetImages> images_ =
      std::make_unique<SheetImages>([this] { isChanged_ = true; });
};

TEST_F(JobsSheets, ShowBothSidesOfTheFirstSheet) {
  show(pdfWithNumberedPages(5), 5);
  EXPECT_EQ(images_->state(), State::Loading);
  ASSERT_TRUE(waitFor(State::Shown));
  EXPECT_EQ(pages(), std::pair(0, 1));
  EXPECT_EQ(images_->order().sheets(), 3);
}

TEST_F(JobsSheets, TurnToEverySheet) {
  show(pdfWithNumberedPages(5), 5);
  images_->turnTo(1);
  EXPECT_TRUE(waitForPages(2, 3));
  images_->turnTo(2);
  EXPECT_TRUE(waitForPages(4, -1));
  EXPECT_TRUE(waitFor(State::Shown));
  images_->turnTo(99);
  EXPECT_EQ(images_->sheet(), 2);
  images_->turnTo(-1);
  EXPECT_TRUE(waitForPages(0, 1));
}

TEST_F(JobsSheets, AreThereAlthoughAKeyIsHeldAtTheLastSheet) {
  show(pdfWithNumberedPages(5), 5);
  EXPECT_TRUE(becomesTrue([&] {
    images_->turnTo(images_->sheet() + 1);
    take();
    return pages() == std::pair(4, -1);
  }));
}

TEST_F(JobsSheets, AreAllSmallerWhereAnotherPageIsLargerThanThePaper) {
  std::vector<PageToDraw> pages(3);
  pages[2].box = "0 0 842 1190";
  show(pdfDrawing(pages), 0); // laid out from the whole document
  ASSERT_TRUE(waitFor(State::Shown));
  EXPECT_GT(pageOn(images_->front()), 0) << "further right";
}

TEST_F(JobsSheets, HaveTheNeighboursReady) {
  show(pdfWithNumberedPages(20), 20, 0.5);
  ASSERT_TRUE(waitFor(State::Shown));
  int changes = 0; // the visible sheet, then its neighbour
  EXPECT_TRUE(becomesTrue([&] {
    changes += isChanged_.exchange(false) && images_->take() ? 1 : 0;
    return changes == 1;
  }));
  images_->turnTo(1);
  EXPECT_EQ(images_->state(), State::Shown);
}

TEST_F(JobsSheets, OfALongDocumentAreLaidOutWhereTheUserLooks) {
  constexpr int kDifferent = 40; // fit beside each other
  std::vector<PageToDraw> pages(60);
  for (std::size_t i = 0; i < pages.size(); i++)
    pages[i].content = std::to_string(72 + 10 * (i % kDifferent)) + " 144 100 50 re f";
  show(pdfDrawing(pages), 60);
  for (int sheet = 29; sheet >= 18; sheet--) {
    images_->turnTo(sheet);
    EXPECT_TRUE(waitForPages(2 * sheet % kDifferent, (2 * sheet + 1) % kDifferent)) << sheet;
  }
}

TEST_F(JobsSheets, FollowTheChoiceOfPages) {
  job_->settings().set("page-ranges", "2-3,8");
  show(pdfWithNumberedPages(9), 9);
  EXPECT_TRUE(waitForPages(1, 2));
  EXPECT_EQ(images_->order().sheets(), 2);
  job_->settings().set("page-set", "even");
  show();
  EXPECT_TRUE(waitForPages(1, 7));
  EXPECT_EQ(images_->order().sheets(), 1);
}

TEST_F(JobsSheets, ShowNothingIfNoPageIsPrinted) {
  job_->settings().set("page-ranges", "7-9");
  show(pdfWithNumberedPages(3), 3);
  EXPECT_EQ(images_->state(), State::None);
}

TEST_F(JobsSheets, OfOneSidedJobsHaveFrontsOnly) {
  job_->settings().set("Duplex", "None");
  show(pdfWithNumberedPages(3), 3);
  ASSERT_TRUE(waitFor(State::Shown));
  EXPECT_EQ(pages(), std::pair(0, -1));
  EXPECT_EQ(images_->order().sheets(), 3);
}

TEST_F(JobsSheets, OfReversedJobsHaveTheFirstPageOnTheBack) {
  job_->settings().set("OutputOrder", "Reverse");
  show(pdfWithNumberedPages(3), 3);
  EXPECT_TRUE(waitForPages(1, 0));
}

TEST_F(JobsSheets, ShowSeveralPagesPerSide) {
  job_->settings().set("number-up", "2");
  show(pdfWithNumberedPages(9), 9);
  ASSERT_TRUE(waitFor(State::Shown));
  EXPECT_EQ(images_->order().sheets(), 3);
  EXPECT_EQ(images_->order().pagesInWords(0), "1-4");
  ASSERT_NE(images_->front(), nullptr);
  EXPECT_LT(images_->front()->width, images_->front()->height) << "the sheet stands upright";
}

TEST_F(JobsSheets, OfBookletsAreLaidOutFromTheWholeDocument) {
  job_->settings().set("booklet", "true");
  job_->settings().set("number-up", "2");
  show(pdfWithNumberedPages(8), 8);
  ASSERT_TRUE(waitFor(State::Shown));
  EXPECT_EQ(images_->order().sheets(), 2);
  EXPECT_EQ(images_->order().pagesInWords(0), "");
}

TEST_F(JobsSheets, AreMadeOfTextToo) {
  show("Hello\n\fand goodbye\n\fthen\n", 0);
  ASSERT_TRUE(waitFor(State::Shown));
  EXPECT_EQ(images_->order().sheets(), 2);
  EXPECT_NE(images_->front(), nullptr);
  EXPECT_NE(images_->back(), nullptr);
}

TEST_F(JobsSheets, OfAnotherDocumentReplaceTheFirst) {
  show(pdfWithNumberedPages(5), 5);
  ASSERT_TRUE(waitFor(State::Shown));
  images_->turnTo(2);
  const std::string other = folder_.write("other", pdfWithNumberedPages(1));
  job_->setDocuments({other});
  images_->show(documentToShow(*job_, {}, 1));
  EXPECT_EQ(images_->sheet(), 0);
  EXPECT_EQ(images_->front(), nullptr) << "of the first document";
  EXPECT_TRUE(waitForPages(0, -1));
}

TEST_F(JobsSheets, StayUntilTheChangedOnesAreThere) {
  show(pdfWithNumberedPages(4), 4);
  ASSERT_TRUE(waitFor(State::Shown));
  job_->settings().set("mirror", "true");
  show();
  EXPECT_EQ(pages(), std::pair(0, 1));
  EXPECT_TRUE(becomesTrue([&] {
    take();
    return pages().first > 1; // the rectangle stands on the other side
  }));
}

TEST_F(JobsSheets, AreNotFetchedAgainForOffsetsAndCopies) {
  show(pdfWithNumberedPages(4), 4);
  const auto before = documentToShow(*job_, {}, 4);
  job_->settings().set("LeftRightMargin", "5");
  job_->settings().set("copies", "3");
  const auto after = documentToShow(*job_, {}, 4);
  ASSERT_TRUE(before && after);
  EXPECT_EQ(before->identity, after->identity);
}

TEST_F(JobsSheets, AreRenderedAgainInAnotherSize) {
  show(pdfWithNumberedPages(2), 2);
  ASSERT_TRUE(waitFor(State::Shown));
  const int width = images_->front()->width;
  images_->setScale(2);
  EXPECT_NE(images_->front(), nullptr) << "the smaller one stays meanwhile";
  EXPECT_TRUE(becomesTrue([&] {
    take();
    return images_->front()->width >= 2 * width - 1;
  }));
}

TEST_F(JobsSheets, AreFetchedOnlyOnTheSideThatIsNeeded) {
  show(pdfWithNumberedPages(4), 4);
  ASSERT_TRUE(waitFor(State::Shown));
  const int width = images_->front()->width;
  images_->setScale(2, SheetImages::Needed::Front);
  EXPECT_TRUE(becomesTrue([&] {
    take();
    return images_->front()->width >= 2 * width - 1;
  }));
  EXPECT_EQ(images_->back()->width, width);
  images_->turnTo(1);
  ASSERT_TRUE(waitFor(State::Shown));
  EXPECT_EQ(images_->back(), nullptr);
  images_->setScale(2, SheetImages::Needed::Back);
  EXPECT_TRUE(waitFor(State::Shown));
  EXPECT_GE(images_->back()->width, 2 * width - 1);
}

TEST_F(JobsSheets, OfADamagedDocumentFail) {
  for (const std::string &content : {std::string("%PDF-1.7\nnothing of the kind\n"),
                                     pdfWithPassword(), std::string("\0\1\2", 3)}) {
    show(content, 0);
    EXPECT_TRUE(waitFor(State::Failed));
    EXPECT_EQ(images_->front(), nullptr);
  }
}

TEST_F(JobsSheets, SayWhyThereAreNone) {
  const struct {
    std::string content;
    MoveProblem problem;
  } rows[] = {{"%PDF-1.7\nnothing of the kind\n", MoveProblem::Damaged},
              {pdfWithPassword(), MoveProblem::Encrypted},
              {std::string("\0\1\2", 3), MoveProblem::NoConversion}};
  for (const auto &row : rows) {
    show(row.content, 0);
    EXPECT_TRUE(waitFor(State::Failed));
    EXPECT_EQ(images_->problem(), row.problem) << row.content;
  }
}

TEST_F(JobsSheets, FailIfTheDocumentHasFewerPagesThanItSays) {
  show(pdfWithNumberedPages(2), 9);
  EXPECT_TRUE(waitFor(State::Failed));
  EXPECT_EQ(images_->order().sheets(), 0) << "cannot be turned or enlarged";
}

TEST_F(JobsSheets, WithoutADocumentAreNone) {
  show(pdfWithNumberedPages(2), 2);
  ASSERT_TRUE(waitFor(State::Shown));
  images_->show(std::nullopt);
  EXPECT_EQ(images_->state(), State::None);
  EXPECT_EQ(images_->front(), nullptr);
}

TEST_F(JobsSheets, AreNotFetchedFromAPipeOrAFolder) {
  pages_ = 0;
  for (const std::string &path :
       {folder_.path(""), std::string("-"), std::string("/dev/null"), folder_.path("missing")}) {
    job_->setDocuments({path});
    EXPECT_FALSE(documentToShow(*job_, {}, 0)) << path;
  }
}

TEST_F(JobsSheets, AreOfTheFirstDocumentWhichIsNamedAmongOthers) {
  const std::string first = folder_.write("first.pdf", pdfWithNumberedPages(1));
  const std::string second = folder_.write("second.pdf", pdfWithNumberedPages(1));
  job_->setDocuments({first, second});
  EXPECT_EQ(documentToShow(*job_, {}, 1).value().name, "first.pdf");
  job_->setDocuments({first});
  EXPECT_EQ(documentToShow(*job_, {}, 1).value().name, "");
}

TEST_F(JobsSheets, AreForgottenWhileTheyAreFetched) {
  for (int i = 0; i < 20; i++) {
    show(pdfWithNumberedPages(3 + i), 3 + i);
    images_->turnTo(i % 3);
  }
  images_->show(std::nullopt);
  EXPECT_EQ(images_->state(), State::None);
}

} // namespace

} // namespace imageposition
