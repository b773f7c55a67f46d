// The panel in a user's hands.
#import "PanelWindow.h"

#include <algorithm>

using namespace imageposition::test;

namespace {

using Lines = std::vector<std::string>;

TEST_F(PanelWindow, ShowsZerosAndOnlyTheFrontIsUsable) {
  for (const char *name : {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"})
    EXPECT_EQ(shown(name), "0") << name;
  EXPECT_TRUE([text("FrontLRM") isEnabled]);
  EXPECT_FALSE([text("BackLRM") isEnabled]);
  EXPECT_EQ([check() state], 0);
  EXPECT_EQ(label("FrontLRM"), localized("LRM"));
  EXPECT_EQ(label("BackLRM"), localized("BackLRM"));
}

TEST_F(PanelWindow, MinusThenThreeShowsMinusThreeAndReachesThePrintSettings) {
  select("FrontLRM");
  user->type("-");
  EXPECT_SEEN(shown("FrontLRM") == "-");
  user->type("3");
  EXPECT_SEEN(shown("FrontLRM") == "-3");
  user->press("Return");
  EXPECT_SEEN(stored("LeftRightMargin") == "-3");
  EXPECT_EQ(shown("FrontLRM"), "-3");
  EXPECT_EQ(shown("FrontTBM"), "0");
  EXPECT_EQ(stored("TopBottomMargin"), "0");
}

TEST_F(PanelWindow, AClickPlacesTheInsertionPoint) {
  select("FrontLRM");
  user->type("12");
  user->press("Return");
  EXPECT_SEEN(stored("LeftRightMargin") == "12");
  user->click(text("FrontTBM"));
  EXPECT_SEEN(focused() == "FrontTBMText");
  user->click(text("FrontLRM"), 0.95);
  user->type("0");
  EXPECT_SEEN(shown("FrontLRM") == "120");
}

TEST_F(PanelWindow, AMinusBehindADigitIsDroppedAtOnce) {
  select("FrontLRM");
  user->type("7-2");
  EXPECT_SEEN(shown("FrontLRM") == "72");
  user->press("Return");
  EXPECT_SEEN(stored("LeftRightMargin") == "72");
}

TEST_F(PanelWindow, LettersDoNotAppear) {
  select("FrontTBM");
  user->type("a4b2c");
  EXPECT_EQ(shown("FrontTBM"), "42");
}

TEST_F(PanelWindow, PastedTextIsFiltered) {
  ClipboardOwner clipboard("1a2b3");
  select("FrontLRM");
  user->press("v", "Alt_L");
  EXPECT_SEEN(shown("FrontLRM") == "123");
  user->press("Return");
  EXPECT_SEEN(shown("FrontLRM") == "100");
  EXPECT_EQ(stored("LeftRightMargin"), "100");
}

TEST_F(PanelWindow, PastedSevenMinusTwoIsSeven) {
  ClipboardOwner clipboard("7-2");
  select("FrontLRM");
  user->press("v", "Alt_L");
  EXPECT_SEEN(shown("FrontLRM") == "7");
}

TEST_F(PanelWindow, ANumberBeyondTheRangeBecomesItsBound) {
  select("FrontLRM");
  user->type("999999999999");
  EXPECT_EQ(shown("FrontLRM"), "200") << "the widest range of all printers, while typing";
  user->press("Return");
  EXPECT_SEEN(shown("FrontLRM") == "100");
  EXPECT_EQ(stored("LeftRightMargin"), "100") << "this printer's range, once it is entered";
  select("FrontLRM");
  user->type("-101");
  user->press("Return");
  EXPECT_SEEN(shown("FrontLRM") == "-100");
  EXPECT_EQ(stored("LeftRightMargin"), "-100");
}

TEST_F(PanelWindow, LeavingAFieldCommitsItsNumber) {
  select("FrontLRM");
  user->type("8");
  user->press("Tab");
  EXPECT_SEEN(stored("LeftRightMargin") == "8");
}

TEST_F(PanelWindow, ClickingAStepperThreeTimesCountsThreeUp) {
  for (int clicks = 1; clicks <= 3; ++clicks) {
    user->click(stepper("FrontTBM"), 0.5, 0.75);
    EXPECT_SEEN(shown("FrontTBM") == std::to_string(clicks));
  }
  EXPECT_EQ(shown("FrontTBM"), "3");
  EXPECT_EQ(stored("TopBottomMargin"), "3");
  EXPECT_EQ([stepper("FrontTBM") intValue], 0);
  EXPECT_EQ(stored("LeftRightMargin"), "0");
}

TEST_F(PanelWindow, AStepperCountsDownBelowZero) {
  for (int clicks = 1; clicks <= 3; ++clicks) {
    user->click(stepper("FrontLRM"), 0.5, 0.25);
    EXPECT_SEEN(shown("FrontLRM") == std::to_string(-clicks));
  }
  EXPECT_EQ(stored("LeftRightMargin"), "-3");
}

TEST_F(PanelWindow, AStepperContinuesFromTheNumberBeingTyped) {
  select("FrontLRM");
  user->type("-5");
  EXPECT_SEEN(shown("FrontLRM") == "-5");
  user->click(stepper("FrontLRM"), 0.5, 0.75);
  EXPECT_SEEN(stored("LeftRightMargin") == "-4");
  EXPECT_EQ(shown("FrontLRM"), "-4");
}

TEST_F(PanelWindow, AStepperStopsAtTheBound) {
  select("FrontLRM");
  user->type("99");
  user->press("Return");
  EXPECT_SEEN(stored("LeftRightMargin") == "99");
  for (int clicks = 0; clicks < 3; ++clicks) {
    user->click(stepper("FrontLRM"), 0.5, 0.75);
  }
  EXPECT_EQ(shown("FrontLRM"), "100");
  EXPECT_EQ(stored("LeftRightMargin"), "100");
}

TEST_F(PanelWindow, TheCheckboxEnablesSeparateBackOffsets) {
  user->click(check(), 0.05);
  EXPECT_SEEN([check() state] == 1);
  EXPECT_SEEN([text("BackLRM") isEnabled] && [stepper("BackTBM") isEnabled]);
  EXPECT_EQ(label("FrontLRM"), localized("FrontLRM"));
  EXPECT_EQ(label("FrontTBM"), localized("FrontTBM"));
  EXPECT_EQ(flag(), "False") << "until the dialog saves";
  select("BackLRM");
  user->type("-9");
  user->press("Return");
  EXPECT_SEEN(stored("BackLeftRightMargin") == "-9");
  [panel saveValuesAndReturnError:nullptr];
  EXPECT_EQ(flag(), "True");
  user->click(check(), 0.05);
  EXPECT_SEEN([check() state] == 0);
  EXPECT_SEEN(![text("BackLRM") isEnabled]);
  EXPECT_EQ(label("FrontLRM"), localized("LRM"));
  EXPECT_EQ(shown("BackLRM"), "-9") << "kept until it is enabled again";
}

TEST_F(PanelWindow, DisabledControlsAcceptNeitherKeysNorClicks) {
  user->click(text("BackLRM"));
  user->type("5");
  user->click(stepper("BackLRM"), 0.5, 0.75);
  EXPECT_EQ(shown("BackLRM"), "0");
  EXPECT_EQ(stored("BackLeftRightMargin"), "0");
}

TEST_F(PanelWindow, TheButtonSetsEverythingToZero) {
  user->click(check(), 0.05);
  EXPECT_SEEN([text("BackLRM") isEnabled]);
  for (const char *name : {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"}) {
    select(name);
    user->type("-7");
    user->press("Return");
    EXPECT_SEEN(shown(name) == "-7");
  }
  EXPECT_SEEN(stored("BackTopBottomMargin") == "-7");
  user->click(button());
  EXPECT_SEEN([check() state] == 0);
  for (const char *name : {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"})
    EXPECT_EQ(shown(name), "0") << name;
  EXPECT_FALSE([text("BackLRM") isEnabled]);
  EXPECT_EQ(label("FrontLRM"), localized("LRM"));
  EXPECT_EQ(stored("LeftRightMargin"), "-7") << "until the dialog saves";
  [panel shouldPrint];
  for (const char *key :
       {"LeftRightMargin", "TopBottomMargin", "BackLeftRightMargin", "BackTopBottomMargin"})
    EXPECT_EQ(stored(key), "0") << key;
  EXPECT_EQ(flag(), "False");
}

TEST_F(PanelWindow, WhenForbiddenNothingIsUsable) {
  ppd->mark("Duplex", "None");
  [panel willShow];
  for (const char *name : {"FrontLRM", "BackLRM"}) {
    user->click(text(name));
    user->type("5");
    user->click(stepper(name), 0.5, 0.75);
  }
  user->click(check(), 0.05);
  user->click(button());
  EXPECT_EQ(shown("FrontLRM"), "0");
  EXPECT_EQ([check() state], 0);
  EXPECT_FALSE([check() isEnabled]);
  EXPECT_FALSE([button() isEnabled]);
}

// Keyboard only.

/// The focused control after each Tab, for one cycle. Steppers accept only the mouse, as on most
/// systems; keyboard users have the entry fields.
Lines tabOrder(bool back) {
  Lines order = {"FrontLRMText", "FrontTBMText", "chkEnableImagePositionAdjust"};
  if (back)
    order.insert(order.end(), {"BackLRMText", "BackTBMText"});
  order.push_back("btnRestore2Defalut");
  return order;
}

class PanelWindowByKeyboard : public PanelWindow {
protected:
  void SetUp() override {
    PanelWindow::SetUp();
    user->click(text("FrontLRM"));
    ASSERT_TRUE(runUntil([this] { return focused() == "FrontLRMText"; }));
  }

  void tabTo(const std::string &name) {
    for (int tabs = 0; focused() != name; ++tabs) {
      ASSERT_LT(tabs, 12) << name << " cannot be reached";
      const std::string before = focused();
      user->press("Tab");
      EXPECT_SEEN(focused() != before);
      ASSERT_FALSE(HasFailure());
    }
  }

  Lines tabAround(std::size_t times, const std::string &held = {}) {
    Lines order;
    for (std::size_t i = 0; i < times; ++i) {
      order.push_back(focused());
      user->press("Tab", held);
    }
    EXPECT_EQ(focused(), order[0]) << "after one cycle";
    return order;
  }
};

TEST_F(PanelWindowByKeyboard, TabVisitsEveryUsableControl) {
  const Lines expected = tabOrder(false);
  EXPECT_EQ(tabAround(expected.size()), expected);
}

TEST_F(PanelWindowByKeyboard, TabVisitsTheBackToo) {
  user->click(check(), 0.05);
  EXPECT_SEEN([text("BackLRM") isEnabled]);
  user->click(text("FrontLRM"));
  EXPECT_SEEN(focused() == "FrontLRMText");
  const Lines expected = tabOrder(true);
  EXPECT_EQ(tabAround(expected.size()), expected);
}

TEST_F(PanelWindowByKeyboard, ShiftTabGoesBackwards) {
  Lines expected = tabOrder(false);
  std::reverse(expected.begin() + 1, expected.end());
  EXPECT_EQ(tabAround(expected.size(), "Shift_L"), expected);
}

TEST_F(PanelWindowByKeyboard, SpaceTogglesTheCheckbox) {
  tabTo("chkEnableImagePositionAdjust");
  user->press("space");
  EXPECT_SEEN([check() state] == 1);
  EXPECT_SEEN([text("BackLRM") isEnabled]);
  user->press("space");
  EXPECT_SEEN([check() state] == 0);
  EXPECT_SEEN(![text("BackLRM") isEnabled]);
}

TEST_F(PanelWindowByKeyboard, SpacePressesTheButton) {
  select("FrontLRM");
  user->type("42");
  tabTo("btnRestore2Defalut");
  EXPECT_EQ(shown("FrontLRM"), "42");
  user->press("space");
  EXPECT_SEEN(shown("FrontLRM") == "0");
}

TEST_F(PanelWindowByKeyboard, AWholeAdjustmentNeedsNoPointer) {
  tabTo("FrontTBMText");
  user->type("-12");
  tabTo("chkEnableImagePositionAdjust");
  user->press("space");
  EXPECT_SEEN([text("BackLRM") isEnabled]);
  tabTo("BackLRMText");
  user->type("5");
  tabTo("BackTBMText");
  user->type("-6");
  tabTo("btnRestore2Defalut");
  [panel shouldPrint];
  EXPECT_EQ(stored("LeftRightMargin"), "0");
  EXPECT_EQ(stored("TopBottomMargin"), "-12");
  EXPECT_EQ(stored("BackLeftRightMargin"), "5");
  EXPECT_EQ(stored("BackTopBottomMargin"), "-6");
  EXPECT_EQ(flag(), "True");
}

TEST_F(PanelWindowByKeyboard, PrintingTakesTheNumberStillBeingTyped) {
  select("FrontLRM");
  user->type("17");
  EXPECT_SEEN(shown("FrontLRM") == "17");
  [panel shouldPrint];
  EXPECT_EQ(stored("LeftRightMargin"), "17");
}

} // namespace
