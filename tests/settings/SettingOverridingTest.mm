#import "ObservedSetting.h"
#import "SettingFixture.h"

/// Records the rules whose condition is checked, and may pass another value on to its base.
@interface RuleReadingSetting : MorvaADPIntegerSettingRV2 {
@public
  NSMutableArray *seen;
  NSString *expectedValue;
}
@end

@implementation RuleReadingSetting
- (void)dealloc {
  [seen release];
  [super dealloc];
}
- (BOOL)checkUIConstraintCondition:(NSDictionary *)rule {
  if (seen == nil)
    seen = [[NSMutableArray alloc] init];
  [seen addObject:rule];
  if (expectedValue == nil)
    return [super checkUIConstraintCondition:rule];
  NSMutableDictionary *changed = [[rule mutableCopy] autorelease];
  [changed setObject:expectedValue forKey:@"ConditionValue"];
  return [super checkUIConstraintCondition:changed];
}
@end

namespace imageposition::test {
namespace {

/// Every method that goes through another one calls a subclass's override of it.
class SettingOverriding : public SettingTest {
protected:
  RecordingItem *entry = item("entry", kEntryField);

  ObservedSetting *observed(const Texts &definition = record(),
                            const std::vector<Texts> &rules = {}) {
    ObservedSetting *setting = static_cast<ObservedSetting *>(
        make([ObservedSetting class], dictionary(definition), ruleTable(rules)));
    observe(setting).journal = &journal;
    observe(setting).name = cxxString([setting getSettingName]);
    bind(setting, {entry});
    return setting;
  }

  /// A rule that acts on "FrontLRM" and always fires.
  static Texts firing(const std::string &pattern, const std::string &actionValue) {
    return {{"ActionObj", "FrontLRM"},
            {"ActionPattern", pattern},
            {"ActionValue", actionValue},
            {"ConditionType", "Setting"},
            {"ConditionObj", "FrontLRM"},
            {"ConditionPattern", "Range"},
            {"ConditionValue", "-2147483648:2147483647"}};
  }
  static Texts notFiring(const std::string &actionValue) {
    return {{"ActionObj", "FrontLRM"}, {"ActionPattern", "Value"}, {"ActionValue", actionValue}};
  }
};

TEST_F(SettingOverriding, RefreshWritesAndReadsThroughTheOverriddenMethods) {
  entry->number = 25;
  ObservedSetting *setting = observed();
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"FrontLRM.checkUI:", "entry.getInt", "entry.getInt",
                   "FrontLRM.setTicket:", "FrontLRM.checkValue", "set LeftRightMargin=20",
                   "FrontLRM.getTicket:", "get LeftRightMargin", "FrontLRM.setStringValue:20",
                   "FrontLRM.checkValue", "entry.setStringValue:20"}));
}

TEST_F(SettingOverriding, RefreshReadsEvenWhenTheClassWritesNothing) {
  entry->number = 9;
  store.put("LeftRightMargin", "4");
  ObservedSetting *setting = observed();
  observe(setting).suppressed = {"setTicket:"};
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), 4);
  EXPECT_EQ(store.text("LeftRightMargin"), "4");
}

TEST_F(SettingOverriding, FailedWriteReadsThroughTheOverriddenGetTicket) {
  ObservedSetting *setting = observed();
  store.failWrite(1);
  [setting setTicket:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"FrontLRM.setTicket:", "FrontLRM.checkValue", "set LeftRightMargin=3",
                   "FrontLRM.getTicket:", "get LeftRightMargin", "FrontLRM.setStringValue:3",
                   "FrontLRM.checkValue", "entry.setStringValue:3"}));
}

TEST_F(SettingOverriding, WritingClampsThroughTheOverriddenCheckValue) {
  ObservedSetting *setting = observed();
  observe(setting).suppressed = {"checkValue"};
  field<int32_t>(setting, "Value") = 99;
  [setting setTicket:store.handle()];
  EXPECT_EQ(store.text("LeftRightMargin"), "99");
}

