// The effects of the user's actions and the dialog's refreshes.
#import "ControllerFixture.h"

using namespace imageposition::test;
using testing::ElementsAre;

namespace {

class UserAction : public ControllerFixture {
protected:
  void SetUp() override {
    ControllerFixture::SetUp();
    makeHollow();
  }

  /// The journal up to the update of availability, which AvailabilityTest covers.
  Lines beforeGraying() {
    Lines lines = journal.take();
    const auto graying = std::find(lines.begin(), lines.end(), "self.grayUI");
    EXPECT_NE(graying, lines.end()) << "availability was not updated";
    return Lines(lines.begin(), graying);
  }

  /// How often availability was updated, and the calls after the last update.
  static std::size_t gray(const Lines &lines) {
    return std::count(lines.begin(), lines.end(), "self.grayUI");
  }
};

Lines onAll(const std::string &operation) {
  Lines lines;
  for (const std::string &name : kNames)
    lines.push_back(name + "." + operation);
  return lines;
}

const Lines kTitles = {"strings.localize:EnableImgPstAdj", "check.setTitle:[EnableImgPstAdj]",
                       "strings.localize:RestoreDefaults", "button.setTitle:[RestoreDefaults]"};

/// The lines without look-ups of strings.
Lines withoutStrings(const Lines &lines) {
  Lines kept;
  for (const std::string &line : lines)
    if (line.rfind("strings.", 0) != 0)
      kept.push_back(line);
  return kept;
}

TEST_F(UserAction, ARefreshTakesAllValuesThenAppliesAllRulesThenUpdatesAvailability) {
  [controller notifyUI];
  EXPECT_EQ(beforeGraying(), (Lines{"self.notifyUI", "host.printSettings"} + kTitles +
                              onAll("checkUI:settings") + onAll("applyUIConstraint:settings")));
}

TEST_F(UserAction, ARefreshWithoutPrintSettingsSetsTheTitlesAndUpdatesAvailability) {
  host->settings = nullptr;
  [controller notifyUI];
  EXPECT_EQ(beforeGraying(), (Lines{"self.notifyUI", "host.printSettings"} + kTitles));
}

TEST_F(UserAction, ARefreshWithoutAHostSetsTheTitlesAndUpdatesAvailability) {
  id callback = get<id>("PDECallback");
  get<id>("PDECallback") = nil;
  [controller notifyUI];
  EXPECT_EQ(beforeGraying(), (Lines{"self.notifyUI"} + kTitles));
  get<id>("PDECallback") = callback;
}

TEST_F(UserAction, ARefreshUpdatesAvailabilityOnceAndLast) {
  [controller notifyUI];
  const Lines lines = journal.take();
  EXPECT_EQ(gray(lines), 1U);
  EXPECT_THAT(log->lines(), ElementsAre(kCheckTrace));
  EXPECT_EQ(lines.back(), "BackTBMRangeLabel.setTextColor:lightGray");
}

TEST_F(UserAction, ARefreshRequestsThePrintSettingsEachTime) {
  [controller notifyUI];
  [controller notifyUI];
  EXPECT_EQ(host->settingsRequests, 2);
}

TEST_F(UserAction, AnActionNotifiesTheSenderThenRefreshesThePanelThenChecksTheValues) {
  [controller UIItemActionListener:get<id>("BackLRMStepper")];
  const Lines lines = journal.take();
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 4),
            (Lines{"self.UIItemActionListener:", "BackLRMStepper.catchEventCall", "self.notifyUI",
                   "host.printSettings"}));
  EXPECT_EQ(Lines(lines.end() - 5, lines.end()),
            (Lines{"self.checkSettingsValue"} + onAll("checkValue")));
  EXPECT_EQ(gray(lines), 1U);
}

TEST_F(UserAction, EverySettingIsRefreshedWhicheverControlSentTheAction) {
  [controller UIItemActionListener:get<id>("FrontTBMText")];
  const Lines lines = journal.take();
  for (const std::string &line : onAll("checkUI:settings") + onAll("checkValue"))
    EXPECT_EQ(std::count(lines.begin(), lines.end(), line), 1) << line;
}

TEST_F(UserAction, AnActionWithoutASenderStillRefreshes) {
  [controller UIItemActionListener:nil];
  const Lines lines = journal.take();
  EXPECT_EQ(lines[0], "self.UIItemActionListener:");
  EXPECT_EQ(lines[1], "self.notifyUI");
  EXPECT_EQ(lines.back(), "BackTBM.checkValue");
}

TEST_F(UserAction, ASenderWithoutTheProtocolIsNotNotifiedButThePanelIsRefreshed) {
  // It implements the method, but only the protocol counts.
  [controller UIItemActionListener:get<id>("chkEnableImagePositionAdjust")];
  const Lines lines = journal.take();
  EXPECT_EQ(lines[0], "self.UIItemActionListener:");
  EXPECT_EQ(lines[1], "self.notifyUI");
  EXPECT_EQ(lines.back(), "BackTBM.checkValue");
}

