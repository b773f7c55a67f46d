// Transfer of the values and the enable flag between the job's print settings, the settings and the
// checkbox: the order of calls, and what is logged.
#import "ControllerFixture.h"

using namespace imageposition::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Exchange : public ControllerFixture {
protected:
  void SetUp() override {
    ControllerFixture::SetUp();
    makeHollow();
    settings->recordInto(&journal);
  }

  RecordingControl *check() { return control("chkEnableImagePositionAdjust"); }

  Lines upTo(const std::string &end) {
    Lines lines = journal.take();
    const auto found = std::find(lines.begin(), lines.end(), end);
    EXPECT_NE(found, lines.end()) << end << " was not called";
    return Lines(lines.begin(), found);
  }
};

const std::string kGet = std::string("get ") + kEnableKey;
const std::string kSet = std::string("set ") + kEnableKey;

Lines onAll(const std::string &operation) {
  Lines lines;
  for (const std::string &name : kNames)
    lines.push_back(name + "." + operation);
  return lines;
}

// Reading.

TEST_F(Exchange, ReadingTakesTheFlagThenTheValuesThenUpdatesAvailability) {
  EXPECT_EQ([controller getTicket], YES);
  EXPECT_EQ(upTo("self.grayUI"),
            (Lines{"self.getTicket", "host.printSettings", "self.getEnableImgPstAdjTicket:settings",
                   kGet, "check.setState:0"} +
             onAll("getTicket:settings")));
}

TEST_F(Exchange, ReadingWithoutPrintSettingsReturnsFalseAndOnlyUpdatesAvailability) {
  host->settings = nullptr;
  EXPECT_EQ([controller getTicket], NO);
  EXPECT_EQ(upTo("self.grayUI"), (Lines{"self.getTicket", "host.printSettings"}));
  EXPECT_THAT(logWithoutTraces(), IsEmpty());
}

TEST_F(Exchange, ReadingWithoutAHostReturnsFalseAndOnlyUpdatesAvailability) {
  id callback = get<id>("PDECallback");
  get<id>("PDECallback") = nil;
  EXPECT_EQ([controller getTicket], NO);
  EXPECT_EQ(upTo("self.grayUI"), (Lines{"self.getTicket"}));
  EXPECT_THAT(logWithoutTraces(), IsEmpty());
  get<id>("PDECallback") = callback;
}

TEST_F(Exchange, ReadingUpdatesAvailabilityOnce) {
  [controller getTicket];
  const Lines lines = journal.take();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "self.grayUI"), 1);
}

TEST_F(Exchange, ReadingWritesNothing) {
  settings->put(kEnableKey, "True");
  [controller getTicket];
  EXPECT_EQ(settings->count(TestPrintSettings::Access::Set), 0U);
}

struct FlagRow {
  const char *stored; // null if there is no such entry
  int state;
  Lines log;
};

std::ostream &operator<<(std::ostream &out, const FlagRow &row) {
  return out << (row.stored ? row.stored : "no entry");
}

class ExchangeFlag : public Exchange, public testing::WithParamInterface<FlagRow> {};

TEST_P(ExchangeFlag, ChecksTheBoxOnlyForTrueAndLogsEverySuccessfulRead) {
  if (GetParam().stored)
    settings->put(kEnableKey, GetParam().stored);
  check()->stateValue = 1 - GetParam().state;
  [controller getEnableImgPstAdjTicket:settings->handle()];
  EXPECT_THAT(journal.take(), ElementsAre("self.getEnableImgPstAdjTicket:settings", kGet,
                                          "check.setState:" + std::to_string(GetParam().state)));
  EXPECT_EQ(log->lines(), GetParam().log);
}

INSTANTIATE_TEST_SUITE_P(
    Stored, ExchangeFlag,
    testing::Values(FlagRow{"True", 1, {kFlagRead}}, FlagRow{"False", 0, {kFlagRead}},
                    FlagRow{"true", 0, {kFlagRead}}, FlagRow{"TRUE", 0, {kFlagRead}},
                    FlagRow{"True ", 0, {kFlagRead}}, FlagRow{"1", 0, {kFlagRead}},
                    FlagRow{"", 0, {kFlagRead}}, FlagRow{nullptr, 0, {}}));

TEST_F(Exchange, AFlagThatIsNotAStringUnchecksTheBox) {
  settings->putObject(kEnableKey, [NSNumber numberWithInt:1]);
  check()->stateValue = 1;
  [controller getEnableImgPstAdjTicket:settings->handle()];
  EXPECT_EQ(check()->stateValue, 0);
  EXPECT_THAT(log->lines(), ElementsAre(kFlagRead));
}

