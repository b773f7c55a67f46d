#import "SettingFixture.h"

namespace imageposition::test {
namespace {

/// The effects of a whole rule table on a setting.
class ConstraintWalk : public SettingTest {
protected:
  RecordingItem *entry = item("entry", kEntryField);

  static Texts acting(const std::string &setting, const std::string &pattern,
                      const std::string &actionValue) {
    return {{"ActionObj", setting},
            {"ActionPattern", pattern},
            {"ActionValue", actionValue},
            {"ConditionType", "Setting"},
            {"ConditionObj", "FrontLRM"},
            {"ConditionPattern", "Range"},
            {"ConditionValue", "-2147483648:2147483647"}};
  }
  static Texts rule(const std::string &pattern, const std::string &actionValue) {
    return acting("FrontLRM", pattern, actionValue);
  }
  static Texts when(const std::string &expected, Texts texts) {
    texts["ConditionPattern"] = "Value";
    texts["ConditionValue"] = expected;
    return texts;
  }
  static Texts without(Texts texts, const char *key) {
    texts.erase(key);
    return texts;
  }
  MorvaADPIntegerSettingRV2 *bound(NSDictionary *rules) {
    MorvaADPIntegerSettingRV2 *setting =
        make([MorvaADPIntegerSettingRV2 class], dictionary(record()), rules);
    bind(setting, {entry});
    return setting;
  }
  MorvaADPIntegerSettingRV2 *applied(const std::vector<Texts> &rules) {
    MorvaADPIntegerSettingRV2 *setting = bound(ruleTable(rules));
    [setting applyUIConstraint:store.handle()];
    return setting;
  }
  void expectUntouched(MorvaADPIntegerSettingRV2 *setting) {
    EXPECT_EQ(value(setting), 3);
    EXPECT_EQ(field<int32_t>(setting, "Default"), 3);
    EXPECT_EQ(field<int32_t>(setting, "Min"), -20);
    EXPECT_EQ(field<int32_t>(setting, "Max"), 20);
    EXPECT_EQ(journal.take(), Lines());
  }
};

TEST_F(ConstraintWalk, EmptyTableChangesNothing) { expectUntouched(applied({})); }

TEST_F(ConstraintWalk, PrintSettingsAreNotTouched) {
  applied({rule("Value", "5"), rule("View", "OFF")});
  EXPECT_EQ(store.calls().size(), 0u);
  MorvaADPIntegerSettingRV2 *setting = bound(ruleTable({rule("Value", "5")}));
  [setting applyUIConstraint:nullptr];
  EXPECT_EQ(value(setting), 5);
}

TEST_F(ConstraintWalk, KeysOneToThreeVisitOneAndTwoOnly) {
  NSMutableDictionary *rules = [NSMutableDictionary dictionary];
  [rules setObject:dictionary(rule("Value", "1")) forKey:@"1"];
  [rules setObject:dictionary(rule("Default", "2")) forKey:@"2"];
  [rules setObject:dictionary(rule("Value", "9")) forKey:@"3"];
  MorvaADPIntegerSettingRV2 *setting = bound(rules);
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 1);
  EXPECT_EQ(field<int32_t>(setting, "Default"), 2);
}

TEST_F(ConstraintWalk, KeyThatIsNotAPlainIndexCountsButIsNotVisited) {
  NSMutableDictionary *rules = [NSMutableDictionary dictionary];
  [rules setObject:dictionary(rule("Value", "9")) forKey:@"00"];
  [rules setObject:dictionary(rule("Value", "8")) forKey:@"+1"];
  [rules setObject:dictionary(rule("Value", "7")) forKey:@"first"];
  [rules setObject:dictionary(rule("Value", "5")) forKey:@"3"]; // N is 4
  MorvaADPIntegerSettingRV2 *setting = bound(rules);
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 5);
}

