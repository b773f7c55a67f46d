// The entries for the print dialog's summary.
#import "ControllerFixture.h"
#import "SilentBundle.h"

using namespace imageposition::test;
using testing::ElementsAre;

namespace {

std::string at(NSDictionary *summary, const std::string &key) {
  return cxxString([summary objectForKey:nsString(key)]);
}

Lines order(NSDictionary *summary) {
  Lines keys;
  NSArray *list = [summary objectForKey:@"Summary Display Order"];
  for (NSUInteger i = 0; i < [list count]; ++i)
    keys.push_back(cxxString([list objectAtIndex:i]));
  return keys;
}

class SummaryCalls : public ControllerFixture {
protected:
  void SetUp() override {
    ControllerFixture::SetUp();
    makeHollow();
    check()->text = [@"the state's text" retain];
  }

  RecordingControl *check() { return control("chkEnableImagePositionAdjust"); }

  /// The calls after reading the print settings and checking availability a second time.
  Lines afterTheCheck() {
    const Lines lines = journal.take();
    auto last = std::find(lines.rbegin(), lines.rend(), "self.checkImagePositionAdjustValid");
    return Lines(last.base(), lines.end());
  }
};

TEST_F(SummaryCalls, ReadsThePrintSettingsFirst) {
  [controller getSummaryInfo];
  const Lines lines = journal.take();
  EXPECT_EQ(lines[0], "self.getTicket");
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "self.getTicket"), 1);
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "self.grayUI"), 1);
}

TEST_F(SummaryCalls, ChecksAvailabilityOnceMoreAfterReading) {
  [controller getSummaryInfo];
  EXPECT_THAT(log->lines(), ElementsAre(kCheckTrace, kCheckTrace));
}

TEST_F(SummaryCalls, ReadsTheCheckboxTheValuesAndTheStateThenTheTitles) {
  settings->put(kEnableKey, "True");
  [controller getSummaryInfo];
  EXPECT_THAT(afterTheCheck(),
              ElementsAre("check.stringValue", "FrontLRM.getValueString", "FrontTBM.getValueString",
                          "BackLRM.getValueString", "BackTBM.getValueString", "check.state",
                          "FrontLRM.getSummaryInfoName", "strings.localize:FrontLRMSummary",
                          "FrontTBM.getSummaryInfoName", "strings.localize:FrontTBMSummary",
                          "BackLRM.getSummaryInfoName", "strings.localize:BackLRMSummary",
                          "BackTBM.getSummaryInfoName", "strings.localize:BackTBMSummary",
                          "strings.localize:EnableImgPstAdj"));
}

TEST_F(SummaryCalls, WhileUncheckedTheFrontTitlesNameNoSide) {
  [controller getSummaryInfo];
  EXPECT_THAT(afterTheCheck(),
              ElementsAre("check.stringValue", "FrontLRM.getValueString", "FrontTBM.getValueString",
                          "BackLRM.getValueString", "BackTBM.getValueString", "check.state",
                          "strings.localize:LRM", "strings.localize:TBM",
                          "BackLRM.getSummaryInfoName", "strings.localize:BackLRMSummary",
                          "BackTBM.getSummaryInfoName", "strings.localize:BackTBMSummary",
                          "strings.localize:EnableImgPstAdj"));
}

TEST_F(SummaryCalls, WhileCheckedAllValuesHaveTheirSummaryNames) {
  settings->put(kEnableKey, "True");
  NSDictionary *summary = [controller getSummaryInfo];
  EXPECT_EQ([summary count], 6U);
  EXPECT_EQ(at(summary, "[FrontLRMSummary]"), "FrontLRM's value");
  EXPECT_EQ(at(summary, "[FrontTBMSummary]"), "FrontTBM's value");
  EXPECT_EQ(at(summary, "[BackLRMSummary]"), "BackLRM's value");
  EXPECT_EQ(at(summary, "[BackTBMSummary]"), "BackTBM's value");
  EXPECT_THAT(order(summary),
              ElementsAre("[EnableImgPstAdj]", "[FrontLRMSummary]", "[FrontTBMSummary]",
                          "[BackLRMSummary]", "[BackTBMSummary]"));
}

