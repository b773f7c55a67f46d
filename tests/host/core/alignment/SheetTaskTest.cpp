#include "SheetTask.hpp"

#include <gtest/gtest.h>

namespace imageposition {

namespace {

TEST(SheetTask, IsReadAsItWasWritten) {
  SheetTask task;
  task.page = {{595}, {842}, {{10}, {11}, {580}, {830}}};
  task.turning = Turning::ShortEdge;
  task.title = "Alignment \"sheet\"";
  task.example = "\xe4\xbe\x8b";
  task.sheets = {{{"Front", "1", {"a", "b"}, {"c"}}, {"Back", "1", {}, {"d"}}}};
  const auto read = readSheetTask(textOf(task));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->page.width, Point{595});
  EXPECT_EQ(read->page.imageable, task.page.imageable);
  EXPECT_EQ(read->turning, Turning::ShortEdge);
  EXPECT_EQ(read->title, task.title);
  EXPECT_EQ(read->example, task.example);
  ASSERT_EQ(read->sheets.size(), 1U);
  EXPECT_EQ(read->sheets[0].front.facts, task.sheets[0].front.facts);
  EXPECT_EQ(read->sheets[0].back.advice, task.sheets[0].back.advice);
}

TEST(SheetTask, IsNothingElse) {
  for (const char *text : {"", "{", "[]", "{}", "{\"page\": [1]}", "7"})
    EXPECT_FALSE(readSheetTask(text)) << text;
}

} // namespace

} // namespace imageposition