TEST_F(SettingOverriding, OverriddenCheckValueDecidesWhatIsShownAndWritten) {
  ObservedSetting *setting = observed();
  observe(setting).onOperation = [setting](const std::string &operation) {
    if (operation == "checkValue")
      field<int32_t>(setting, "Value") &= ~1; // even values only
  };
  [setting setIntValue:7];
  EXPECT_EQ(shownBy(entry), "6");
  [setting setStringValue:@"9"];
  EXPECT_EQ(shownBy(entry), "8");
  field<int32_t>(setting, "Value") = 11;
  [setting setTicket:store.handle()];
  EXPECT_EQ(store.text("LeftRightMargin"), "10");
}

TEST_F(SettingOverriding, ReadingShowsThroughTheOverriddenSetStringValueOncePerField) {
  store.put("LeftRightMargin", "99");
  ObservedSetting *setting = observed();
  bind(setting, {item("a", kEntryField), item("label", kLabel, 5), item("b", kTextField)});
  [setting getTicket:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"FrontLRM.getTicket:", "get LeftRightMargin", "FrontLRM.setStringValue:99",
                   "FrontLRM.checkValue", "a.setStringValue:20", "b.setStringValue:20",
                   "FrontLRM.setStringValue:20", "FrontLRM.checkValue", "a.setStringValue:20",
                   "b.setStringValue:20"}));
}

TEST_F(SettingOverriding, ReadingTakesTheNumberEvenWhenTheClassShowsNothing) {
  store.put("LeftRightMargin", "99");
  ObservedSetting *setting = observed();
  observe(setting).suppressed = {"setStringValue:"};
  [setting getTicket:store.handle()];
  EXPECT_EQ(value(setting), 99);
  EXPECT_EQ(journal.take(),
            (Lines{"FrontLRM.getTicket:", "get LeftRightMargin", "FrontLRM.setStringValue:99"}));
}

TEST_F(SettingOverriding, MakingItUnavailableSetsTheDefaultThroughTheOverriddenSetIntValue) {
  ObservedSetting *setting = observed(record({{"DefaultValue", "99"}}));
  [setting setViewState:NO];
  EXPECT_EQ(journal.take(),
            (Lines{"FrontLRM.setViewState:0", "FrontLRM.setIntValue:99", "FrontLRM.checkValue",
                   "entry.setStringValue:20", "entry.setViewAvailable:0"}));
  [setting setViewState:YES];
  EXPECT_EQ(journal.take(), (Lines{"FrontLRM.setViewState:1", "entry.setViewAvailable:1"}));
}

TEST_F(SettingOverriding, MakingItUnavailableDisablesTheItemsEvenIfTheClassKeepsItsValue) {
  ObservedSetting *setting = observed();
  observe(setting).suppressed = {"setIntValue:"};
  field<int32_t>(setting, "Value") = 9;
  [setting setViewState:NO];
  EXPECT_EQ(value(setting), 9);
  EXPECT_EQ(journal.take(), (Lines{"FrontLRM.setViewState:0", "FrontLRM.setIntValue:3",
                                   "entry.setViewAvailable:0"}));
}

TEST_F(SettingOverriding, OverriddenValueStringIsNeitherWrittenNorShown) {
  ObservedSetting *setting = observed();
  observe(setting).valueString = "999";
  [setting setTicket:store.handle()];
  [setting setIntValue:4];
  EXPECT_EQ(store.text("LeftRightMargin"), "3");
  EXPECT_EQ(shownBy(entry), "4");
}

TEST_F(SettingOverriding, EachRuleCallsTheOverriddenConditionOnceInIndexOrder) {
  Texts other = firing("Value", "other");
  other["ActionObj"] = "BackLRM";
  Texts none = firing("Value", "none");
  none.erase("ActionObj");
  ObservedSetting *setting =
      observed(record(), {notFiring("a"), other, firing("Value", "5"), none, notFiring("c")});
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"FrontLRM.applyUIConstraint:", "FrontLRM.checkUIConstraintCondition:a",
                   "FrontLRM.checkUIConstraintCondition:5", "FrontLRM.setStringValue:5",
                   "FrontLRM.checkValue", "entry.setStringValue:5",
                   "FrontLRM.checkUIConstraintCondition:c"}));
}