TEST_F(Exchange, AFlagReadAsNullUnchecksTheBox) {
  settings->putNothing(kEnableKey);
  check()->stateValue = 1;
  [controller getEnableImgPstAdjTicket:settings->handle()];
  EXPECT_EQ(check()->stateValue, 0);
}

TEST_F(Exchange, AFlagThatCannotBeReadUnchecksTheBoxSilently) {
  settings->put(kEnableKey, "True");
  settings->failReadsOf(kEnableKey);
  check()->stateValue = 1;
  [controller getEnableImgPstAdjTicket:settings->handle()];
  EXPECT_EQ(check()->stateValue, 0);
  EXPECT_THAT(log->lines(), IsEmpty());
}

TEST_F(Exchange, WithoutTheFlagReadingUnchecksTheBoxAndLogsNothing) {
  check()->stateValue = 1;
  [controller getTicket];
  EXPECT_EQ(check()->stateValue, 0);
  EXPECT_THAT(logWithoutTraces(), IsEmpty());
}

TEST_F(Exchange, ReadingLogsTheFlagBeforeItUpdatesAvailability) {
  settings->put(kEnableKey, "False");
  [controller getTicket];
  EXPECT_THAT(log->lines(), ElementsAre(kFlagRead, kCheckTrace));
}

// Writing.

TEST_F(Exchange, SavingWritesTheValuesThenTheFlag) {
  EXPECT_EQ([controller saveTicket], YES);
  EXPECT_EQ(journal.take(),
            (Lines{"self.saveTicket", "host.printSettings"} + onAll("setTicket:settings") +
             Lines{"self.setEnableImgPstAdjTicket:settings", "check.state", kSet + "=False"}));
  EXPECT_THAT(log->lines(), IsEmpty());
}

TEST_F(Exchange, SavingWithoutPrintSettingsReturnsFalseAndWritesNothing) {
  host->settings = nullptr;
  EXPECT_EQ([controller saveTicket], NO);
  EXPECT_THAT(journal.take(), ElementsAre("self.saveTicket", "host.printSettings"));
  EXPECT_THAT(log->lines(), IsEmpty());
}

TEST_F(Exchange, SavingWithoutAHostReturnsFalseAndWritesNothing) {
  id callback = get<id>("PDECallback");
  get<id>("PDECallback") = nil;
  EXPECT_EQ([controller saveTicket], NO);
  EXPECT_THAT(journal.take(), ElementsAre("self.saveTicket"));
  EXPECT_THAT(log->lines(), IsEmpty());
  get<id>("PDECallback") = callback;
}

struct SavedRow {
  NSInteger state;
  const char *written;
};

class ExchangeSavedFlag : public Exchange, public testing::WithParamInterface<SavedRow> {};

