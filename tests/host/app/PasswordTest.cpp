// A CUPS server that requires a password.
#include "AskingCups.hpp"
#include "WindowFixture.hpp"

namespace {

using namespace imageposition::test;

class PasswordWindow : public Window {
protected:
  void SetUp() override {
    start({"-d", "office", sample("two-sided.pdf")}, cups.environment());
    press({"Return"});
  }

  static bool isAsked() {
    return becomesTrue([] { return isFocused("Password"); });
  }

  const AskingCups cups{"127.0.0.1"};
};

TEST_F(PasswordWindow, CancelLeavesTheDialogOpenAndNothingPrinted) {
  ASSERT_TRUE(isAsked());
  press({"Escape"});
  ASSERT_TRUE(becomesTrue([] { return hasKeyboard(); }));
  ASSERT_TRUE(says("ancel"));
  EXPECT_FALSE(dialogProcess->hasEnded());
  press({"Return"}); // the user can try again
  ASSERT_TRUE(isAsked());
  press({"Escape"});
  ASSERT_TRUE(says("ancelled. Nothing was printed.\nCancelled"));
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled) << testing::PrintToString(ended());
  EXPECT_EQ(cups.onSocket().run({"lpstat", "-W", "all", "-o"}).output, "");
}

TEST_F(PasswordWindow, TheRightNameAndPasswordPrint) {
  ASSERT_TRUE(isAsked());
  press({"shift+Tab", "ctrl+a"});
  type("somebody");
  press({"Tab"});
  type("open sesame");
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_THAT(ended().output, testing::HasSubstr("request id is office-"));
  EXPECT_THAT(cups.onSocket().run({"lpstat", "-W", "all", "-o"}).output,
              testing::HasSubstr("somebody"));
}

TEST_F(PasswordWindow, TheRightPasswordAfterAWrongOnePrints) {
  ASSERT_TRUE(isAsked());
  press({"shift+Tab", "ctrl+a"});
  type("somebody");
  press({"Tab"});
  type("wrong");
  press({"Return"});
  ASSERT_TRUE(becomesTrue([] { return isFocused("Wrong password"); }));
  type("open sesame"); // the name is still there
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_THAT(cups.onSocket().run({"lpstat", "-W", "all", "-o"}).output,
              testing::HasSubstr("office-"));
}

TEST_F(PasswordWindow, AWrongPasswordIsAskedForAgain) {
  ASSERT_TRUE(isAsked());
  type("wrong");
  press({"Return"});
  ASSERT_TRUE(becomesTrue([] { return isFocused("Wrong password"); }));
  press({"Escape"});
  ASSERT_TRUE(says("ancel"));
  EXPECT_FALSE(dialogProcess->hasEnded());
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled);
}

/// What print-dialog writes on a terminal where the user types the password that libcups asks for.
/// The CUPS server at `host` gives the printer's description only to users that it knows.
class PasswordOnATerminal : public DialogFixture {
protected:
  std::string terminal(const std::string &host) const {
    const AskingCups cups(host, "Get-Printer-Attributes");
    const std::string screen = folder.path("screen");
    runProcess({"/bin/sh", "-c",
                "{ until grep -q 'Password for' \"$0\"; do sleep 0.02; done; echo 'open sesame'; }"
                " | script -qec '" PRINT_DIALOG " -d office -U somebody --list-options' /dev/null"
                " >\"$0\"",
                screen},
               cups.environment());
    return contentOf(screen);
  }
};

TEST_F(PasswordOnATerminal, CausesAWarningIfOthersCanReadItOnTheNetwork) {
  const std::string said = terminal(networkAddress());
  const std::size_t warning = said.find("not encrypted");
  ASSERT_NE(warning, std::string::npos) << said;
  EXPECT_LT(warning, said.find("Password for")) << said;
  EXPECT_THAT(said, testing::HasSubstr(networkAddress()));
  EXPECT_THAT(said, testing::HasSubstr("-E"));
  EXPECT_EQ(said.find("not encrypted", warning + 1), std::string::npos) << said;
  EXPECT_THAT(said, testing::HasSubstr("PageSize:")); // the password is accepted
}

TEST_F(PasswordOnATerminal, CausesNoWarningIfItStaysOnTheMachine) {
  const std::string said = terminal("127.0.0.1");
  EXPECT_THAT(said, testing::HasSubstr("Password for"));
  EXPECT_THAT(said, testing::Not(testing::HasSubstr("not encrypted")));
  EXPECT_THAT(said, testing::HasSubstr("PageSize:"));
}

} // namespace