TEST_F(ConstraintWalk, RulesAreVisitedInNumericOrder) {
  std::vector<Texts> rules;
  for (int i = 0; i < 12; ++i)
    rules.push_back(rule("Value", std::to_string(i)));
  MorvaADPIntegerSettingRV2 *setting = bound(ruleTable(rules));
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 11);
  Lines expected;
  for (int i = 0; i < 12; ++i)
    expected.push_back("entry.setStringValue:" + std::to_string(i));
  EXPECT_EQ(journal.take(), expected);
}

TEST_F(ConstraintWalk, EntryThatIsNotARuleIsSkipped) {
  NSMutableDictionary *rules = [NSMutableDictionary dictionary];
  [rules setObject:@"text" forKey:@"0"];
  [rules setObject:[NSNumber numberWithInt:5] forKey:@"1"];
  [rules setObject:[NSArray array] forKey:@"2"];
  [rules setObject:[NSDictionary dictionary] forKey:@"3"];
  [rules setObject:dictionary(rule("Value", "5")) forKey:@"4"];
  MorvaADPIntegerSettingRV2 *setting = bound(rules);
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 5);
}

TEST_F(ConstraintWalk, KeysThatAreNotStringsCountButAreNotVisited) {
  NSMutableDictionary *rules = [NSMutableDictionary dictionary];
  [rules setObject:dictionary(rule("Value", "9")) forKey:[NSNumber numberWithInt:0]];
  [rules setObject:dictionary(rule("Value", "5")) forKey:@"1"];
  MorvaADPIntegerSettingRV2 *setting = bound(rules);
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 5);
}

TEST_F(ConstraintWalk, EachSettingAppliesOnlyItsOwnRules) {
  NSDictionary *rules = ruleTable({acting("BackTBM", "Value", "7")});
  MorvaADPIntegerSettingRV2 *front =
      make([MorvaADPIntegerSettingRV2 class], dictionary(record()), rules);
  MorvaADPIntegerSettingRV2 *back = make([MorvaADPIntegerSettingRV2 class],
                                         dictionary(record({{"SettingName", "BackTBM"}})), rules);
  relate({front, back});
  [front applyUIConstraint:store.handle()];
  EXPECT_EQ(value(front), 3);
  EXPECT_EQ(value(back), 3);
  [back applyUIConstraint:store.handle()];
  EXPECT_EQ(value(front), 3);
  EXPECT_EQ(value(back), 7);
}

TEST_F(ConstraintWalk, NamesAreComparedExactly) {
  for (const char *name : {"frontlrm", "FrontLRM ", "FrontLR", ""})
    expectUntouched(applied({acting(name, "Value", "5")}));
  expectUntouched(applied({without(rule("Value", "5"), "ActionObj")}));
}

TEST_F(ConstraintWalk, SettingWithoutANameHasNoRules) {
  Texts nameless = record();
  nameless.erase("SettingName");
  for (const Texts &texts : {without(rule("Value", "5"), "ActionObj"), acting("", "Value", "5"),
                             acting("UIItemCollector", "Value", "5")}) {
    MorvaADPIntegerSettingRV2 *setting = make(nameless, {texts});
    bind(setting, {entry});
    [setting applyUIConstraint:store.handle()];
    EXPECT_EQ(value(setting), 3);
  }
}

TEST_F(ConstraintWalk, ValueIsSetClampedAndShown) {
  MorvaADPIntegerSettingRV2 *setting = applied({rule("Value", "99")});
  EXPECT_EQ(value(setting), 20);
  EXPECT_EQ(journal.take(), (Lines{"entry.setStringValue:20"}));
  EXPECT_EQ(value(applied({rule("Value", "12abc")})), 12);
  EXPECT_EQ(value(applied({rule("Value", "abc")})), 0);
  EXPECT_EQ(value(applied({rule("Value", "")})), 0);
}

TEST_F(ConstraintWalk, OtherActionsWithoutValueChangeNothing) {
  for (const char *pattern : {"Value", "View", "Default"})
    expectUntouched(applied({without(rule(pattern, ""), "ActionValue")}));
}

