// Keyboard access to every control of the window.
#include "WindowFixture.hpp"

namespace {

using namespace imageposition::test;
using testing::Contains;
using testing::Pair;

class WindowKeys : public Window {};

TEST_F(WindowKeys, AltAndALetterGivesAFieldTheFocus) {
  open("duplex-shift.ppd");
  press({"alt+c"});
  type("3");
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_THAT(printed(), Contains(Pair("copies", "3")));
}

TEST_F(WindowKeys, AFieldThatLosesTheFocusToALetterCommitsItsText) {
  open("duplex-shift.ppd");
  type("-3");
  press({"alt+c", "Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(printed(), Contains(Pair("LeftRightMargin", "-3")));
}

TEST_F(WindowKeys, AltAndALetterGivesAPopUpTheFocusAndTheSpaceBarOpensIt) {
  const std::vector<std::vector<std::string>> rows{{"alt+t", "Duplex", "None", "Up"},
                                                   {"alt+m", "PageSize", "A5", "Down"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row[0]);
    open("duplex-shift.ppd");
    press({row[0], "space", row[3], "Return"});
    press({"Return"});
    EXPECT_EQ(ended().status, kDone);
    EXPECT_THAT(printed(), Contains(Pair(row[1], row[2])));
  }
}

TEST_F(WindowKeys, AltAndALetterSwitchesACheckbox) {
  open("duplex-shift.ppd");
  press({"alt+o", "Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(printed(),
              Contains(Pair("multiple-document-handling", "separate-documents-collated-copies")));
}

TEST_F(WindowKeys, TheArrowKeysChangeTheCopies) {
  open("duplex-shift.ppd");
  press({"alt+c", "Up", "Up", "Up", "Down", "Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(printed(), Contains(Pair("copies", "3")));
}

TEST_F(WindowKeys, TheCopiesStopAtOne) {
  open("duplex-shift.ppd");
  press({"alt+c", "Up", "Down", "Down", "Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(printed(), Contains(Pair("copies", "1")));
}

TEST_F(WindowKeys, ControlLettersStillEditAndPlainOnesAreTyped) {
  open("duplex-shift.ppd");
  press({"alt+c", "ctrl+a"});
  type("c");
  press({"Return"});
  ASSERT_TRUE(says("Enter a number of copies from 1 to 9999."));
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled);
}

TEST_F(WindowKeys, HelpOpensByLetterAndFunctionKeyAndClosesByEscapeAndReturn) {
  open("duplex-shift.ppd");
  type("-3");
  for (const auto &[key, end] : {std::pair("alt+h", "Escape"), std::pair("F1", "Return"),
                                 std::pair("F1", "space"), std::pair("F1", "alt+F4")}) {
    SCOPED_TRACE(std::string(key) + " " + end);
    press({key});
    ASSERT_TRUE(becomesTrue([] { return isFocused("Print help"); }));
    press({end});
    ASSERT_TRUE(becomesTrue([] { return hasKeyboard(); }));
  }
  EXPECT_FALSE(dialogProcess->hasEnded());
  press({"Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(printed(), Contains(Pair("LeftRightMargin", "-3")));
}

} // namespace
