// Which controls are usable, how the front offsets are named, and what is logged about it.
#import "ControllerFixture.h"

using namespace imageposition::test;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

class GrayUI : public ControllerFixture {
protected:
  void SetUp() override {
    ControllerFixture::SetUp();
    makeHollow();
  }

  /// Gives the controller another PPD.
  void usePrinter(const Lines &lines) {
    other_ = std::make_unique<TestPpd>(lines);
    get<ppd_file_t *>("ppd") = other_->get();
  }

  void forbid() { ppd->mark("Duplex", "None"); }

  /// The journal without the controller's methods and the look-ups of strings.
  Lines onControls() {
    Lines lines;
    for (const std::string &line : journal.take())
      if (line.rfind("self.", 0) != 0 && line.rfind("strings.", 0) != 0)
        lines.push_back(line);
    return lines;
  }

private:
  std::unique_ptr<TestPpd> other_;
};

Lines group(const std::string &name, bool usable) {
  const std::string enabled = usable ? ".setEnabled:1" : ".setEnabled:0";
  const std::string coloured = usable ? ".setTextColor:black" : ".setTextColor:lightGray";
  return {name + "Text" + enabled,   name + "Stepper" + enabled,
          name + "Label" + enabled,  name + "RangeLabel" + enabled,
          name + "Label" + coloured, name + "RangeLabel" + coloured};
}

Lines frontNames(bool own) {
  return own ? Lines{"check.state", "FrontLRMLabel.setStringValue:[FrontLRM]",
                     "FrontTBMLabel.setStringValue:[FrontTBM]"}
             : Lines{"check.state", "FrontLRMLabel.setStringValue:[LRM]",
                     "FrontTBMLabel.setStringValue:[TBM]"};
}

// The check.

struct CheckRow {
  const char *duplex; // null if there is no such option
  const char *banner;
  bool allowed;
  Lines traces;
};

std::ostream &operator<<(std::ostream &out, const CheckRow &row) {
  return out << "Duplex " << (row.duplex ? row.duplex : "missing") << ", MVBannerPagePrint "
             << (row.banner ? row.banner : "missing");
}

class AvailabilityCheck : public GrayUI, public testing::WithParamInterface<CheckRow> {};

TEST_P(AvailabilityCheck, FollowsTheMarkedChoicesAndTracesThem) {
  Lines lines;
  if (GetParam().duplex)
    lines = lines + TestPpd::option("Duplex", {GetParam().duplex});
  if (GetParam().banner)
    lines = lines + TestPpd::option("MVBannerPagePrint", {GetParam().banner});
  usePrinter(lines);
  EXPECT_EQ([controller checkImagePositionAdjustValid], GetParam().allowed ? YES : NO);
  EXPECT_EQ(log->lines(), GetParam().traces);
}

INSTANTIATE_TEST_SUITE_P(
    MarkedChoices, AvailabilityCheck,
    testing::Values(CheckRow{"None", "True", false, {kDuplexTrace, kBannerTrace, kCheckTrace}},
                    CheckRow{"None", "False", false, {kDuplexTrace, kCheckTrace}},
                    CheckRow{"None", nullptr, false, {kDuplexTrace, kCheckTrace}},
                    CheckRow{"DuplexNoTumble", "True", false, {kBannerTrace, kCheckTrace}},
                    CheckRow{nullptr, "True", false, {kBannerTrace, kCheckTrace}},
                    CheckRow{"DuplexNoTumble", "False", true, {kCheckTrace}},
                    CheckRow{"DuplexTumble", nullptr, true, {kCheckTrace}},
                    CheckRow{nullptr, "False", true, {kCheckTrace}},
                    CheckRow{nullptr, nullptr, true, {kCheckTrace}},
                    CheckRow{"none", "False", true, {kCheckTrace}},
                    CheckRow{"NONE", "False", true, {kCheckTrace}},
                    CheckRow{"NoneAtAll", "False", true, {kCheckTrace}},
                    CheckRow{"DuplexNoTumble", "true", true, {kCheckTrace}},
                    CheckRow{"DuplexNoTumble", "TRUE", true, {kCheckTrace}},
                    CheckRow{"DuplexNoTumble", "Truely", true, {kCheckTrace}}));

TEST_F(GrayUI, DuplexNoneAndBannerTrueGiveThreeTraceLinesInOrder) {
  ppd->mark("Duplex", "None");
  ppd->mark("MVBannerPagePrint", "True");
  EXPECT_FALSE([controller checkImagePositionAdjustValid]);
  EXPECT_THAT(log->lines(), ElementsAre("@@@Get duplex setting Duplex = None !",
                                        "@@@Get MVBannerPagePrint setting  True= True !",
                                        "@@@Check on checkbox Enable Image Position Adjust!"));
}