TEST_F(ConstraintWalk, UnknownOrMissingActionPatternChangesNothing) {
  for (const char *pattern : {"value", "VIEW", "range", "Default ", "", "Max"})
    expectUntouched(applied({rule(pattern, "5")}));
  expectUntouched(applied({without(rule("Value", "5"), "ActionPattern")}));
}

TEST_F(ConstraintWalk, ViewOffRestoresTheDefaultAndDisablesTheItems) {
  MorvaADPIntegerSettingRV2 *setting = bound(ruleTable({rule("View", "OFF")}));
  [setting setIntValue:9];
  journal.clear();
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(journal.take(), (Lines{"entry.setStringValue:3", "entry.setViewAvailable:0"}));
}

TEST_F(ConstraintWalk, ViewOnEnablesTheItems) {
  MorvaADPIntegerSettingRV2 *setting = bound(ruleTable({rule("View", "ON")}));
  [setting setIntValue:9];
  journal.clear();
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 9);
  EXPECT_EQ(journal.take(), (Lines{"entry.setViewAvailable:1"}));
}

TEST_F(ConstraintWalk, OtherViewValuesChangeNothing) {
  for (const char *text : {"on", "off", "On", "", "1", "0", "ON ", "YES"})
    expectUntouched(applied({rule("View", text)}));
}

TEST_F(ConstraintWalk, LaterViewRuleWinsAndTheValueStaysAtTheDefault) {
  MorvaADPIntegerSettingRV2 *setting = bound(ruleTable({rule("View", "OFF"), rule("View", "ON")}));
  [setting setIntValue:9];
  journal.clear();
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(journal.take(), (Lines{"entry.setStringValue:3", "entry.setViewAvailable:0",
                                   "entry.setViewAvailable:1"}));

  setting = bound(ruleTable({rule("View", "ON"), rule("View", "OFF")}));
  [setting setIntValue:9];
  journal.clear();
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(journal.take(), (Lines{"entry.setViewAvailable:1", "entry.setStringValue:3",
                                   "entry.setViewAvailable:0"}));
}

TEST_F(ConstraintWalk, RangeIsStoredAsGivenAndTouchesNothingElse) {
  MorvaADPIntegerSettingRV2 *setting = applied({rule("Range", "5:-5")});
  EXPECT_EQ(field<int32_t>(setting, "Min"), 5);
  EXPECT_EQ(field<int32_t>(setting, "Max"), -5);
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(journal.take(), Lines());
  [setting checkValue];
  EXPECT_EQ(value(setting), -5);
}

TEST_F(ConstraintWalk, RangeTakesItsFirstTwoParts) {
  MorvaADPIntegerSettingRV2 *setting = applied({rule("Range", "-1x: 2:3")});
  EXPECT_EQ(field<int32_t>(setting, "Min"), -1);
  EXPECT_EQ(field<int32_t>(setting, "Max"), 2);
}

TEST_F(ConstraintWalk, RangeWithoutActionValueIsZeroToZero) {
  MorvaADPIntegerSettingRV2 *setting = applied({without(rule("Range", ""), "ActionValue")});
  EXPECT_EQ(field<int32_t>(setting, "Min"), 0);
  EXPECT_EQ(field<int32_t>(setting, "Max"), 0);
  EXPECT_EQ(value(setting), 3);
  EXPECT_EQ(journal.take(), Lines());
}

TEST_F(ConstraintWalk, RangeWithoutColonIsSkipped) {
  for (const char *text : {"", "5", "abc"})
    expectUntouched(applied({rule("Range", text)}));
}

TEST_F(ConstraintWalk, DefaultIsReadAsAnIntegerAndTheValueStays) {
  for (const auto &[text, number] : std::map<std::string, int32_t>{
           {"7", 7}, {"-7x", -7}, {"99", 99}, {"", 0}, {"abc", 0}, {"3000000000", INT32_MAX}}) {
    MorvaADPIntegerSettingRV2 *setting = applied({rule("Default", text)});
    EXPECT_EQ(field<int32_t>(setting, "Default"), number) << text;
    EXPECT_EQ(value(setting), 3);
    EXPECT_EQ(journal.take(), Lines());
  }
}

