#import "SettingFixture.h"

#include <cmath>

namespace imageposition::test {
namespace {

const char *const kKey = "LeftRightMargin";

class IntegerSettingTicket : public SettingTest {
protected:
  RecordingItem *entry = item("entry", kEntryField);

  MorvaADPIntegerSettingRV2 *bound(const Texts &definition = record()) {
    MorvaADPIntegerSettingRV2 *setting = make(definition);
    bind(setting, {entry});
    return setting;
  }
};

TEST_F(IntegerSettingTicket, WritesTheClampedValueAsAnUnlockedDecimalString) {
  MorvaADPIntegerSettingRV2 *setting = bound();
  for (const auto &[number, text] :
       std::map<int32_t, std::string>{{-3, "-3"}, {0, "0"}, {99, "20"}, {-99, "-20"}}) {
    field<int32_t>(setting, "Value") = number;
    store.forgetCalls();
    [setting setTicket:store.handle()];
    EXPECT_EQ(value(setting), std::stoi(text));
    ASSERT_EQ(store.calls().size(), 1u);
    EXPECT_EQ(store.calls()[0].access, TestPrintSettings::Access::Set);
    EXPECT_EQ(store.calls()[0].key, kKey);
    EXPECT_EQ(store.calls()[0].value, text);
    EXPECT_FALSE(store.calls()[0].locked);
    EXPECT_TRUE([store.object(kKey) isKindOfClass:[NSString class]]);
  }
}

TEST_F(IntegerSettingTicket, SuccessfulWriteShowsAndReadsNothing) {
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting setTicket:store.handle()];
  EXPECT_EQ(journal.take(), (Lines{"set LeftRightMargin=3"}));
}

TEST_F(IntegerSettingTicket, FailedWriteReadsAgainAndShowsTheStoredValue) {
  store.put(kKey, "7");
  store.failWritesOf(kKey);
  MorvaADPIntegerSettingRV2 *setting = bound();
  LogCapture log;
  [setting setTicket:store.handle()];
  EXPECT_EQ(value(setting), 7);
  EXPECT_EQ(journal.take(),
            (Lines{"set LeftRightMargin=3", "get LeftRightMargin", "entry.setStringValue:7"}));
  EXPECT_EQ(store.text(kKey), "7");
  EXPECT_EQ(log.lines(), Lines());
}

TEST_F(IntegerSettingTicket, WriteToALockedEntryReadsAgain) {
  store.put(kKey, "7");
  store.lock(kKey);
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting setTicket:store.handle()];
  EXPECT_EQ(value(setting), 7);
}

TEST_F(IntegerSettingTicket, FailedWriteOfAnAbsentKeyRestoresTheDefault) {
  store.failWritesOf(kKey);
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting setIntValue:9];
  journal.clear();
  [setting setTicket:store.handle()];
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(journal.take(),
            (Lines{"set LeftRightMargin=9", "get LeftRightMargin", "entry.setStringValue:3"}));
}

TEST_F(IntegerSettingTicket, ReadsShowsAndDoesNotWrite) {
  store.put(kKey, "-12");
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), -12);
  EXPECT_EQ(journal.take(), (Lines{"get LeftRightMargin", "entry.setStringValue:-12"}));
}

TEST_F(IntegerSettingTicket, StoredStringIsReadAsAnIntegerAndClamped) {
  struct Row {
    const char *stored;
    int32_t after;
  };
  for (const Row &row :
       {Row{"5", 5}, Row{"abc", 0}, Row{"", 0}, Row{" 7x", 7}, Row{"-", 0}, Row{"25", 20},
        Row{"-25", -20}, Row{"99999999999", 20}, Row{"-99999999999", -20}}) {
    store.put(kKey, row.stored);
    MorvaADPIntegerSettingRV2 *setting = bound();
    [setting getTicket:store.handle()];
    EXPECT_EQ(value(setting), row.after) << row.stored;
    EXPECT_EQ(shownBy(entry), std::to_string(row.after)) << row.stored;
  }
}

TEST_F(IntegerSettingTicket, StringThatIsNotANumberBecomesZeroAndThenTheNearestBound) {
  store.put(kKey, "abc");
  MorvaADPIntegerSettingRV2 *setting = bound(record({{"Range", "5:9"}}));
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), 5);
}

TEST_F(IntegerSettingTicket, NumberBeyond32BitsReadsAsTheLimit) {
  MorvaADPIntegerSettingRV2 *setting = make(); // no entry field, so nothing clamps
  store.put(kKey, "3000000000");
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), INT32_MAX);
  store.put(kKey, "-3000000000");
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), INT32_MIN);
}

TEST_F(IntegerSettingTicket, WithoutAnEntryFieldTheStoredNumberIsTakenUnclamped) {
  store.put(kKey, "25");
  MorvaADPIntegerSettingRV2 *setting = make();
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), 25);
  bind(setting, {item("stepper", kStepperItem), item("name", kLabel, 0)});
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), 25);
  EXPECT_EQ(journal.take(), (Lines{"get LeftRightMargin"}));
}

TEST_F(IntegerSettingTicket, FailedReadTakesTheDefaultAndClampsItWhenShown) {
  store.put(kKey, "7");
  store.failReadsOf(kKey);
  LogCapture log;
  MorvaADPIntegerSettingRV2 *setting = bound(record({{"DefaultValue", "99"}}));
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), 20);
  EXPECT_EQ(journal.take(), (Lines{"get LeftRightMargin", "entry.setStringValue:20"}));

  MorvaADPIntegerSettingRV2 *unbound = make(record({{"DefaultValue", "99"}}));
  field<int32_t>(unbound, "Value") = 1;
  [unbound getTicket:store.handle()];
  EXPECT_EQ(value(unbound), 99);
  EXPECT_EQ(log.lines(), Lines());
}

