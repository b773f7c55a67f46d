// "Save as ticket" in the window, where the command line names no file.
#include "WindowFixture.hpp"

namespace {

using namespace imageposition::test;
using testing::Contains;
using testing::Pair;

class SaveTicket : public Window {
protected:
  void SetUp() override {
    start({"--ppd", sample("duplex-shift.ppd"), sample("two-sided.pdf")}, {});
    type("-3");
    press({"Return"});
    ASSERT_TRUE(isAsked());
  }
  static bool isAsked() {
    return becomesTrue([] { return isFocused("Save as ticket"); });
  }
  /// Replaces the suggestion, which is selected.
  static void save(const std::string &path) {
    press({"ctrl+a"});
    type(path);
    press({"Return"});
  }
};

TEST_F(SaveTicket, AsksForTheFileAndWritesIt) {
  save(folder.path("job"));
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_TRUE(std::filesystem::exists(ticket));
  EXPECT_THAT(printed(), Contains(Pair("LeftRightMargin", "-3")));
  EXPECT_EQ(ended().output, "");
}

TEST_F(SaveTicket, CancelGoesBackToTheDialog) {
  press({"Escape"});
  ASSERT_TRUE(becomesTrue([] { return hasKeyboard(); }));
  EXPECT_FALSE(dialogProcess->hasEnded());
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled);
  EXPECT_EQ(folder.fileCount(), 0U);
}

TEST_F(SaveTicket, AnotherPathCanBeEnteredIfOneCannotBeWritten) {
  save("/nonexistent/job.json");
  ASSERT_TRUE(says("Cannot write "));
  ASSERT_TRUE(becomesTrue([] { return hasKeyboard(); }));
  press({"Return"});
  ASSERT_TRUE(isAsked());
  save(ticket);
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(printed(), Contains(Pair("LeftRightMargin", "-3")));
}

TEST_F(SaveTicket, AnExistingFileIsReplacedOnlyIfTheUserConfirms) {
  folder.write("job.json", "mine");
  save(ticket);
  ASSERT_TRUE(becomesTrue([] { return isFocused("Replace"); }));
  press({"Escape"});
  ASSERT_TRUE(isAsked()); // for another name
  EXPECT_EQ(contentOf(ticket), "mine");
  press({"Escape"});
  ASSERT_TRUE(becomesTrue([] { return hasKeyboard(); }));
  press({"Return"});
  ASSERT_TRUE(isAsked());
  save(ticket);
  ASSERT_TRUE(becomesTrue([] { return isFocused("Replace"); }));
  press({"Return"}); // cancels, too
  ASSERT_TRUE(isAsked());
  EXPECT_EQ(contentOf(ticket), "mine");
  press({"Return"});
  ASSERT_TRUE(becomesTrue([] { return isFocused("Replace"); }));
  press({"Tab", "Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_NE(contentOf(ticket), "mine");
}

} // namespace