TEST_F(ConstraintWalk, ActionEntriesThatAreNotStringsCountAsAbsent) {
  for (const char *key : {"ActionObj", "ActionPattern", "ActionValue"}) {
    NSMutableDictionary *texts =
        [NSMutableDictionary dictionaryWithDictionary:dictionary(rule("Value", "5"))];
    [texts setObject:[NSNumber numberWithInt:5] forKey:nsString(key)];
    MorvaADPIntegerSettingRV2 *setting = bound([NSDictionary dictionaryWithObject:texts
                                                                           forKey:@"0"]);
    [setting applyUIConstraint:store.handle()];
    expectUntouched(setting);
  }
}

TEST_F(ConstraintWalk, NoRuleStopsTheWalkAndTheHighestIndexWins) {
  MorvaADPIntegerSettingRV2 *setting = applied(
      {rule("Value", "5"), when("99", rule("Value", "1")), rule("Bad", "1"), rule("Default", "6"),
       rule("Range", "1"), rule("Value", "7"), rule("Range", "-9:9"), rule("Default", "8")});
  EXPECT_EQ(value(setting), 7);
  EXPECT_EQ(field<int32_t>(setting, "Default"), 8);
  EXPECT_EQ(field<int32_t>(setting, "Max"), 9);
  EXPECT_EQ(field<int32_t>(setting, "Min"), -9);
}

TEST_F(ConstraintWalk, RuleOnItsOwnValueSeesTheEffectOfEarlierRules) {
  EXPECT_EQ(value(applied({when("3", rule("Value", "4")), when("4", rule("Value", "5")),
                           when("3", rule("Value", "6"))})),
            5);
}

TEST_F(ConstraintWalk, RuleSeesThatAnEarlierOneRestoredTheDefault) {
  MorvaADPIntegerSettingRV2 *setting = bound(
      ruleTable({rule("Default", "8"), rule("View", "OFF"), when("8", rule("Default", "1"))}));
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 8);
  EXPECT_EQ(field<int32_t>(setting, "Default"), 1);
}

TEST_F(ConstraintWalk, NewRangeClampsTheValueThatALaterRuleSets) {
  EXPECT_EQ(value(applied({rule("Range", "-4:4"), rule("Value", "9")})), 4);
  EXPECT_EQ(value(applied({rule("Value", "9"), rule("Range", "-4:4")})), 9);
}

TEST_F(ConstraintWalk, EffectsStayUntilSomethingElseChangesThem) {
  MorvaADPIntegerSettingRV2 *setting = bound(ruleTable({when("3", rule("Range", "-4:4"))}));
  [setting applyUIConstraint:store.handle()];
  [setting setIntValue:9];
  [setting applyUIConstraint:store.handle()]; // no longer fires
  EXPECT_EQ(value(setting), 4);
  EXPECT_EQ(field<int32_t>(setting, "Max"), 4);
}

TEST_F(ConstraintWalk, EveryCallStartsWithTheFirstRule) {
  MorvaADPIntegerSettingRV2 *setting =
      bound(ruleTable({when("5", rule("Value", "6")), when("3", rule("Value", "5"))}));
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 5);
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 6);
}

TEST_F(ConstraintWalk, EachCallSeesTheCurrentValuesOfOtherSettings) {
  NSDictionary *rules = ruleTable({when("8", acting("BackLRM", "Value", "5"))});
  MorvaADPIntegerSettingRV2 *front =
      make([MorvaADPIntegerSettingRV2 class], dictionary(record()), rules);
  MorvaADPIntegerSettingRV2 *back = make([MorvaADPIntegerSettingRV2 class],
                                         dictionary(record({{"SettingName", "BackLRM"}})), rules);
  relate({front, back});
  [back applyUIConstraint:store.handle()];
  EXPECT_EQ(value(back), 3);
  [front setIntValue:8];
  [back applyUIConstraint:store.handle()];
  EXPECT_EQ(value(back), 5);
}