TEST_F(IntegerSettingTicket, AbsentKeyTakesTheDefault) {
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting setIntValue:9];
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), 3);
}

TEST_F(IntegerSettingTicket, SuccessfulReadOfNoValueIsZeroAndNotTheDefault) {
  store.putNothing(kKey);
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), 0);
}

TEST_F(IntegerSettingTicket, StoredNumberIsReadAsANumberAndAnythingElseAsZero) {
  struct Row {
    id stored;
    int32_t after;
  };
  for (const Row &row :
       {Row{[NSNumber numberWithInt:7], 7}, Row{[NSNumber numberWithDouble:-7.9], -7},
        Row{[NSNumber numberWithLongLong:3000000000LL], INT32_MAX},
        Row{[NSNumber numberWithLongLong:-3000000000LL], INT32_MIN},
        Row{[NSNumber numberWithUnsignedLongLong:UINT64_MAX], INT32_MAX},
        Row{[NSNumber numberWithDouble:HUGE_VAL], INT32_MAX},
        Row{[NSNumber numberWithDouble:-HUGE_VAL], INT32_MIN},
        Row{[NSNumber numberWithDouble:std::nan("")], 0}, Row{[NSArray arrayWithObject:@"7"], 0},
        Row{[NSData dataWithBytes:"7" length:1], 0},
        Row{[NSDictionary dictionaryWithObject:@"7" forKey:@"7"], 0},
        Row{[NSDate dateWithTimeIntervalSince1970:7], 0}}) {
    store.putObject(kKey, row.stored);
    MorvaADPIntegerSettingRV2 *setting = make();
    [setting getTicket:store.handle()];
    EXPECT_EQ(value(setting), row.after) << cxxString(row.stored);
  }
}

TEST_F(IntegerSettingTicket, ValueIsShownInAllFieldsOncePerField) {
  store.put(kKey, "99");
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {item("a", kEntryField), item("stepper", kStepperItem), item("b", kTextField)});
  [setting getTicket:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"get LeftRightMargin", "a.setStringValue:20", "b.setStringValue:20",
                   "a.setStringValue:20", "b.setStringValue:20"}));
}

TEST_F(IntegerSettingTicket, SettingWithoutATicketKeyKeepsItsDefault) {
  Texts texts = record();
  texts.erase("TicketKey");
  MorvaADPIntegerSettingRV2 *setting = bound(texts);
  [setting setIntValue:9];
  [setting setTicket:store.handle()];
  EXPECT_EQ(value(setting), 3);
  [setting setIntValue:9];
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(store.size(), 0u);
}

TEST_F(IntegerSettingTicket, WithoutPrintSettingsTheValueIsTheDefault) {
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting setIntValue:9];
  [setting getTicket:nullptr];
  EXPECT_EQ(value(setting), 3);
  [setting setIntValue:9];
  [setting setTicket:nullptr];
  EXPECT_EQ(value(setting), 3);
}

TEST_F(IntegerSettingTicket, PrintSettingsAreNotKept) {
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting setTicket:store.handle()];
  TestPrintSettings other;
  other.put(kKey, "11");
  store.forgetCalls();
  [setting getTicket:other.handle()];
  EXPECT_EQ(value(setting), 11);
  EXPECT_EQ(store.calls().size(), 0u);
}

// Every access that a refresh makes fails once, in turn.

TEST_F(IntegerSettingTicket, RefreshWhoseReadFailsShowsTheDefault) {
  entry->number = 8;
  MorvaADPIntegerSettingRV2 *setting = bound();
  store.failRead(1);
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(), (Lines{"entry.getInt", "entry.getInt", "set LeftRightMargin=8",
                                   "get LeftRightMargin", "entry.setStringValue:3"}));
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(store.text(kKey), "8");
}

TEST_F(IntegerSettingTicket, RefreshWhoseWriteFailsReadsTwiceAndShowsTheStoredValue) {
  entry->number = 8;
  store.put(kKey, "5");
  MorvaADPIntegerSettingRV2 *setting = bound();
  store.failWrite(1);
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"entry.getInt", "entry.getInt", "set LeftRightMargin=8", "get LeftRightMargin",
                   "entry.setStringValue:5", "get LeftRightMargin", "entry.setStringValue:5"}));
  EXPECT_EQ(value(setting), 5);
}

TEST_F(IntegerSettingTicket, RefreshWhoseWriteAndReReadFailRecoversWithTheSecondRead) {
  entry->number = 8;
  store.put(kKey, "5");
  MorvaADPIntegerSettingRV2 *setting = bound();
  store.failWrite(1);
  store.failRead(1);
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"entry.getInt", "entry.getInt", "set LeftRightMargin=8", "get LeftRightMargin",
                   "entry.setStringValue:3", "get LeftRightMargin", "entry.setStringValue:5"}));
}

TEST_F(IntegerSettingTicket, RefreshWhoseSecondReadFailsEndsWithTheDefault) {
  entry->number = 8;
  store.put(kKey, "5");
  MorvaADPIntegerSettingRV2 *setting = bound();
  store.failWrite(1);
  store.failRead(2);
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(shownBy(entry), "3");
}

} // namespace
} // namespace imageposition::test