TEST_F(SummaryCalls, WhileUncheckedTheFrontValuesHaveTitlesWithoutASide) {
  NSDictionary *summary = [controller getSummaryInfo];
  EXPECT_EQ([summary count], 6U);
  EXPECT_EQ(at(summary, "[LRM]"), "FrontLRM's value");
  EXPECT_EQ(at(summary, "[TBM]"), "FrontTBM's value");
  EXPECT_EQ(at(summary, "[BackLRMSummary]"), "BackLRM's value");
  EXPECT_EQ(at(summary, "[BackTBMSummary]"), "BackTBM's value");
  EXPECT_THAT(order(summary), ElementsAre("[EnableImgPstAdj]", "[LRM]", "[TBM]", "[BackLRMSummary]",
                                          "[BackTBMSummary]"));
}

TEST_F(SummaryCalls, WhenForbiddenItIsEmptyButNotNull) {
  ppd->mark("Duplex", "None");
  NSDictionary *summary = [controller getSummaryInfo];
  ASSERT_NE(summary, nil);
  EXPECT_EQ([summary count], 0U);
  const Lines lines = journal.take();
  EXPECT_EQ(lines[0], "self.getTicket");
  EXPECT_EQ(lines.back(), "self.checkImagePositionAdjustValid");
}

TEST_F(SummaryCalls, WithoutPrintSettingsItHasTheSettingsValues) {
  host->settings = nullptr;
  EXPECT_EQ(at([controller getSummaryInfo], "[BackTBMSummary]"), "BackTBM's value");
}

TEST_F(SummaryCalls, EachCallReturnsANewDictionary) {
  EXPECT_NE([controller getSummaryInfo], [controller getSummaryInfo]);
}

class SummaryInfo : public ControllerFixture {
protected:
  void SetUp() override {
    ControllerFixture::SetUp();
    writeBundle();
    writeInterfaceFile();
    ASSERT_NE(make(), nil);
  }
};

TEST_F(SummaryInfo, ShowsTheValuesInThePrintSettings) {
  [controller prepareView];
  settings->put(kEnableKey, "True");
  settings->put("FrontLRMTicket", "-3");
  settings->put("BackTBMTicket", "7");
  NSDictionary *summary = [controller getSummaryInfo];
  EXPECT_EQ(at(summary, "Separate offsets for the back"), "1");
  EXPECT_EQ(at(summary, "Front left-right shift"), "-3");
  EXPECT_EQ(at(summary, "Front top-bottom shift"), "0");
  EXPECT_EQ(at(summary, "Back left-right shift"), "0");
  EXPECT_EQ(at(summary, "Back top-bottom shift"), "7");
  EXPECT_THAT(order(summary), ElementsAre("Separate offsets for the back", "Front left-right shift",
                                          "Front top-bottom shift", "Back left-right shift",
                                          "Back top-bottom shift"));
}

TEST_F(SummaryInfo, AnUncheckedBoxHasTheValueZero) {
  [controller prepareView];
  settings->put("FrontLRMTicket", "-3");
  NSDictionary *summary = [controller getSummaryInfo];
  EXPECT_EQ([summary count], 6U);
  EXPECT_EQ(at(summary, "Separate offsets for the back"), "0");
  EXPECT_EQ(at(summary, "Left-right"), "-3");
  EXPECT_EQ(at(summary, "Top-bottom"), "0");
}

TEST_F(SummaryInfo, SettingsThatAreNotStoredShowTheirDefaults) {
  NSMutableDictionary *record = definition("BackLRM");
  [record setObject:@"4" forKey:@"DefaultValue"];
  NSMutableDictionary *all = fourDefinitions();
  [all setObject:record forKey:@"2"];
  writeBundle(all);
  ASSERT_NE(make(), nil);
  [controller prepareView];
  EXPECT_EQ(at([controller getSummaryInfo], "Back left-right shift"), "4");
}

