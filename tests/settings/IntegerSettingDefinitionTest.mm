#import "SettingFixture.h"

namespace imageposition::test {
namespace {

class IntegerSettingDefinition : public SettingTest {
protected:
  static int32_t read(MorvaADPIntegerSettingRV2 *setting, const char *name) {
    return field<int32_t>(setting, name);
  }
  Texts without(const char *key) {
    Texts texts = record();
    texts.erase(key);
    return texts;
  }
  MorvaADPIntegerSettingRV2 *makeWith(NSString *key, id entry) {
    NSMutableDictionary *definition =
        [NSMutableDictionary dictionaryWithDictionary:dictionary(record())];
    [definition setObject:entry forKey:key];
    return make([MorvaADPIntegerSettingRV2 class], definition, [NSDictionary dictionary]);
  }
  /// Expects one log line that names the setting and the entry, and no setting.
  void expectRefused(const Texts &definition, const char *key) {
    LogCapture log;
    EXPECT_TRUE(make(definition) == nil);
    ASSERT_EQ(log.lines().size(), 1u) << key;
    EXPECT_NE(log.lines()[0].find("FrontLRM"), std::string::npos) << log.lines()[0];
    EXPECT_NE(log.lines()[0].find('"' + std::string(key) + '"'), std::string::npos)
        << log.lines()[0];
  }
};

TEST_F(IntegerSettingDefinition, FieldsBeginInTheirDeclaredOrder) {
  Lines names = fieldNames([MorvaADPIntegerSettingRV2 class]);
  ASSERT_GE(names.size(), 5u);
  names.resize(5);
  EXPECT_EQ(names, (Lines{"Value", "Max", "Min", "Default", "RangeLabelInfoList"}));
  EXPECT_TRUE(class_getSuperclass([MorvaADPIntegerSettingRV2 class]) == [MorvaADPSettingRV2 class]);
}

TEST_F(IntegerSettingDefinition, TakesRangeWordingAndDefaultFromTheRecord) {
  MorvaADPIntegerSettingRV2 *setting = make();
  EXPECT_EQ(read(setting, "Min"), -20);
  EXPECT_EQ(read(setting, "Max"), 20);
  EXPECT_EQ(read(setting, "Default"), 3);
  EXPECT_EQ(read(setting, "Value"), 3);
  EXPECT_EQ([setting getValue], 3);
  EXPECT_EQ(cxxString(field<NSString *>(setting, "MinValueRangeLabelKey")), "MIN");
  EXPECT_EQ(cxxString(field<NSString *>(setting, "MaxValueRangeLabelKey")), "MAX");
  EXPECT_EQ(cxxString(field<NSString *>(setting, "ValueRangeLabelLocalizeKey")), "RangeText");
  EXPECT_EQ(cxxString([setting getSettingName]), "FrontLRM");
  EXPECT_EQ(cxxString([setting getSummaryInfoName]), "SummaryTitle");
}

TEST_F(IntegerSettingDefinition, LabelKeysAreTheElementsOfTheWording) {
  MorvaADPIntegerSettingRV2 *setting = make(record({{"RangeLabelWording", "a:b:c:d"}}));
  NSArray *parts = field<NSArray *>(setting, "RangeLabelInfoList");
  EXPECT_EQ([parts count], 4u);
  EXPECT_TRUE(field<NSString *>(setting, "MinValueRangeLabelKey") == [parts objectAtIndex:0]);
  EXPECT_TRUE(field<NSString *>(setting, "MaxValueRangeLabelKey") == [parts objectAtIndex:1]);
  EXPECT_TRUE(field<NSString *>(setting, "ValueRangeLabelLocalizeKey") == [parts objectAtIndex:2]);
  EXPECT_EQ(cxxString([parts objectAtIndex:2]), "c");
}

TEST_F(IntegerSettingDefinition, WordingMayHaveEmptyParts) {
  MorvaADPIntegerSettingRV2 *setting = make(record({{"RangeLabelWording", "::"}}));
  ASSERT_TRUE(setting != nil);
  EXPECT_EQ(cxxString(field<NSString *>(setting, "ValueRangeLabelLocalizeKey")), "");
}

TEST_F(IntegerSettingDefinition, NeedsARecord) {
  EXPECT_TRUE(make([MorvaADPIntegerSettingRV2 class], nil, [NSDictionary dictionary]) == nil);
}

TEST_F(IntegerSettingDefinition, RangeIsMinimumThenMaximum) {
  struct Row {
    const char *text;
    int32_t min;
    int32_t max;
  };
  for (const Row &row : {Row{"-20:20", -20, 20}, Row{"10:5", 10, 5}, Row{" 1: 2", 1, 2},
                         Row{"1:2:3", 1, 2}, Row{":5", 0, 5}, Row{"5:", 5, 0}, Row{":", 0, 0},
                         Row{"a:7b", 0, 7}, Row{"-3000000000:3000000000", INT32_MIN, INT32_MAX}}) {
    MorvaADPIntegerSettingRV2 *setting = make(record({{"Range", row.text}}));
    ASSERT_TRUE(setting != nil) << row.text;
    EXPECT_EQ(read(setting, "Min"), row.min) << row.text;
    EXPECT_EQ(read(setting, "Max"), row.max) << row.text;
  }
}

TEST_F(IntegerSettingDefinition, MissingRangeClampsEveryValueToZeroSilently) {
  LogCapture log;
  MorvaADPIntegerSettingRV2 *setting = make(without("Range"));
  ASSERT_TRUE(setting != nil);
  EXPECT_EQ(read(setting, "Min"), 0);
  EXPECT_EQ(read(setting, "Max"), 0);
  for (int32_t number : {5, -5, INT32_MAX}) {
    [setting setIntValue:number];
    EXPECT_EQ([setting getValue], 0);
  }
  EXPECT_EQ(log.lines(), Lines());
}

TEST_F(IntegerSettingDefinition, RangeThatIsNotAStringCountsAsMissing) {
  for (id entry : {(id)[NSNumber numberWithInt:20], (id)array({@"-20", @"20"})}) {
    MorvaADPIntegerSettingRV2 *setting = makeWith(@"Range", entry);
    ASSERT_TRUE(setting != nil);
    EXPECT_EQ(read(setting, "Min"), 0);
    EXPECT_EQ(read(setting, "Max"), 0);
  }
}

TEST_F(IntegerSettingDefinition, RangeWithoutColonIsLoggedAndRejected) {
  for (const char *text : {"", "20", "-20 20", "abc"})
    expectRefused(record({{"Range", text}}), "Range");
}

TEST_F(IntegerSettingDefinition, WordingOfFewerThanThreePartsIsLoggedAndRejected) {
  for (const char *text : {"", "MIN", "MIN:MAX", ":"})
    expectRefused(record({{"RangeLabelWording", text}}), "RangeLabelWording");
}

TEST_F(IntegerSettingDefinition, MissingWordingIsLoggedAndRejected) {
  expectRefused(without("RangeLabelWording"), "RangeLabelWording");
  LogCapture log;
  EXPECT_TRUE(makeWith(@"RangeLabelWording", [NSNumber numberWithInt:1]) == nil);
  EXPECT_EQ(log.lines().size(), 1u);
}

TEST_F(IntegerSettingDefinition, MalformedRangeOfASettingWithoutANameIsRejectedToo) {
  Texts texts = without("SettingName");
  texts["Range"] = "5";
  LogCapture log;
  EXPECT_TRUE(make(texts) == nil);
  EXPECT_EQ(log.lines().size(), 1u);
}

TEST_F(IntegerSettingDefinition, DefaultStringIsReadAsAnIntegerAndNotClamped) {
  struct Row {
    const char *text;
    int32_t number;
  };
  for (const Row &row :
       {Row{"5", 5}, Row{"-7", -7}, Row{"99", 99}, Row{"-99", -99}, Row{"abc", 0}, Row{"", 0},
        Row{" 12abc", 12}, Row{"3000000000", INT32_MAX}, Row{"-3000000000", INT32_MIN}}) {
    MorvaADPIntegerSettingRV2 *setting = make(record({{"DefaultValue", row.text}}));
    EXPECT_EQ(read(setting, "Default"), row.number) << row.text;
    EXPECT_EQ(read(setting, "Value"), row.number) << row.text;
  }
}

TEST_F(IntegerSettingDefinition, DefaultMayBeANumber) {
  struct Row {
    NSNumber *entry;
    int32_t number;
  };
  for (const Row &row :
       {Row{[NSNumber numberWithInt:5], 5}, Row{[NSNumber numberWithInt:-99], -99},
        Row{[NSNumber numberWithDouble:3.7], 3}, Row{[NSNumber numberWithDouble:-3.7], -3},
        Row{[NSNumber numberWithLongLong:3000000000LL], INT32_MAX},
        Row{[NSNumber numberWithLongLong:-3000000000LL], INT32_MIN},
        Row{[NSNumber numberWithUnsignedLongLong:18446744073709551615ULL], INT32_MAX},
        Row{[NSNumber numberWithDouble:1e300], INT32_MAX},
        Row{[NSNumber numberWithDouble:-1e300], INT32_MIN}}) {
    MorvaADPIntegerSettingRV2 *setting = makeWith(@"DefaultValue", row.entry);
    EXPECT_EQ(read(setting, "Default"), row.number) << cxxString(row.entry);
    EXPECT_EQ(read(setting, "Value"), row.number) << cxxString(row.entry);
  }
}

TEST_F(IntegerSettingDefinition, DefaultThatIsMissingOrNeitherStringNorNumberIsZero) {
  EXPECT_EQ(read(make(without("DefaultValue")), "Default"), 0);
  EXPECT_EQ(read(make(without("DefaultValue")), "Value"), 0);
  for (id entry : {(id)array({@"5"}), (id)[NSData data], (id)[NSDictionary dictionary]}) {
    EXPECT_EQ(read(makeWith(@"DefaultValue", entry), "Default"), 0);
    EXPECT_EQ(read(makeWith(@"DefaultValue", entry), "Value"), 0);
  }
}

TEST_F(IntegerSettingDefinition, BindingPassesTheRangeMaximumFirstToItemsThatTakeOne) {
  MorvaADPIntegerSettingRV2 *setting = make(record({{"Range", "-7:20"}}));
  [setting setRelatedSettings:nil
               HandlingTarget:array({item("label", kLabel, 1), item("first", kInteger),
                                     item("entry", kEntryField), item("stepper", kStepperItem)})];
  EXPECT_EQ(journal.take(), (Lines{"first.setRange:20 Min:-7", "entry.setRange:20 Min:-7"}));
}

TEST_F(IntegerSettingDefinition, BindingPassesTheBoundsUnchanged) {
  MorvaADPIntegerSettingRV2 *setting = make(record({{"Range", "10:5"}}));
  [setting setRelatedSettings:nil HandlingTarget:array({item("entry", kEntryField)})];
  EXPECT_EQ(journal.take(), (Lines{"entry.setRange:5 Min:10"}));
}

} // namespace
} // namespace imageposition::test