TEST_P(ExchangeSavedFlag, IsTrueForEveryStateExceptZeroAndNotLocked) {
  check()->stateValue = GetParam().state;
  [controller setEnableImgPstAdjTicket:settings->handle()];
  ASSERT_EQ(settings->calls().size(), 1U);
  EXPECT_EQ(settings->calls()[0].access, TestPrintSettings::Access::Set);
  EXPECT_EQ(settings->calls()[0].key, "com.morva.printsettings.19AImagePositionEnable");
  EXPECT_EQ(settings->calls()[0].value, GetParam().written);
  EXPECT_FALSE(settings->calls()[0].locked);
  EXPECT_THAT(log->lines(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(States, ExchangeSavedFlag,
                         testing::Values(SavedRow{0, "False"}, SavedRow{1, "True"},
                                         SavedRow{-1, "True"}));

TEST_F(Exchange, AFlagThatCannotBeWrittenIsLoggedAndSavingStillSucceeds) {
  settings->failWritesOf(kEnableKey);
  EXPECT_EQ([controller saveTicket], YES);
  EXPECT_THAT(log->lines(), ElementsAre("Set Enable Image Position Adjust PrintTicket fail."));
}

TEST_F(Exchange, ALockedFlagIsLoggedAsNotWritten) {
  settings->put(kEnableKey, "False");
  settings->lock(kEnableKey);
  check()->stateValue = 1;
  EXPECT_EQ([controller saveTicket], YES);
  EXPECT_EQ(settings->text(kEnableKey), "False");
  EXPECT_THAT(log->lines(), ElementsAre(kFlagNotWritten));
}

TEST_F(Exchange, SavingDoesNotUpdateAvailability) {
  [controller saveTicket];
  EXPECT_THAT(journal.take(), testing::Not(testing::Contains("self.grayUI")));
}

// Preparing to show.

class ExchangeOrder : public Exchange {
protected:
  void useDefinitions(NSDictionary *definitions) {
    original_ = get<id>("SettingInfoDictionary");
    get<id>("SettingInfoDictionary") = definitions;
  }
  void TearDown() override {
    get<id>("SettingInfoDictionary") = original_;
    Exchange::TearDown();
  }

private:
  id original_ = nil;
};

TEST_F(ExchangeOrder, EachSettingIsPreparedInTheOrderOfTheDefinitions) {
  useDefinitions(definitions({definition("BackTBM"), definition("BackLRM"), definition("FrontTBM"),
                              definition("FrontLRM")}));
  [controller prepareForShow];
  EXPECT_EQ(upTo("self.notifyUI"),
            (Lines{"host.printSettings", "BackTBM.applyUIConstraint:settings",
                   "BackTBM.getTicket:settings", "BackLRM.applyUIConstraint:settings",
                   "BackLRM.getTicket:settings", "FrontTBM.applyUIConstraint:settings",
                   "FrontTBM.getTicket:settings", "FrontLRM.applyUIConstraint:settings",
                   "FrontLRM.getTicket:settings"}));
}

TEST_F(ExchangeOrder, ADefinitionAtOrBeyondTheirNumberIsNeverPrepared) {
  NSMutableDictionary *some = [NSMutableDictionary dictionary];
  [some setObject:definition("FrontLRM") forKey:@"1"];
  [some setObject:definition("FrontTBM") forKey:@"2"];
  useDefinitions(some);
  [controller prepareForShow];
  EXPECT_EQ(upTo("self.notifyUI"),
            (Lines{"host.printSettings", "FrontLRM.applyUIConstraint:settings",
                   "FrontLRM.getTicket:settings"}));
}

TEST_F(ExchangeOrder, UnknownNamesAndMissingOnesPrepareNothing) {
  NSMutableDictionary *nameless = definition("FrontTBM");
  [nameless removeObjectForKey:@"SettingName"];
  NSMutableDictionary *numbered = definition("FrontTBM");
  [numbered setObject:[NSNumber numberWithInt:3] forKey:@"SettingName"];
  NSMutableDictionary *some =
      definitions({definition("frontlrm"), nameless, numbered, definition("BackLRM")});
  [some setObject:@"no record" forKey:@"4"];
  useDefinitions(some);
  [controller prepareForShow];
  EXPECT_EQ(upTo("self.notifyUI"),
            (Lines{"host.printSettings", "BackLRM.applyUIConstraint:settings",
                   "BackLRM.getTicket:settings"}));
}

TEST_F(ExchangeOrder, ANameDefinedTwiceIsPreparedTwice) {
  useDefinitions(definitions({definition("BackLRM"), definition("BackLRM")}));
  [controller prepareForShow];
  EXPECT_EQ(upTo("self.notifyUI").size(), 5U);
}

TEST_F(ExchangeOrder, WithoutPrintSettingsTheSettingsArePreparedWithNull) {
  useDefinitions(definitions({definition("FrontTBM")}));
  host->settings = nullptr;
  [controller prepareForShow];
  EXPECT_EQ(upTo("self.notifyUI"), (Lines{"host.printSettings", "FrontTBM.applyUIConstraint:null",
                                          "FrontTBM.getTicket:null"}));
}

TEST_F(ExchangeOrder, WithoutAHostTheSettingsArePreparedWithNull) {
  useDefinitions(definitions({definition("FrontTBM")}));
  id callback = get<id>("PDECallback");
  get<id>("PDECallback") = nil;
  [controller prepareForShow];
  EXPECT_EQ(upTo("self.notifyUI"),
            (Lines{"FrontTBM.applyUIConstraint:null", "FrontTBM.getTicket:null"}));
  get<id>("PDECallback") = callback;
}

TEST_F(ExchangeOrder, PreparingEndsWithOneRefresh) {
  useDefinitions(definitions({definition("FrontTBM")}));
  [controller prepareForShow];
  const Lines lines = journal.take();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "self.notifyUI"), 1);
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "self.grayUI"), 1);
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "host.printSettings"), 2);
}

TEST_F(ExchangeOrder, PreparingDoesNotReadTheFlag) {
  useDefinitions(fourDefinitions());
  settings->put(kEnableKey, "True");
  [controller prepareForShow];
  EXPECT_EQ(check()->stateValue, 0);
  EXPECT_TRUE(settings->calls().empty());
}

} // namespace