TEST_F(SummaryInfo, BeforeTheViewIsLoadedTheBoxCountsAsUnchecked) {
  settings->put(kEnableKey, "True");
  settings->put("FrontLRMTicket", "-3");
  NSDictionary *summary = [controller getSummaryInfo];
  EXPECT_EQ([summary count], 6U);
  EXPECT_EQ(at(summary, "Separate offsets for the back"), "0");
  EXPECT_EQ(at(summary, "Left-right"), "-3");
  EXPECT_THAT(order(summary),
              ElementsAre("Separate offsets for the back", "Left-right", "Top-bottom",
                          "Back left-right shift", "Back top-bottom shift"));
}

TEST_F(SummaryInfo, DoesNotLoadTheView) {
  [controller getSummaryInfo];
  EXPECT_EQ(get<id>("ImagePositionPrintView"), nil);
}

TEST_F(SummaryInfo, WritesNothing) {
  [controller prepareView];
  settings->forgetCalls();
  [controller getSummaryInfo];
  EXPECT_EQ(settings->count(TestPrintSettings::Access::Set), 0U);
}

TEST_F(SummaryInfo, WithoutLocalizedStringsTheSummaryTitlesAreTheKeys) {
  TestBundle plain;
  plain.writePropertyList("SettingInfo", fourDefinitions());
  plain.writePropertyList("ConstraintInfo", [NSDictionary dictionary]);
  MorvaADPSettingsCollectorRV2 *other =
      [[[MorvaADPSettingsCollectorRV2 alloc] initWithCallback:host
                                                       Bundle:plain.bundle()] autorelease];
  EXPECT_THAT(order([other getSummaryInfo]),
              ElementsAre("EnableImgPstAdj", "LRM", "TBM", "BackLRMSummary", "BackTBMSummary"));
}

TEST_F(SummaryInfo, EqualTitlesShareOneEntryWithoutHarm) {
  TestBundle same;
  same.writePropertyList("SettingInfo", fourDefinitions());
  same.writePropertyList("ConstraintInfo", [NSDictionary dictionary]);
  same.writeStrings({{"BackLRMSummary", "Same"}, {"BackTBMSummary", "Same"}});
  MorvaADPSettingsCollectorRV2 *other =
      [[[MorvaADPSettingsCollectorRV2 alloc] initWithCallback:host
                                                       Bundle:same.bundle()] autorelease];
  NSDictionary *summary = [other getSummaryInfo];
  EXPECT_EQ([summary count], 5U);
  EXPECT_EQ(order(summary).size(), 5U);
}

// The key replaces a missing string; here there is no key either.
TEST_F(SummaryInfo, AValueWithoutATitleHasNoEntry) {
  NSMutableDictionary *records = fourDefinitions();
  [[records objectForKey:@"2"] removeObjectForKey:@"SummaryInfoName"];
  writeBundle(records);
  ASSERT_NE(make(), nil);
  SilentBundle *strings = [[SilentBundle alloc] init];
  NSBundle *original = get<NSBundle *>("Bundle");
  get<id>("Bundle") = strings;
  NSDictionary *summary = [controller getSummaryInfo];
  get<id>("Bundle") = original;
  [strings release];
  EXPECT_THAT(order(summary), ElementsAre("EnableImgPstAdj", "LRM", "TBM", "BackTBMSummary"));
}

// A missing setting has neither name nor value; the rest of the summary is complete.
TEST_F(SummaryInfo, MissingSettingsDoNoHarm) {
  writeBundle(definitions({definition("FrontLRM")}));
  ASSERT_NE(make(), nil);
  settings->put("FrontLRMTicket", "5");
  NSDictionary *summary = [controller getSummaryInfo];
  ASSERT_NE(summary, nil);
  EXPECT_EQ(at(summary, "Left-right"), "5");
}

} // namespace