TEST_F(SettingOverriding, OverriddenConditionDecides) {
  ObservedSetting *setting = observed(record(), {notFiring("7"), firing("Value", "8")});
  observe(setting).condition = true;
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 8);
  observe(setting).condition = false;
  [setting setIntValue:1];
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 1);
}

TEST_F(SettingOverriding, ActionsGoThroughTheOverriddenMethods) {
  ObservedSetting *setting =
      observed(record(), {firing("Value", " 12abc"), firing("Default", "7x"), firing("View", "OFF"),
                          firing("View", "ON"), firing("Range", "1:2")});
  observe(setting).condition = true;
  observe(setting).suppressed = {"setStringValue:", "setDefault:", "setViewState:"};
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"FrontLRM.applyUIConstraint:", "FrontLRM.checkUIConstraintCondition: 12abc",
                   "FrontLRM.setStringValue: 12abc", "FrontLRM.checkUIConstraintCondition:7x",
                   "FrontLRM.setDefault:7", "FrontLRM.checkUIConstraintCondition:OFF",
                   "FrontLRM.setViewState:0", "FrontLRM.checkUIConstraintCondition:ON",
                   "FrontLRM.setViewState:1", "FrontLRM.checkUIConstraintCondition:1:2"}));
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(field<int32_t>(setting, "Default"), 3);
  EXPECT_EQ(field<int32_t>(setting, "Min"), 1);
  EXPECT_EQ(field<int32_t>(setting, "Max"), 2);
}

TEST_F(SettingOverriding, ConditionGetsTheTablesDictionary) {
  const std::vector<Texts> rules = {notFiring("a"), firing("Value", "5")};
  RuleReadingSetting *setting = static_cast<RuleReadingSetting *>(
      make([RuleReadingSetting class], dictionary(record()), ruleTable(rules)));
  bind(setting, {entry});
  [setting applyUIConstraint:store.handle()];
  NSArray *seen = field<NSMutableArray *>(setting, "seen");
  ASSERT_EQ([seen count], 2u);
  for (unsigned i = 0; i < 2; ++i) {
    NSDictionary *rule = [seen objectAtIndex:i];
    EXPECT_TRUE([rule isKindOfClass:[NSDictionary class]]);
    EXPECT_TRUE([rule isEqual:dictionary(rules[i])]) << cxxString(rule);
    EXPECT_TRUE([dictionary(rules[i]) isEqual:rule]);
    EXPECT_EQ([[rule allKeys] count], rules[i].size());
    EXPECT_TRUE([rule objectForKey:@"NoSuchKey"] == nil);
    EXPECT_TRUE([[[rule copy] autorelease] isEqual:rule]);
  }
}

TEST_F(SettingOverriding, BaseDecidesTheRuleThatTheClassPassesOn) {
  // The class checks for 9 whatever the rule says.
  Texts rule = firing("Value", "5");
  rule["ConditionPattern"] = "Value";
  rule["ConditionValue"] = "3";
  RuleReadingSetting *setting = static_cast<RuleReadingSetting *>(
      make([RuleReadingSetting class], dictionary(record()), ruleTable({rule})));
  bind(setting, {entry});
  setting->expectedValue = @"9";
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 3);
  [setting setIntValue:9];
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 5);
}

TEST_F(SettingOverriding, OverriddenNameDecidesWhichRulesActOnIt) {
  Texts other = firing("Value", "5");
  other["ActionObj"] = "Renamed";
  ObservedSetting *setting = observed(record(), {firing("Value", "4"), other});
  observe(setting).condition = true;
  observe(setting).settingName = "Renamed";
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 5);
  observe(setting).settingName.reset();
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 4);
}

