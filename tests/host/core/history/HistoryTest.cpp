#include "History.hpp"

#include "TemporaryFolder.hpp"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>

namespace imageposition {

namespace {

using namespace imageposition::test;

class HistoryFile : public testing::Test {
protected:
  void SetUp() override { setenv("XDG_STATE_HOME", folder_.path("state").c_str(), 1); }
  void TearDown() override { unsetenv("XDG_STATE_HOME"); }

  std::string path() const { return folder_.path("state/print-dialog/jobs.json"); }
  History read() { return History::read(errors_); }
  bool rememberPrinter(const std::string &name) {
    return changeHistory([&](History &history) { history.setPrinter(name); }, errors_);
  }

  TemporaryFolder folder_;
  std::ostringstream errors_;
};

TEST_F(HistoryFile, IsEmptyBeforeTheFirstJob) {
  const History history = read();
  EXPECT_EQ(history.printer(), "");
  EXPECT_FALSE(history.window());
  EXPECT_EQ(history.settings("office").optionCount(), 0);
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(HistoryFile, KeepsSettingsPerPrinter) {
  EXPECT_TRUE(changeHistory(
      [](History &history) {
        PrintSettingsStore settings;
        settings.set("LeftRightMargin", "15");
        history.setPrinter("office");
        history.setWindow({900, 700});
        history.setSettings("office", settings);
        history.setPreset("home", "draft");
      },
      errors_));
  const History history = read();
  EXPECT_EQ(history.printer(), "office");
  ASSERT_TRUE(history.window());
  EXPECT_EQ(history.window()->width, 900);
  EXPECT_EQ(history.window()->height, 700);
  EXPECT_STREQ(history.settings("office").get("LeftRightMargin"), "15");
  EXPECT_EQ(history.preset("office"), "");
  EXPECT_EQ(history.preset("home"), "draft");
  EXPECT_TRUE(changeHistory([](History &other) { other.setPreset("home", ""); }, errors_));
  EXPECT_EQ(read().preset("home"), "");
  EXPECT_STREQ(read().settings("office").get("LeftRightMargin"), "15");
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(HistoryFile, IsReadableOnlyByItsOwner) {
  ASSERT_TRUE(rememberPrinter("office"));
  struct stat status {};
  ASSERT_EQ(stat(path().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(HistoryFile, OfOtherContentIsIgnoredAndKept) {
  for (const char *content : {"", "Dear diary", "[]", "{}", "{\"printers\": 1}",
                              "{\"printers\": {\"office\": {\"settings\": {\"a\": \"b\""}) {
    folder_.write("state/print-dialog/jobs.json", content);
    errors_.str("");
    EXPECT_EQ(read().printer(), "") << content;
    EXPECT_NE(errors_.str().find("jobs.json"), std::string::npos) << content;
    EXPECT_FALSE(rememberPrinter("office")) << content;
    EXPECT_EQ(contentOf(path()), content);
  }
}

TEST_F(HistoryFile, LosesNothingButWhatItCannotUse) {
  folder_.write("state/print-dialog/jobs.json",
                R"({"printer": 7, "window": [-1, "x"], "printers": {"a": 1, "b": {"preset": 2,)"
                R"( "settings": {"Duplex": "None", "copies": 3, "": "x"}}}})");
  const History history = read();
  EXPECT_EQ(history.printer(), "");
  EXPECT_FALSE(history.window());
  EXPECT_EQ(history.preset("b"), "");
  EXPECT_STREQ(history.settings("b").get("Duplex"), "None");
  EXPECT_EQ(history.settings("b").optionCount(), 1);
}

TEST_F(HistoryFile, ThatCannotBeWrittenSaysSo) {
  folder_.write("state", "a file where the folder should be");
  EXPECT_FALSE(rememberPrinter("office"));
  EXPECT_NE(errors_.str().find("Cannot remember"), std::string::npos);
}

} // namespace

} // namespace imageposition