TEST_F(GrayUI, WithoutAPrinterDescriptionNothingIsForbidden) {
  get<ppd_file_t *>("ppd") = nullptr;
  EXPECT_TRUE([controller checkImagePositionAdjustValid]);
  EXPECT_THAT(log->lines(), ElementsAre(kCheckTrace));
}

TEST_F(GrayUI, AnOptionWithoutAMarkedChoiceForbidsNothing) {
  usePrinter({"*OpenUI *Duplex: PickOne", "*Duplex None: \"\"", "*Duplex DuplexTumble: \"\"",
              "*CloseUI: *Duplex"});
  ASSERT_EQ(ppdFindMarkedChoice(get<ppd_file_t *>("ppd"), "Duplex"), nullptr);
  EXPECT_TRUE([controller checkImagePositionAdjustValid]);
}

TEST_F(GrayUI, TheCheckReadsTheMarkedChoicesEachTime) {
  EXPECT_TRUE([controller checkImagePositionAdjustValid]);
  ppd->mark("Duplex", "None");
  EXPECT_FALSE([controller checkImagePositionAdjustValid]);
  ppd->mark("Duplex", "DuplexTumble");
  EXPECT_TRUE([controller checkImagePositionAdjustValid]);
}

TEST_F(GrayUI, TheCheckIsTracedOncePerCall) {
  [controller checkImagePositionAdjustValid];
  [controller checkImagePositionAdjustValid];
  EXPECT_THAT(log->lines(), ElementsAre(kCheckTrace, kCheckTrace));
}

TEST_F(GrayUI, TheCheckCallsNoControl) {
  [controller checkImagePositionAdjustValid];
  EXPECT_THAT(journal.take(), ElementsAre("self.checkImagePositionAdjustValid"));
}

TEST_F(GrayUI, TheCheckKeepsThePrinterThatTheControllerWasBuiltWith) {
  host->ppd = nullptr;
  ppd->mark("Duplex", "None");
  EXPECT_FALSE([controller checkImagePositionAdjustValid]);
  EXPECT_EQ(host->ppdRequests, 1);
}

// Graying.

struct StateRow {
  NSInteger state;
  bool counts;
};

std::ostream &operator<<(std::ostream &out, const StateRow &row) {
  return out << "state " << row.state;
}

class AvailabilityGraying : public GrayUI, public testing::WithParamInterface<StateRow> {
protected:
  void SetUp() override {
    GrayUI::SetUp();
    control("chkEnableImagePositionAdjust")->stateValue = GetParam().state;
  }
};

TEST_P(AvailabilityGraying, WhenAllowedTheFrontIsUsableAndTheCheckboxDecidesAboutTheBack) {
  [controller grayUI];
  const bool own = GetParam().counts;
  EXPECT_EQ(onControls(),
            (Lines{"check.setEnabled:1", "button.setEnabled:1"} + frontNames(own) +
             Lines{"check.state"} + group("FrontLRM", true) + group("FrontTBM", true) +
             group("BackLRM", own) + group("BackTBM", own)));
}

TEST_P(AvailabilityGraying, WhenForbiddenNothingIsUsableAndTheNamesFollowTheCheckbox) {
  forbid();
  [controller grayUI];
  EXPECT_EQ(onControls(),
            (Lines{"check.setEnabled:0"} + group("FrontLRM", false) + group("FrontTBM", false) +
             group("BackLRM", false) + group("BackTBM", false) + frontNames(GetParam().counts) +
             Lines{"button.setEnabled:0"}));
}

TEST_P(AvailabilityGraying, NeverChangesTheCheckbox) {
  [controller grayUI];
  forbid();
  [controller grayUI];
  EXPECT_EQ(control("chkEnableImagePositionAdjust")->stateValue, GetParam().state);
  EXPECT_THAT(journal.take(), testing::Not(testing::Contains(testing::HasSubstr("setState:"))));
}

TEST_P(AvailabilityGraying, NamesTheFrontOffsetsAccordingToTheCheckbox) {
  [controller setFrontName];
  const bool own = GetParam().counts;
  EXPECT_EQ(onControls(), frontNames(own));
}

INSTANTIATE_TEST_SUITE_P(Checkbox, AvailabilityGraying,
                         testing::Values(StateRow{0, false}, StateRow{1, true},
                                         StateRow{-1, true}));

