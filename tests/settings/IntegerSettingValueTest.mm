#import "SettingFixture.h"
#import "UncheckedString.h"

namespace imageposition::test {
namespace {

class IntegerSettingValue : public SettingTest {
protected:
  RecordingItem *entry = item("entry", kEntryField);

  MorvaADPIntegerSettingRV2 *bound(const Texts &definition = record()) {
    MorvaADPIntegerSettingRV2 *setting = make(definition);
    bind(setting, {entry});
    return setting;
  }
};

TEST_F(IntegerSettingValue, CheckValueClampsTheValueAndShowsNothing) {
  struct Row {
    const char *range;
    int32_t before;
    int32_t after;
  };
  for (const Row &row :
       {Row{"-20:20", 25, 20}, Row{"-20:20", -25, -20}, Row{"-20:20", 7, 7}, Row{"-20:20", 20, 20},
        Row{"-20:20", -20, -20}, Row{"10:5", 7, 5}, Row{"10:5", 20, 5}, Row{"10:5", 3, 10},
        Row{"10:5", 5, 10}, Row{"10:5", 10, 5}, Row{"0:0", INT32_MIN, 0}}) {
    MorvaADPIntegerSettingRV2 *setting = bound(record({{"Range", row.range}}));
    field<int32_t>(setting, "Value") = row.before;
    [setting checkValue];
    EXPECT_EQ(value(setting), row.after) << row.before << " in " << row.range;
    EXPECT_EQ(journal.take(), Lines());
  }
}

TEST_F(IntegerSettingValue, SetStringValueReadsClampsAndShows) {
  struct Row {
    const char *text;
    int32_t after;
    const char *shown;
  };
  for (const Row &row :
       {Row{"5", 5, "5"}, Row{"-3", -3, "-3"}, Row{"12abc", 12, "12"}, Row{"abc", 0, "0"},
        Row{"", 0, "0"}, Row{"99", 20, "20"}, Row{"-99", -20, "-20"}, Row{" +7", 7, "7"},
        Row{"3000000000", 20, "20"}, Row{"-3000000000", -20, "-20"}}) {
    MorvaADPIntegerSettingRV2 *setting = bound();
    [setting setStringValue:nsString(row.text)];
    EXPECT_EQ(value(setting), row.after) << row.text;
    EXPECT_EQ(journal.take(), (Lines{"entry.setStringValue:" + std::string(row.shown)}));
  }
}

TEST_F(IntegerSettingValue, SetStringValueWithoutAStringSetsZeroAndClamps) {
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting setStringValue:nil];
  EXPECT_EQ(value(setting), 0);
  EXPECT_EQ(journal.take(), (Lines{"entry.setStringValue:0"}));

  setting = bound(record({{"Range", "5:9"}}));
  [setting setStringValue:nil];
  EXPECT_EQ(value(setting), 5);
  EXPECT_EQ(journal.take(), (Lines{"entry.setStringValue:5"}));
}

TEST_F(IntegerSettingValue, NumberIsReadFromAStringThatUtf8CannotRepresent) {
  MorvaADPIntegerSettingRV2 *setting = bound();
  const char16_t lone = 0xD800;
  [setting setStringValue:uncheckedString({u'1', u'2', lone, u'3'})];
  EXPECT_EQ(value(setting), 12);
  [setting setStringValue:uncheckedString({lone, u'5'})];
  EXPECT_EQ(value(setting), 0);
  store.putObject("LeftRightMargin", uncheckedString({u'-', u'7', lone}));
  field<int32_t>(setting, "Value") = 1;
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), -7);
}

TEST_F(IntegerSettingValue, SetIntValueClampsAndShows) {
  for (const auto &[number, after] : std::map<int32_t, int32_t>{
           {5, 5}, {-3, -3}, {99, 20}, {-99, -20}, {INT32_MAX, 20}, {INT32_MIN, -20}}) {
    MorvaADPIntegerSettingRV2 *setting = bound();
    [setting setIntValue:number];
    EXPECT_EQ(value(setting), after);
    EXPECT_EQ(journal.take(), (Lines{"entry.setStringValue:" + std::to_string(after)}));
  }
}

TEST_F(IntegerSettingValue, ValueIsShownInEveryEntryFieldInOrderAndNowhereElse) {
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {item("a", kTextField), item("label", kLabel, 0), item("stepper", kStepperItem),
                 item("integer", kInteger), item("b", kEntryField)});
  [setting setIntValue:4];
  EXPECT_EQ(journal.take(), (Lines{"a.setStringValue:4", "b.setStringValue:4"}));
  [setting setStringValue:@"5"];
  EXPECT_EQ(journal.take(), (Lines{"a.setStringValue:5", "b.setStringValue:5"}));
}