TEST_F(ConstraintWalk, ConditionCheckedWhileAnActionShowsItsValueSeesTheCurrentSettings) {
  // The entry field changes the related settings while the value is shown in it.
  MorvaADPIntegerSettingRV2 *setting = bound(ruleTable({rule("Value", "5"), rule("Value", "6")}));
  MorvaADPIntegerSettingRV2 *other = make(record({{"SettingName", "B"}}));
  NSArray *others = array({other});
  NSArray *items = array({entry});
  NSDictionary *question = dictionary({{"ConditionType", "Setting"},
                                       {"ConditionObj", "B"},
                                       {"ConditionPattern", "Value"},
                                       {"ConditionValue", "3"}});
  bool sawTheOther = false;
  onEachOperationOf(entry, [=, &sawTheOther](const std::string &operation) {
    if (operation == "setStringValue:5") {
      [setting setRelatedSettings:others HandlingTarget:items];
      sawTheOther = [setting checkUIConstraintCondition:question];
    }
  });
  [setting applyUIConstraint:store.handle()];
  EXPECT_TRUE(sawTheOther);
  EXPECT_EQ(value(setting), 5); // "FrontLRM" is no longer among the related settings
}

TEST_F(ConstraintWalk, NextRuleSeesSettingsThatWereRelatedAfterAConditionWasCheckedInAnAction) {
  MorvaADPIntegerSettingRV2 *setting = bound(ruleTable({rule("Value", "5"), rule("Value", "6")}));
  MorvaADPIntegerSettingRV2 *other = make(record({{"SettingName", "B"}}));
  NSArray *others = array({other});
  NSArray *items = array({entry});
  NSDictionary *question = dictionary(rule("Value", "5"));
  bool sawItself = false;
  onEachOperationOf(entry, [=, &sawItself](const std::string &operation) {
    if (operation == "setStringValue:5") {
      sawItself = [setting checkUIConstraintCondition:question];
      [setting setRelatedSettings:others HandlingTarget:items];
    }
  });
  [setting applyUIConstraint:store.handle()];
  EXPECT_TRUE(sawItself);
  EXPECT_EQ(value(setting), 5); // "FrontLRM" is no longer among the related settings
}

TEST_F(ConstraintWalk, AttributeRulesDependOnThePrinter) {
  TestPpd narrow({"*ShiftRange: \"Narrow\""});
  TestPpd wide({"*ShiftRange: \"Wide\""});
  Texts texts = rule("Range", "-5:5");
  texts["ConditionType"] = "PPD";
  texts["ConditionPattern"] = "ShiftRange";
  texts["ConditionValue"] = "Narrow";
  for (ppd_file_t *ppd : {narrow.get(), wide.get()}) {
    MorvaADPIntegerSettingRV2 *setting =
        [[[MorvaADPIntegerSettingRV2 alloc] initWithSettingInfo:dictionary(record())
                                                 ConstraintInfo:ruleTable({texts})
                                                     BundleInfo:resources.bundle()
                                                            PPD:ppd] autorelease];
    [setting applyUIConstraint:store.handle()];
    EXPECT_EQ(field<int32_t>(setting, "Max"), ppd == narrow.get() ? 5 : 20);
  }
}

TEST_F(ConstraintWalk, NothingIsLogged) {
  LogCapture log;
  NSMutableDictionary *rules = [NSMutableDictionary
      dictionaryWithDictionary:ruleTable({rule("Range", "5"), rule("Bad", ""), {}})];
  [rules setObject:@"text" forKey:@"3"];
  [bound(rules) applyUIConstraint:store.handle()];
  EXPECT_EQ(log.lines(), Lines());
}

} // namespace
} // namespace imageposition::test
