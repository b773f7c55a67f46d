#include "MoverTask.hpp"

#include <gtest/gtest.h>

namespace imageposition {

namespace {

MoverTask taskOfEverything() {
  MoverTask task;
  task.plan.front = {{25}, {-7}};
  task.plan.back = {{-100}, {0}};
  task.plan.order = {PrintedSides::BacksOnly, true};
  task.plan.isPadded = true;
  task.options = "media=A4 page-label=two\\ words";
  task.title = "a = b\nc";
  task.user = "ann";
  task.path = "/home/ann/=report=.pdf";
  task.format = "text/plain";
  task.pages = "2-5,8";
  task.filters = "/usr/lib/cups/filter";
  return task;
}

TEST(MoverTask, IsReadAsItWasWritten) {
  const MoverTask task = taskOfEverything();
  const auto read = readTask(wordsOf(task));
  ASSERT_TRUE(read);
  EXPECT_TRUE(read->plan == task.plan);
  EXPECT_EQ(wordsOf(*read), wordsOf(task));
  EXPECT_EQ(read->title, task.title);
  EXPECT_EQ(read->path, task.path);
  EXPECT_EQ(read->chooser, "");
}

TEST(MoverTask, RefusesOtherWords) {
  const std::vector<std::string> words = wordsOf(taskOfEverything());
  EXPECT_FALSE(readTask({}));
  EXPECT_FALSE(readTask({words.begin(), words.end() - 1}));
  for (const char *const plan :
       {"", "plan=", "plan=1,2,3", "plan=1,2,3,4,3,0,0,0", "plan=1,2,3,4,-1,0,0,0",
        "plan=1,2,3,4,0,0,0,0,0", "plan=a,2,3,4,0,0,0,0",
        "plan=99999999999999999999,2,3,4,0,0,0,0"}) {
    std::vector<std::string> other = words;
    other[0] = plan;
    EXPECT_FALSE(readTask(other)) << plan;
  }
  std::vector<std::string> swapped = words;
  std::swap(swapped[1], swapped[2]);
  EXPECT_FALSE(readTask(swapped));
}

TEST(MoverReport, IsReadAsItWasWritten) {
  const MoverReport reports[] = {
      {MoverReport::Kind::Progress, 42, {}, {}},
      {MoverReport::Kind::Done, 3000, {}, {}},
      {MoverReport::Kind::Failed, 0, MoveProblem::Encrypted, {}},
      {MoverReport::Kind::Failed, 0, MoveProblem::Layout, "unknown option \"x\""},
  };
  for (const MoverReport &report : reports) {
    const std::string line = lineOf(report);
    const auto read = readReport(std::string_view(line).substr(0, line.size() - 1));
    ASSERT_TRUE(read) << line;
    EXPECT_EQ(read->kind, report.kind);
    EXPECT_EQ(read->number, report.number);
    EXPECT_EQ(read->detail, report.detail);
    if (report.kind == MoverReport::Kind::Failed) {
      EXPECT_EQ(read->problem, report.problem);
    }
  }
}

TEST(MoverReport, StaysOnOneLine) {
  const std::string line =
      lineOf({MoverReport::Kind::Failed, 0, MoveProblem::Damaged, "first\ndone 7\r\x1b[2J"});
  EXPECT_EQ(line, "failed damaged first done 7  [2J\n");
}

TEST(MoverReport, RefusesOtherLines) {
  for (const char *const line : {"", "done", "done x", "done -1", "done 1 2", "progress", "failed",
                                 "failed other", "finished 3"})
    EXPECT_FALSE(readReport(line)) << line;
}

} // namespace

} // namespace imageposition