TEST_F(GrayUI, AllowedGrayingGoesThroughTheControllersMethods) {
  control("chkEnableImagePositionAdjust")->stateValue = 1;
  [controller grayUI];
  Lines own;
  for (const std::string &line : journal.take())
    if (line.rfind("self.", 0) == 0)
      own.push_back(line);
  EXPECT_THAT(own,
              ElementsAre("self.grayUI", "self.checkImagePositionAdjustValid", "self.setFrontName",
                          "self.setFrontLRMState:1", "self.setFrontTBMState:1",
                          "self.setBackLRMState:1", "self.setBackTBMState:1"));
}

TEST_F(GrayUI, ForbiddenGrayingGoesThroughTheControllersMethods) {
  forbid();
  [controller grayUI];
  Lines own;
  for (const std::string &line : journal.take())
    if (line.rfind("self.", 0) == 0)
      own.push_back(line);
  EXPECT_THAT(own,
              ElementsAre("self.grayUI", "self.checkImagePositionAdjustValid",
                          "self.setFrontLRMState:0", "self.setFrontTBMState:0",
                          "self.setBackLRMState:0", "self.setBackTBMState:0", "self.setFrontName"));
}

TEST_F(GrayUI, GrayingChecksOnce) {
  [controller grayUI];
  EXPECT_THAT(log->lines(), ElementsAre(kCheckTrace));
}

TEST_F(GrayUI, GrayingCallsNoSettingAndNoPrintSettings) {
  [controller grayUI];
  for (const std::string &line : onControls()) {
    for (const std::string &name : kNames)
      EXPECT_NE(line.rfind(name + ".", 0), 0U) << line;
    EXPECT_NE(line.rfind("host.", 0), 0U) << line;
  }
  EXPECT_TRUE(settings->calls().empty());
}

// Single groups.

using Setter = void (*)(MorvaADPSettingsCollectorRV2 *, BOOL);

struct GroupRow {
  const char *name;
  Setter set;
};

class AvailabilityGroup : public GrayUI, public testing::WithParamInterface<GroupRow> {};

TEST_P(AvailabilityGroup, MadeUsableIsEnabledWithBlackLabels) {
  GetParam().set(controller, YES);
  EXPECT_EQ(onControls(), group(GetParam().name, true));
}

TEST_P(AvailabilityGroup, MadeUnusableIsDisabledWithLightGrayLabels) {
  GetParam().set(controller, NO);
  EXPECT_EQ(onControls(), group(GetParam().name, false));
}

INSTANTIATE_TEST_SUITE_P(
    Groups, AvailabilityGroup,
    testing::Values(GroupRow{"FrontTBM", [](auto c, BOOL on) { [c setFrontTBMState:on]; }},
                    GroupRow{"FrontLRM", [](auto c, BOOL on) { [c setFrontLRMState:on]; }},
                    GroupRow{"BackLRM", [](auto c, BOOL on) { [c setBackLRMState:on]; }},
                    GroupRow{"BackTBM", [](auto c, BOOL on) { [c setBackTBMState:on]; }}),
    [](const auto &row) { return std::string(row.param.name); });

// Names.

TEST_F(GrayUI, FrontNamesAreLookedUpAndSetOneAfterTheOther) {
  control("chkEnableImagePositionAdjust")->stateValue = 1;
  [controller setFrontName];
  EXPECT_THAT(journal.take(),
              ElementsAre("self.setFrontName", "check.state", "strings.localize:FrontLRM",
                          "FrontLRMLabel.setStringValue:[FrontLRM]", "strings.localize:FrontTBM",
                          "FrontTBMLabel.setStringValue:[FrontTBM]"));
}

TEST_F(GrayUI, WithoutLocalizedStringsTheKeysAreShown) {
  TestBundle empty;
  RecordingStrings *strings = get<id>("Bundle");
  get<id>("Bundle") = empty.bundle();
  [controller setFrontName];
  EXPECT_EQ(onControls(), (Lines{"check.state", "FrontLRMLabel.setStringValue:LRM",
                                 "FrontTBMLabel.setStringValue:TBM"}));
  control("chkEnableImagePositionAdjust")->stateValue = 1;
  [controller setFrontName];
  EXPECT_EQ(onControls(), (Lines{"check.state", "FrontLRMLabel.setStringValue:FrontLRM",
                                 "FrontTBMLabel.setStringValue:FrontTBM"}));
  get<id>("Bundle") = strings;
}

// Before the view is loaded.

TEST_F(ControllerFixture, WithoutAViewGrayingOnlyLogs) {
  writeBundle();
  ASSERT_NE(make(), nil);
  log->clear();
  [controller grayUI];
  ppd->mark("Duplex", "None");
  [controller grayUI];
  EXPECT_THAT(log->lines(), ElementsAre(kCheckTrace, kDuplexTrace, kCheckTrace));
}

} // namespace