TEST_F(SettingOverriding, ConditionReadsTheNameOfEveryRelatedSettingAndTheValueOfMatchingOnes) {
  ObservedSetting *a = observed(record({{"SettingName", "A"}}));
  ObservedSetting *b = observed(record({{"SettingName", "B"}}));
  ObservedSetting *second = observed(record({{"SettingName", "A"}}));
  observe(second).name = "A2";
  MorvaADPIntegerSettingRV2 *plain = make(record({{"SettingName", "C"}}));
  relate({a, b, second, plain});
  for (ObservedSetting *setting : {a, b, second})
    observe(setting).recordsGetters = true;
  const Lines expected = {"A.getSettingName", "A.getValueString", "B.getSettingName",
                          "A2.getSettingName", "A2.getValueString"};
  for (const char *pattern : {"Value", "Range"}) {
    journal.clear();
    EXPECT_TRUE([plain checkUIConstraintCondition:dictionary({{"ConditionType", "Setting"},
                                                              {"ConditionObj", "A"},
                                                              {"ConditionPattern", pattern},
                                                              {"ConditionValue",
                                                               pattern[0] == 'V' ? "3" : "3:3"}})]);
    EXPECT_EQ(journal.take(), expected) << pattern;
  }
}

TEST_F(SettingOverriding, ConditionThatCannotHoldReadsTheRelatedSettingsAllTheSame) {
  ObservedSetting *a = observed(record({{"SettingName", "A"}}));
  ObservedSetting *b = observed(record({{"SettingName", "B"}}));
  MorvaADPIntegerSettingRV2 *plain = make(record({{"SettingName", "C"}}));
  relate({a, b, plain});
  for (ObservedSetting *setting : {a, b})
    observe(setting).recordsGetters = true;
  const Lines names = {"A.getSettingName", "B.getSettingName"};
  const Lines namesAndValue = {"A.getSettingName", "A.getValueString", "B.getSettingName"};
  const std::vector<std::pair<Texts, Lines>> table = {
      {{{"ConditionObj", "A"}, {"ConditionPattern", "Other"}, {"ConditionValue", "3"}}, names},
      {{{"ConditionObj", "A"}, {"ConditionValue", "3"}}, names},
      {{{"ConditionPattern", "Value"}, {"ConditionValue", "3"}}, names},
      {{{"ConditionObj", "A"}, {"ConditionPattern", "Value"}}, namesAndValue},
      {{{"ConditionObj", "A"}, {"ConditionPattern", "Range"}, {"ConditionValue", "3"}},
       namesAndValue}};
  for (const auto &[condition, expected] : table) {
    Texts rule = condition;
    rule["ConditionType"] = "Setting";
    SCOPED_TRACE(cxxString(dictionary(rule)));
    journal.clear();
    EXPECT_FALSE([plain checkUIConstraintCondition:dictionary(rule)]);
    EXPECT_EQ(journal.take(), expected);
  }
}

TEST_F(SettingOverriding, AttributeConditionReadsNoSetting) {
  ObservedSetting *setting = observed();
  observe(setting).recordsGetters = true;
  EXPECT_FALSE([setting checkUIConstraintCondition:dictionary({{"ConditionType", "PPD"},
                                                               {"ConditionPattern", "None"},
                                                               {"ConditionValue", "x"}})]);
  EXPECT_EQ(journal.take(), (Lines{"FrontLRM.checkUIConstraintCondition:(null)"}));
}

