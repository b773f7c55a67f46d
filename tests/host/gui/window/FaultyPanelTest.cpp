// Panels that raise or refuse, and a fault in the dialog's own code: the window names the culprit
// and continues.
#include "WholeJob.hpp"

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

class FaultyPanel : public WholeJob {
protected:
  Words words() const { return {"--plugin", FIXTURE_PLUGIN, "-d", "office", document()}; }
  Words behaviour(const std::string &name) const {
    return {"FIXTURE_BEHAVIOUR=" + name, "FIXTURE_JOURNAL=" + journal};
  }

  static bool offersPane(const PrintWindow &window, const std::string &name) {
    return window.becomes(
        [&](const Screen &shown) { return shown.find("popup", name) != nullptr; });
  }

  /// From the panel's checkbox, its first control, to a field of it.
  static void typeIntoField(PrintWindow &window) {
    window.press("Tab");
    window.write("5");
    ASSERT_TRUE(window.becomes([](const Screen &shown) { return shown.find("field", "5"); }));
  }

  /// Adds a preset to the queue; loading it makes the panels restore their values.
  static void loadPreset(PrintWindow &window) { window.choose("Preset:", "calm"); }
  static void addPreset() { command({"lpoptions", "-p", "office/calm", "-o", "number-up=2"}); }

  static bool asksWhetherToPrint(const PrintWindow &window) {
    return window.becomes([&](const Screen &) { return window.hasKeyboard("Print anyway?"); });
  }

  const std::string journal = folder.path("journal");
};

TEST_F(FaultyPanel, OneThatRaisesWhenAClickEndsTheTypingIsLeftOut) {
  PrintWindow window(words(), behaviour("raise in field"));
  typeIntoField(window);
  window.click("Button"); // the checkbox, which does not raise
  ASSERT_TRUE(window.says("Fixture.plugin\" failed in"));
  EXPECT_TRUE(offersPane(window, "Printer options"));
  window.click("Print");
  printed(jobOf(window.ended()));
}

TEST_F(FaultyPanel, OneThatRaisesOnAClickAndAgainWhenItsFieldLosesTheFocusIsLeftOut) {
  PrintWindow window(words(), behaviour("raise action"));
  typeIntoField(window);
  window.click("Button");
  ASSERT_TRUE(window.says("Fixture.plugin\" failed in"));
  EXPECT_TRUE(offersPane(window, "Printer options"));
  window.click("Print");
  printed(jobOf(window.ended()));
}

TEST_F(FaultyPanel, OneThatRaisesWhenPrintEndsTheTypingIsLeftOutAndNothingIsSent) {
  PrintWindow window(words(), behaviour("raise in field"));
  typeIntoField(window);
  window.click("Print");
  ASSERT_TRUE(window.says("Fixture.plugin\" failed in"));
  EXPECT_FALSE(window.process().hasEnded());
  EXPECT_EQ(printedCount(), 0);
  window.click("Print");
  printed(jobOf(window.ended()));
}

TEST_F(FaultyPanel, EveryPanelIsRestoredAndOnlyTheFailingOneLeftOut) {
  addPreset();
  PrintWindow window(words(), behaviour("raise in first restore"));
  ASSERT_TRUE(offersPane(window, "Fixture Panel"));
  loadPreset(window);
  ASSERT_TRUE(window.says("failed in \"restoreValuesAndReturnError:\""));
  EXPECT_TRUE(offersPane(window, "Other Panel"));
  const std::string asked = contentOf(journal);
  const std::string restore = "restoreValuesAndReturnError:\n";
  EXPECT_THAT(asked, HasSubstr(restore + restore));
  command({"lpoptions", "-x", "office/calm"});
}

TEST_F(FaultyPanel, AFaultOfTheDialogWhileAPanelHasTheFocusIsNotBlamedOnThePanel) {
  PrintWindow window(words(), behaviour("spoil help"));
  ASSERT_TRUE(offersPane(window, "Fixture Panel"));
  window.press("F1");
  ASSERT_TRUE(window.says("raised in the dialog"));
  EXPECT_FALSE(window.screen().says("Fixture.plugin"));
  EXPECT_TRUE(offersPane(window, "Fixture Panel"));
  EXPECT_THAT(window.process().errorsSoFar(), HasSubstr("Your settings are kept"));
  window.click("Print");
  printed(jobOf(window.ended()));
}

TEST_F(FaultyPanel, OneThatDoesNotSaveStopsPrintingUnlessTheUserConfirms) {
  PrintWindow window(words(), behaviour("say no to save"));
  window.click("Print");
  ASSERT_TRUE(asksWhetherToPrint(window));
  EXPECT_TRUE(window.screen().says("The tray is locked."));
  window.press("Escape");
  ASSERT_TRUE(window.becomes([&](const Screen &) { return window.hasKeyboard("Print"); }));
  EXPECT_TRUE(window.says("The tray is locked.")); // in the window, too
  EXPECT_TRUE(offersPane(window, "Fixture Panel"));
  EXPECT_EQ(printedCount(), 0);
  window.click("Print");
  ASSERT_TRUE(asksWhetherToPrint(window));
  window.click("Print anyway");
  printed(jobOf(window.ended()));
}

TEST_F(FaultyPanel, OneThatDoesNotSaveAndGivesNoReasonIsNamed) {
  PrintWindow window(words(), behaviour("say no without a word to save"));
  window.click("Print");
  ASSERT_TRUE(asksWhetherToPrint(window));
  EXPECT_TRUE(window.screen().says("\"Fixture Panel\""));
  window.click("Go back");
  EXPECT_TRUE(window.becomes([&](const Screen &) { return window.hasKeyboard("Print"); }));
  EXPECT_EQ(printedCount(), 0);
}

TEST_F(FaultyPanel, OneThatDoesNotRestoreStaysAndIsReported) {
  addPreset();
  PrintWindow window(words(), behaviour("say no to restore"));
  ASSERT_TRUE(offersPane(window, "Fixture Panel"));
  loadPreset(window);
  EXPECT_TRUE(window.says("The tray is locked."));
  EXPECT_TRUE(offersPane(window, "Fixture Panel"));
  command({"lpoptions", "-x", "office/calm"});
}

} // namespace