TEST_F(UserAction, ASenderWithoutMethodsDoesNoHarm) {
  [controller UIItemActionListener:[[[NSObject alloc] init] autorelease]];
  EXPECT_EQ(journal.take().back(), "BackTBM.checkValue");
}

TEST_F(UserAction, CheckingTheValuesCallsEachSettingInOrder) {
  [controller checkSettingsValue];
  EXPECT_EQ(journal.take(), (Lines{"self.checkSettingsValue"} + onAll("checkValue")));
}

TEST_F(UserAction, TheCheckboxUpdatesAvailabilityAndNothingElse) {
  [controller clickEnableImgPositionAdjust:get<id>("chkEnableImagePositionAdjust")];
  const Lines clicked = journal.take();
  [controller grayUI];
  EXPECT_EQ(clicked, journal.take());
  EXPECT_EQ(host->settingsRequests, 0);
  EXPECT_TRUE(settings->calls().empty());
}

TEST_F(UserAction, RestoringDefaultsUnchecksAndZeroesTwiceThenUpdatesAvailability) {
  [controller restoreDefaults];
  Lines texts;
  for (const std::string &name : kNames)
    texts.push_back(name + "Text.setStringValue:0");
  EXPECT_EQ(beforeGraying(), (Lines{"self.restoreDefaults", "check.setState:0"} + texts +
                              onAll("setIntValue:0") + onAll("setStringValue:(null)")));
}

TEST_F(UserAction, RestoringDefaultsNeitherRefreshesNorWrites) {
  [controller restoreDefaults];
  const Lines lines = journal.take();
  EXPECT_THAT(lines, testing::Not(testing::Contains("self.notifyUI")));
  EXPECT_THAT(lines, testing::Not(testing::Contains(testing::StartsWith("host."))));
  EXPECT_TRUE(settings->calls().empty());
  EXPECT_EQ(gray(lines), 1U);
}

TEST_F(UserAction, TheButtonRestoresTheDefaults) {
  control("chkEnableImagePositionAdjust")->stateValue = 1;
  [controller clickbtnReasto2Default:get<id>("btnRestore2Defalut")];
  const Lines clicked = journal.take();
  control("chkEnableImagePositionAdjust")->stateValue = 1;
  [controller restoreDefaults];
  EXPECT_EQ(clicked, journal.take());
}

TEST_F(UserAction, AfterTheButtonTheBackIsDisabledAndTheFrontNamesNameNoSide) {
  control("chkEnableImagePositionAdjust")->stateValue = 1;
  [controller clickbtnReasto2Default:nil];
  const Lines lines = journal.take();
  EXPECT_THAT(lines, testing::Contains("FrontLRMLabel.setStringValue:[LRM]"));
  EXPECT_THAT(lines, testing::Contains("BackLRMText.setEnabled:0"));
  EXPECT_THAT(lines, testing::Contains("FrontLRMText.setEnabled:1"));
}

TEST_F(UserAction, TheOtherRestoreActionDoesNothing) {
  [controller clickRestore2Default:get<id>("btnRestore2Defalut")];
  [controller clickRestore2Default:nil];
  EXPECT_TRUE(journal.take().empty());
  EXPECT_TRUE(log->lines().empty());
}

TEST_F(UserAction, WithoutLocalizedStringsTheTitlesAreTheKeys) {
  TestBundle empty;
  id strings = get<id>("Bundle");
  get<id>("Bundle") = empty.bundle();
  host->settings = nullptr;
  [controller notifyUI];
  EXPECT_EQ(withoutStrings(beforeGraying()),
            (Lines{"self.notifyUI", "host.printSettings", "check.setTitle:EnableImgPstAdj",
                   "button.setTitle:RestoreDefaults"}));
  get<id>("Bundle") = strings;
}

TEST_F(UserAction, MissingSettingsAreSkipped) {
  id missing = get<id>("FrontTBMSettings");
  get<id>("FrontTBMSettings") = nil;
  [controller UIItemActionListener:nil];
  [controller restoreDefaults];
  EXPECT_THAT(journal.take(), testing::Not(testing::Contains(testing::StartsWith("FrontTBM."))));
  get<id>("FrontTBMSettings") = missing;
}

TEST_F(ControllerFixture, EveryMethodIsHarmlessBeforeTheViewIsLoaded) {
  writeBundle();
  ASSERT_NE(make(), nil);
  [controller UIItemActionListener:nil];
  [controller notifyUI];
  [controller checkSettingsValue];
  [controller clickEnableImgPositionAdjust:nil];
  [controller clickRestore2Default:nil];
  [controller clickbtnReasto2Default:nil];
  [controller setFrontName];
  [controller prepareForShow];
  [controller CBSCInitializeView];
  [controller notifyUI];
  EXPECT_TRUE([controller getTicket]);
  EXPECT_TRUE([controller saveTicket]);
  EXPECT_EQ(value("FrontLRM"), 0);
}

} // namespace