TEST_F(SettingOverriding, ConditionsCompareTheOverriddenValueStringOfARelatedSetting) {
  ObservedSetting *other = observed(record({{"SettingName", "B"}}));
  MorvaADPIntegerSettingRV2 *plain = make(record({{"SettingName", "A"}}));
  relate({plain, other});
  const auto holds = [&](const char *pattern, const char *expected) {
    return bool([plain checkUIConstraintCondition:dictionary({{"ConditionType", "Setting"},
                                                              {"ConditionObj", "B"},
                                                              {"ConditionPattern", pattern},
                                                              {"ConditionValue", expected}})]);
  };
  observe(other).valueString = "05 mm";
  EXPECT_TRUE(holds("Value", "05 mm"));
  EXPECT_FALSE(holds("Value", "3"));
  EXPECT_TRUE(holds("Range", "5:5"));
  EXPECT_FALSE(holds("Range", "3:3"));
  observe(other).hasNoValueString = true;
  EXPECT_FALSE(holds("Value", "3"));
  EXPECT_FALSE(holds("Value", ""));
  EXPECT_TRUE(holds("Range", "0:0"));
}

TEST_F(SettingOverriding, ConditionsCompareTheOverriddenNameOfARelatedSetting) {
  ObservedSetting *other = observed(record({{"SettingName", "B"}}));
  MorvaADPIntegerSettingRV2 *plain = make(record({{"SettingName", "A"}}));
  relate({plain, other});
  observe(other).settingName = "Renamed";
  const auto holds = [&](const char *name) {
    return bool([plain checkUIConstraintCondition:dictionary({{"ConditionType", "Setting"},
                                                              {"ConditionObj", name},
                                                              {"ConditionPattern", "Value"},
                                                              {"ConditionValue", "3"}})]);
  };
  EXPECT_TRUE(holds("Renamed"));
  EXPECT_FALSE(holds("B"));
}

TEST_F(SettingOverriding, SettingsThatAreRelatedDuringTheWalkAreVisited) {
  ObservedSetting *other = observed(record({{"SettingName", "B"}}));
  MorvaADPIntegerSettingRV2 *late = make(record({{"SettingName", "Late"}}));
  MorvaADPIntegerSettingRV2 *plain = make(record({{"SettingName", "A"}}));
  NSMutableArray *settings = [NSMutableArray arrayWithObject:other];
  [plain setRelatedSettings:settings HandlingTarget:nil];
  observe(other).recordsGetters = true;
  observe(other).onOperation = [=](const std::string &operation) {
    if (operation == "getSettingName" && [settings count] == 1)
      [settings addObject:late];
  };
  EXPECT_TRUE([plain checkUIConstraintCondition:dictionary({{"ConditionType", "Setting"},
                                                            {"ConditionObj", "Late"},
                                                            {"ConditionPattern", "Value"},
                                                            {"ConditionValue", "3"}})]);
}

TEST_F(SettingOverriding, RuleSeesWhatTheClassChangedDuringAnEarlierAction) {
  // Whenever A is set, its class sets B as well, which the next rule's condition reads.
  Texts ask = firing("Default", "11");
  ask["ConditionObj"] = "B";
  ask["ConditionPattern"] = "Value";
  ask["ConditionValue"] = "8";
  ObservedSetting *a = observed(record(), {firing("Value", "5"), ask});
  MorvaADPIntegerSettingRV2 *b = make(record({{"SettingName", "B"}}));
  relate({a, b});
  observe(a).onOperation = [b](const std::string &operation) {
    if (operation == "setStringValue:5")
      [b setIntValue:8];
  };
  [a applyUIConstraint:store.handle()];
  EXPECT_EQ(field<int32_t>(a, "Default"), 11);
}

TEST_F(SettingOverriding, RuleSeesWhatAnOverriddenConditionChanged) {
  Texts ask = firing("Default", "11");
  ask["ConditionObj"] = "B";
  ask["ConditionPattern"] = "Value";
  ask["ConditionValue"] = "8";
  ObservedSetting *a = observed(record(), {notFiring("first"), ask});
  MorvaADPIntegerSettingRV2 *b = make(record({{"SettingName", "B"}}));
  relate({a, b});
  observe(a).onOperation = [b](const std::string &operation) {
    if (operation == "checkUIConstraintCondition:first")
      [b setIntValue:8];
  };
  [a applyUIConstraint:store.handle()];
  EXPECT_EQ(field<int32_t>(a, "Default"), 11);
}

} // namespace
} // namespace imageposition::test