TEST_F(IntegerSettingValue, SettingTheSameValueShowsItAgain) {
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting setIntValue:3];
  [setting setStringValue:@"3"];
  EXPECT_EQ(journal.take(), (Lines{"entry.setStringValue:3", "entry.setStringValue:3"}));
}

TEST_F(IntegerSettingValue, ValueStringIsPlainDecimals) {
  MorvaADPIntegerSettingRV2 *setting = make(record({{"Range", "-2147483648:2147483647"}}));
  for (int32_t number : {0, 5, -3, 1234567, INT32_MAX, INT32_MIN}) {
    [setting setIntValue:number];
    EXPECT_EQ(cxxString([setting getValueString]), std::to_string(number));
    EXPECT_EQ([setting getValue], number);
  }
}

TEST_F(IntegerSettingValue, ValueStringStaysWhenTheValueChanges) {
  MorvaADPIntegerSettingRV2 *setting = make();
  [setting setIntValue:5];
  NSString *before = [setting getValueString];
  [setting setIntValue:6];
  EXPECT_EQ(cxxString(before), "5");
}

TEST_F(IntegerSettingValue, SetDefaultChangesTheDefaultOnly) {
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting setDefault:99];
  EXPECT_EQ(field<int32_t>(setting, "Default"), 99);
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(journal.take(), Lines());
}

TEST_F(IntegerSettingValue, MakingItUnavailableRestoresAndShowsTheDefaultFirst) {
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {item("entry", kEntryField), item("stepper", kStepperItem), item("name", kLabel, 0),
                 item("bare", kTextField)});
  [setting setIntValue:9];
  journal.clear();
  [setting setViewState:NO];
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(journal.take(),
            (Lines{"entry.setStringValue:3", "bare.setStringValue:3", "entry.setViewAvailable:0",
                   "stepper.setViewAvailable:0", "name.setViewAvailable:0"}));
}

TEST_F(IntegerSettingValue, DefaultIsClampedWhenItIsRestored) {
  MorvaADPIntegerSettingRV2 *setting = bound(record({{"DefaultValue", "99"}}));
  [setting setViewState:NO];
  EXPECT_EQ(value(setting), 20);
  EXPECT_EQ(field<int32_t>(setting, "Default"), 99);
  EXPECT_EQ(journal.take(), (Lines{"entry.setStringValue:20", "entry.setViewAvailable:0"}));
}

TEST_F(IntegerSettingValue, MakingItAvailableKeepsTheValue) {
  MorvaADPIntegerSettingRV2 *setting = bound();
  field<int32_t>(setting, "Value") = 99; // not even clamped
  [setting setViewState:YES];
  EXPECT_EQ(value(setting), 99);
  EXPECT_EQ(journal.take(), (Lines{"entry.setViewAvailable:1"}));
}

TEST_F(IntegerSettingValue, ChangedDefaultIsRestored) {
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting setDefault:7];
  EXPECT_EQ(value(setting), 3);
  [setting setViewState:NO];
  EXPECT_EQ(value(setting), 7);
  [setting setDefault:8];
  [setting getTicket:store.handle()]; // nothing is stored
  EXPECT_EQ(value(setting), 8);
}

TEST_F(IntegerSettingValue, ViewStateByTagKeepsTheValue) {
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {item("entry", kEntryField, 5)});
  [setting setIntValue:9];
  journal.clear();
  [setting setViewStateByTag:NO TagInfo:5];
  EXPECT_EQ(value(setting), 9);
  EXPECT_EQ(journal.take(), (Lines{"entry.tag", "entry.setViewAvailable:0"}));
}

TEST_F(IntegerSettingValue, LoopsCountTheItemsAgainAfterEachOne) {
  MorvaADPIntegerSettingRV2 *setting = make();
  RecordingItem *first = item("first", kEntryField);
  RecordingItem *later = item("later", kEntryField);
  NSMutableArray *const own = field<NSMutableArray *>(setting, "HandlingTarget");
  bind(setting, {first, item("gone", kEntryField)});
  onEachOperationOf(first, [own](const std::string &) {
    if ([own count] == 2)
      [own removeLastObject];
  });
  [setting setViewState:YES];
  EXPECT_EQ(journal.take(), (Lines{"first.setViewAvailable:1"}));
  onEachOperationOf(first, [=](const std::string &) {
    if ([own count] == 1)
      [own addObject:later];
  });
  [setting setViewState:YES];
  EXPECT_EQ(journal.take(), (Lines{"first.setViewAvailable:1", "later.setViewAvailable:1"}));
}

} // namespace
} // namespace imageposition::test
