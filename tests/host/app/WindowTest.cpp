// The window, used with real key events.
#include "WindowFixture.hpp"

#include <csignal>
#include <sstream>

namespace {

using namespace imageposition::test;
using testing::AllOf;
using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Pair;

namespace fs = std::filesystem;

TEST_F(Window, ReturnCommitsTheTypedTextAndPrints) {
  open("duplex-shift.ppd");
  type("-3");
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_EQ(printed(), offsets("-3", "0", "0", "0", "False"));
}

TEST_F(Window, OpensWithTheFlagForTheBackThatAnOptionSetsLikeLp) {
  open("duplex-shift.ppd", {"-o", "com.morva.printsettings.19AImagePositionEnable"});
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_EQ(printed(), offsets("0", "0", "0", "0", "True"));
}

TEST_F(Window, TabMovesFromFieldToField) {
  open("duplex-shift.ppd");
  type("-3");
  press({"Tab"});
  type("72");
  press({"KP_Enter"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_EQ(printed(), offsets("-3", "72", "0", "0", "False"));
}

TEST_F(Window, ControlKeysCopyAndPaste) {
  open("duplex-shift.ppd");
  type("42");
  press({"ctrl+a", "ctrl+c", "Tab", "ctrl+v", "Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_EQ(printed(), offsets("42", "42", "0", "0", "False"));
}

TEST_F(Window, ControlXRemovesTheText) {
  open("duplex-shift.ppd");
  type("42");
  press({"ctrl+a", "ctrl+x", "Tab", "ctrl+v", "Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_EQ(printed(), offsets("0", "42", "0", "0", "False"));
}

TEST_F(Window, EscapeCancelsAndWritesNothing) {
  folder.write("job.json", R"({"settings": {"LeftRightMargin": "9"}})");
  open("duplex-shift.ppd");
  type("-3");
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled);
  EXPECT_THAT(ended().errors, HasSubstr("Nothing was printed"));
  EXPECT_EQ(contentOf(ticket), R"({"settings": {"LeftRightMargin": "9"}})");
  EXPECT_FALSE(fs::exists(folder.path("job.options")));
}

TEST_F(Window, ClosingTheWindowCancels) {
  open("duplex-shift.ppd");
  press({"alt+F4"});
  EXPECT_EQ(ended().status, kCancelled);
}

TEST_F(Window, SignalsThatEndProgramsEndTheDialog) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    open("duplex-shift.ppd");
    type("-3");
    dialogProcess->send(signal);
    EXPECT_EQ(ended().status, 128 + signal);
    EXPECT_EQ(folder.fileCount(), 0U);
  }
}

TEST_F(Window, ATicketsValuesAreShownAndKept) {
  folder.write("job.json", R"({"settings": {"LeftRightMargin": "9",
      "com.morva.printsettings.19AImagePositionEnable": "True"}})");
  open("duplex-shift.ppd");
  press({"Tab"});
  type("4");
  press({"Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_EQ(printed(), offsets("9", "4", "0", "0", "True"));
}

TEST_F(Window, APrinterWithoutAPanelPrints) {
  open("duplex-plain.ppd", {"-o", "MediaType=Heavy"});
  press({"Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(printed(), testing::ElementsAre(Pair("MediaType", "Heavy")));
}

TEST_F(Window, APanelIsDrivenInTheOrderThatPanelsExpect) {
  openFixture("");
  ASSERT_TRUE(journalEndsWith("panelView\nwillShow\n"));
  press({"space"}); // the checkbox is the first control
  // What the panel saves is what the picture shows.
  ASSERT_TRUE(journalEndsWith("willShow\naction\nsaveValuesAndReturnError:\n"));
  press({"shift+Tab", "space", "End", "Return"}); // to the summary
  ASSERT_TRUE(journalEndsWith("action\nsaveValuesAndReturnError:\n"
                              "saveValuesAndReturnError:\nsummaryInfo\n"));
  press({"space", "Home", "Return"}); // and back
  ASSERT_TRUE(journalEndsWith("summaryInfo\nsaveValuesAndReturnError:\nwillShow\n"));
  press({"Tab", "Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(contentOf(journal), EndsWith("willShow\nshouldPrint\nsaveValuesAndReturnError:\n"));
}

TEST_F(Window, CancelHasThePanelsRestoreTheirValues) {
  openFixture("");
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled);
  EXPECT_THAT(contentOf(journal), EndsWith("willShow\nrestoreValuesAndReturnError:\n"));
}

TEST_F(Window, ReturnOnCancelCancels) {
  openFixture("");
  press({"Tab", "Tab", "Tab", "Tab", "Return"}); // checkbox, two fields, Help, Cancel
  EXPECT_EQ(ended().status, kCancelled);
}

TEST_F(Window, APanelThatRaisesIsLeftOutAndTheDialogGoesOn) {
  for (const char *operation : {"willShow", "shouldPrint", "saveValuesAndReturnError:"}) {
    SCOPED_TRACE(operation);
    openFixture(std::string("raise ") + operation);
    press({"Return"});
    ASSERT_TRUE(says(std::string("failed in \"") + operation + "\""));
    EXPECT_THAT(dialogProcess->errorsSoFar(), HasSubstr("Fixture.plugin"));
    if (!dialogProcess->hasEnded())
      press({"Return"});
    EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  }
}

TEST_F(Window, APanelWhoseControlRaisesIsLeftOut) {
  openFixture("raise action");
  press({"space"});
  ASSERT_TRUE(says("raised on demand"));
  press({"Return"});
  EXPECT_EQ(ended().status, kDone);
}

TEST_F(Window, APanelThatRefusesTheJobKeepsTheDialogOpen) {
  openFixture("veto");
  press({"Return"});
  ASSERT_TRUE(says("\"Fixture Panel\" does not allow printing"));
  EXPECT_FALSE(dialogProcess->hasEnded());
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled);
  EXPECT_FALSE(fs::exists(ticket));
}

TEST_F(Window, APluginThatCannotBeLoadedIsNamedAndTheDialogGoesOn) {
  openFixture("no array");
  EXPECT_TRUE(says("could not be loaded"));
  press({"Return"});
  EXPECT_EQ(ended().status, kDone);
}

TEST_F(Window, TurningTwoSidedOffChangesTheJobAndDisablesThePanel) {
  open("duplex-shift.ppd");
  goTo(kTwoSided);
  press({"space", "Up", "Return"});
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_THAT(printed(), Contains(Pair("Duplex", "None")));
  EXPECT_THAT(printed(), Contains(Pair("LeftRightMargin", "0")));
}

TEST_F(Window, CopiesAreTypedAndMistakesKeepTheDialogOpen) {
  open("duplex-shift.ppd");
  goTo(kCopies);
  press({"ctrl+a"});
  type("many");
  press({"Return"});
  ASSERT_TRUE(says("Enter a number of copies from 1 to 9999."));
  EXPECT_FALSE(dialogProcess->hasEnded());
  press({"ctrl+a"});
  type("3");
  press({"Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(printed(), Contains(Pair("copies", "3")));
}

TEST_F(Window, ATypedRangeOfPagesIsSentInTheFormatOfCups) {
  open("duplex-shift.ppd");
  goTo(kPages);
  press({"space", "Down", "Down", "Down", "Return"}); // the entry field has the focus then
  type("7, 1-3");
  press({"Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(printed(), Contains(Pair("page-ranges", "\"1-3,7\"")));
}

TEST_F(Window, OddPagesApplyToARange) {
  open("duplex-shift.ppd");
  goTo(kPages);
  press({"space", "Down", "Return", "Tab"});
  type("1-6");
  press({"Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(printed(),
              AllOf(Contains(Pair("page-ranges", "1-6")), Contains(Pair("page-set", "odd"))));
}

TEST_F(Window, EvenPagesNeedNoRange) {
  open("duplex-shift.ppd");
  goTo(kPages);
  press({"space", "Down", "Down", "Return", "Return"});
  EXPECT_EQ(ended().status, kDone);
  EXPECT_THAT(printed(), Contains(Pair("page-set", "even")));
  EXPECT_EQ(printed().count("page-ranges"), 0U);
}

TEST_F(Window, AConflictIsResolvedByItsButton) {
  open("duplex-shift.ppd");
  goTo(kPanes);
  press({"space", "Down", "Return", "Tab"});  // the printer's options; media type is first
  press({"space", "Down", "Down", "Return"}); // transparency, which has one side only
  press({"Tab", "Tab", "Return"});            // banner pages, resolve
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_THAT(printed(), Contains(Pair("MediaType", "Transparency")));
  EXPECT_THAT(printed(), Contains(Pair("Duplex", "None")));
}

TEST_F(QueueWindow, PrintSendsTheJobToCups) {
  openQueue();
  type("-3");
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_THAT(ended().output, HasSubstr("request id is office-"));
}

TEST_F(QueueWindow, ADryRunShowsWhatCupsWouldBeSent) {
  openQueue({"--dry-run", "-n", "2"});
  type("-3");
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  EXPECT_THAT(ended().output, AllOf(HasSubstr("LeftRightMargin"), HasSubstr("copies")));
  EXPECT_EQ(cups->run({"lpstat", "-W", "not-completed", "-o"}).output, "");
}

TEST_F(QueueWindow, AQueueDeletedMeanwhileIsReportedAndTheDialogStays) {
  openQueue();
  type("-3");
  ASSERT_EQ(cups->run({"lpadmin", "-x", "office"}).status, 0);
  press({"Return"});
  ASSERT_TRUE(says("office"));
  EXPECT_FALSE(dialogProcess->hasEnded());
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled);
}

TEST_F(QueueWindow, ASavedPresetIsOneThatCupsKnows) {
  openQueue();
  type("-3");
  goTo(kPresets);
  press({"space", "Down", "Return"});
  ASSERT_TRUE(becomesTrue([&] {
    return runProcess({"xdotool", "getwindowfocus", "getwindowname"}).output ==
           "Name of the preset\n";
  }));
  type("thrifty");
  press({"Return"});
  ASSERT_TRUE(becomesTrue([&] { return hasKeyboard(); }));
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled);
  const auto result =
      dialog({"--batch", "-d", "office/thrifty", "--dry-run", sample("two-sided.pdf")},
             cups->environment());
  EXPECT_THAT(result.output, HasSubstr("LeftRightMargin"));
  EXPECT_THAT(result.output, HasSubstr("-3"));
}

TEST_F(Window, WithLargeTextFitsTheScreen) {
  open("duplex-shift.ppd", {}, {"PRINT_DIALOG_TEXT_SCALE=1.5"});
  const auto numbers = [](const std::string &text) {
    std::istringstream stream(text);
    std::pair<int, int> size;
    stream >> size.first >> size.second;
    return size;
  };
  const std::string told = runProcess({"xwininfo", "-name", "Print"}).output;
  const auto valueOf = [&](const std::string &name) {
    const std::size_t found = told.find(name + ":");
    return found == std::string::npos ? -1 : std::stoi(told.substr(found + name.size() + 1));
  };
  const auto screen = numbers(runProcess({"xdotool", "getdisplaygeometry"}).output);
  EXPECT_GT(valueOf("Width"), 900) << told; // it is large
  EXPECT_GE(valueOf("upper-left X"), 0);
  EXPECT_GE(valueOf("upper-left Y"), 0);
  EXPECT_LE(valueOf("upper-left X") + valueOf("Width"), screen.first);
  EXPECT_LE(valueOf("upper-left Y") + valueOf("Height"), screen.second);
}

} // namespace
