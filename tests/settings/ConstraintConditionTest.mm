#import "SettingFixture.h"

namespace imageposition::test {
namespace {

/// Conditions of rules that are passed to a setting directly, as plain dictionaries.
class ConstraintCondition : public SettingTest {
protected:
  MorvaADPIntegerSettingRV2 *setting(const char *name, int32_t number) {
    MorvaADPIntegerSettingRV2 *made =
        make(record({{"SettingName", name}, {"Range", "-2147483648:2147483647"}}));
    [made setIntValue:number];
    return made;
  }
  /// Whether it holds for a setting "A" with that value, which is related to itself.
  bool holdsFor(int32_t number, const Texts &rule) {
    MorvaADPIntegerSettingRV2 *tested = setting("A", number);
    relate({tested});
    return [tested checkUIConstraintCondition:dictionary(rule)];
  }
  static Texts onSetting(const std::string &pattern, const std::string &expected) {
    return {{"ConditionType", "Setting"},
            {"ConditionObj", "A"},
            {"ConditionPattern", pattern},
            {"ConditionValue", expected}};
  }
  static Texts onAttribute(const std::string &keyword, const std::string &expected) {
    return {{"ConditionType", "PPD"}, {"ConditionPattern", keyword}, {"ConditionValue", expected}};
  }
  static Texts without(Texts rule, const char *key) {
    rule.erase(key);
    return rule;
  }
  bool holdsAtPrinter(TestPpd &ppd, const Texts &rule) {
    MorvaADPIntegerSettingRV2 *tested =
        [[[MorvaADPIntegerSettingRV2 alloc] initWithSettingInfo:dictionary(record())
                                                 ConstraintInfo:[NSDictionary dictionary]
                                                     BundleInfo:resources.bundle()
                                                            PPD:ppd] autorelease];
    return [tested checkUIConstraintCondition:dictionary(rule)];
  }
};

TEST_F(ConstraintCondition, RangeHoldsAtBothBoundsAndBetween) {
  for (int32_t number : {-10, 0, 10})
    EXPECT_TRUE(holdsFor(number, onSetting("Range", "-10:10"))) << number;
  for (int32_t number : {-11, 11, INT32_MIN, INT32_MAX})
    EXPECT_FALSE(holdsFor(number, onSetting("Range", "-10:10"))) << number;
}

TEST_F(ConstraintCondition, RangeTakesItsFirstTwoParts) {
  EXPECT_TRUE(holdsFor(2, onSetting("Range", "1:2:3")));
  EXPECT_FALSE(holdsFor(3, onSetting("Range", "1:2:3")));
  EXPECT_TRUE(holdsFor(0, onSetting("Range", "a:b")));
  EXPECT_TRUE(holdsFor(0, onSetting("Range", ":")));
  EXPECT_FALSE(holdsFor(7, onSetting("Range", "10:5")));
  EXPECT_TRUE(holdsFor(INT32_MAX, onSetting("Range", "3000000000:3000000000")));
}

TEST_F(ConstraintCondition, RangeWithoutColonIsFalse) {
  for (int32_t number : {0, 5}) {
    EXPECT_FALSE(holdsFor(number, onSetting("Range", "5")));
    EXPECT_FALSE(holdsFor(number, onSetting("Range", "")));
  }
}

TEST_F(ConstraintCondition, ValuesAreComparedAsStrings) {
  EXPECT_TRUE(holdsFor(5, onSetting("Value", "5")));
  EXPECT_TRUE(holdsFor(-3, onSetting("Value", "-3")));
  EXPECT_TRUE(holdsFor(0, onSetting("Value", "0")));
  for (const char *other : {"05", "+5", " 5", "5 ", "5.0", "", "five"})
    EXPECT_FALSE(holdsFor(5, onSetting("Value", other))) << other;
  EXPECT_FALSE(holdsFor(0, onSetting("Value", "-0")));
}

TEST_F(ConstraintCondition, AbsentConditionValueNeverEqualsAndIsZeroToZeroAsARange) {
  for (int32_t number : {-1, 0, 1}) {
    EXPECT_FALSE(holdsFor(number, without(onSetting("Value", ""), "ConditionValue")));
    EXPECT_EQ(holdsFor(number, without(onSetting("Range", ""), "ConditionValue")), number == 0);
  }
}

TEST_F(ConstraintCondition, UnknownAndMissingTypesAndPatternsAreFalse) {
  for (const char *key : {"ConditionType", "ConditionPattern", "ConditionObj"}) {
    EXPECT_FALSE(holdsFor(5, without(onSetting("Value", "5"), key))) << key;
    for (const char *text : {"", "value", "setting", "Other"}) {
      Texts rule = onSetting("Value", "5");
      rule[key] = text;
      EXPECT_FALSE(holdsFor(5, rule)) << key << " " << text;
    }
  }
}

TEST_F(ConstraintCondition, NullRuleIsFalse) {
  MorvaADPIntegerSettingRV2 *tested = setting("A", 0);
  relate({tested});
  EXPECT_FALSE([tested checkUIConstraintCondition:nil]);
  EXPECT_FALSE([tested checkUIConstraintCondition:[NSDictionary dictionary]]);
}

TEST_F(ConstraintCondition, EntriesThatAreNotStringsCountAsAbsent) {
  MorvaADPIntegerSettingRV2 *tested = setting("A", 5);
  relate({tested});
  for (NSString *key : {@"ConditionType", @"ConditionObj", @"ConditionPattern"}) {
    NSMutableDictionary *rule =
        [NSMutableDictionary dictionaryWithDictionary:dictionary(onSetting("Value", "5"))];
    [rule setObject:[NSNumber numberWithInt:5] forKey:key];
    EXPECT_FALSE([tested checkUIConstraintCondition:rule]) << cxxString(key);
  }
  NSMutableDictionary *number =
      [NSMutableDictionary dictionaryWithDictionary:dictionary(onSetting("Value", "5"))];
  [number setObject:[NSNumber numberWithInt:5] forKey:@"ConditionValue"];
  EXPECT_FALSE([tested checkUIConstraintCondition:number]);
  [number setObject:@"Range" forKey:@"ConditionPattern"]; // an absent interval is 0:0
  EXPECT_FALSE([tested checkUIConstraintCondition:number]);
  [tested setIntValue:0];
  EXPECT_TRUE([tested checkUIConstraintCondition:number]);
}

TEST_F(ConstraintCondition, SettingThatIsNotRelatedIsFalse) {
  MorvaADPIntegerSettingRV2 *tested = setting("B", 5);
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(onSetting("Value", "5"))]); // unbound
  relate({tested});
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(onSetting("Value", "5"))]);
  [tested setRelatedSettings:[NSArray array] HandlingTarget:nil];
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(onSetting("Value", "5"))]);
}

TEST_F(ConstraintCondition, SettingItselfCountsOnlyIfItIsRelated) {
  MorvaADPIntegerSettingRV2 *a = setting("A", 5);
  MorvaADPIntegerSettingRV2 *b = setting("B", 5);
  [a setRelatedSettings:array({b}) HandlingTarget:nil];
  EXPECT_FALSE([a checkUIConstraintCondition:dictionary(onSetting("Value", "5"))]);
}

TEST_F(ConstraintCondition, OneOfSeveralSettingsWithTheNameSuffices) {
  MorvaADPIntegerSettingRV2 *tested = setting("B", 0);
  for (const auto &[first, second] :
       std::vector<std::pair<int32_t, int32_t>>{{5, 6}, {6, 5}, {5, 5}}) {
    MorvaADPIntegerSettingRV2 *firstA = setting("A", first);
    MorvaADPIntegerSettingRV2 *secondA = setting("A", second);
    relate({firstA, tested, secondA});
    EXPECT_TRUE([tested checkUIConstraintCondition:dictionary(onSetting("Value", "5"))]);
    EXPECT_TRUE([tested checkUIConstraintCondition:dictionary(onSetting("Range", "5:5"))]);
  }
  relate({setting("A", 6), tested, setting("A", 7)});
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(onSetting("Value", "5"))]);
}

TEST_F(ConstraintCondition, ListOfRelatedSettingsIsReadEachTime) {
  MorvaADPIntegerSettingRV2 *tested = setting("B", 0);
  NSMutableArray *settings = [NSMutableArray array];
  [tested setRelatedSettings:settings HandlingTarget:nil];
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(onSetting("Value", "5"))]);
  MorvaADPIntegerSettingRV2 *a = setting("A", 5);
  [settings addObject:a];
  EXPECT_TRUE([tested checkUIConstraintCondition:dictionary(onSetting("Value", "5"))]);
  [a setIntValue:6];
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(onSetting("Value", "5"))]);
  [a setIntValue:5];
  [settings removeAllObjects];
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(onSetting("Value", "5"))]);
}

TEST_F(ConstraintCondition, RelatedBaseSettingHasNoValueStringAndCountsAsZero) {
  MorvaADPSettingRV2 *base =
      make([MorvaADPSettingRV2 class], dictionary(record({{"SettingName", "A"}})),
           [NSDictionary dictionary]);
  MorvaADPIntegerSettingRV2 *tested = setting("B", 0);
  relate({base, tested});
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(onSetting("Value", "0"))]);
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(onSetting("Value", ""))]);
  EXPECT_TRUE([tested checkUIConstraintCondition:dictionary(onSetting("Range", "0:0"))]);
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(onSetting("Range", "1:9"))]);
}

TEST_F(ConstraintCondition, SettingWithoutANameNeverMatches) {
  Texts nameless = record({{"DefaultValue", "5"}});
  nameless.erase("SettingName");
  MorvaADPIntegerSettingRV2 *tested = make(nameless);
  relate({tested});
  Texts rule = onSetting("Value", "5");
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(without(rule, "ConditionObj"))]);
  rule["ConditionObj"] = "";
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(rule)]);
  rule["ConditionObj"] = "UIItemCollector";
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(rule)]);
}

TEST_F(ConstraintCondition, AttributeMustEqualTheExpectedStringByteForByte) {
  TestPpd ppd({"*ShiftRange: \"Wide\"", "*ShiftEmpty: \"\"", "*ShiftAccent: \"<E9>\""});
  EXPECT_TRUE(holdsAtPrinter(ppd, onAttribute("ShiftRange", "Wide")));
  for (const char *other : {"wide", "WIDE", "Wide ", " Wide", "Wid", ""})
    EXPECT_FALSE(holdsAtPrinter(ppd, onAttribute("ShiftRange", other))) << other;
  EXPECT_TRUE(holdsAtPrinter(ppd, onAttribute("ShiftEmpty", "")));
  EXPECT_FALSE(holdsAtPrinter(ppd, onAttribute("ShiftEmpty", "x")));
}

TEST_F(ConstraintCondition, AttributeOutsideAsciiIsComparedAsUtf8) {
  TestPpd ppd({"*ShiftText: \"gr\xC3\xBC\xC3\x9F\""});
  EXPECT_TRUE(holdsAtPrinter(ppd, onAttribute("ShiftText", "gr\xC3\xBC\xC3\x9F")));
  EXPECT_FALSE(holdsAtPrinter(ppd, onAttribute("ShiftText", "gr\xC3\xBC\xC3\xA9")));
}

TEST_F(ConstraintCondition, AttributeThatThePrinterLacksIsFalse) {
  TestPpd ppd({"*ShiftRange: \"Wide\""});
  EXPECT_FALSE(holdsAtPrinter(ppd, onAttribute("Missing", "Wide")));
  EXPECT_FALSE(holdsAtPrinter(ppd, onAttribute("Missing", "")));
  EXPECT_FALSE(holdsAtPrinter(ppd, onAttribute("", "Wide")));
  EXPECT_FALSE(holdsAtPrinter(ppd, without(onAttribute("", "Wide"), "ConditionPattern")));
}

TEST_F(ConstraintCondition, FirstOfSeveralAttributesWithTheKeywordCounts) {
  TestPpd ppd({"*ShiftRange First: \"Narrow\"", "*ShiftRange Second: \"Wide\""});
  ppd_attr_t *first = ppdFindAttr(ppd, "ShiftRange", nullptr);
  ASSERT_NE(first, nullptr);
  const std::string value = first->value;
  EXPECT_TRUE(holdsAtPrinter(ppd, onAttribute("ShiftRange", value)));
  EXPECT_FALSE(
      holdsAtPrinter(ppd, onAttribute("ShiftRange", value == "Narrow" ? "Wide" : "Narrow")));
}

TEST_F(ConstraintCondition, AttributeConditionWithoutAValueIsFalse) {
  TestPpd ppd({"*ShiftRange: \"Wide\"", "*ShiftEmpty: \"\""});
  EXPECT_FALSE(holdsAtPrinter(ppd, without(onAttribute("ShiftRange", ""), "ConditionValue")));
  EXPECT_FALSE(holdsAtPrinter(ppd, without(onAttribute("ShiftEmpty", ""), "ConditionValue")));
}

TEST_F(ConstraintCondition, AttributeWithoutAValueIsFalse) {
  TestPpd ppd({"*ShiftRange: \"Wide\""});
  ppd_attr_t *attribute = ppdFindAttr(ppd, "ShiftRange", nullptr);
  char *const value = std::exchange(attribute->value, nullptr);
  EXPECT_FALSE(holdsAtPrinter(ppd, onAttribute("ShiftRange", "Wide")));
  EXPECT_FALSE(holdsAtPrinter(ppd, onAttribute("ShiftRange", "")));
  EXPECT_FALSE(holdsAtPrinter(ppd, without(onAttribute("ShiftRange", ""), "ConditionValue")));
  attribute->value = value;
}

TEST_F(ConstraintCondition, WithoutAPrinterThereAreNoAttributes) {
  MorvaADPIntegerSettingRV2 *tested = setting("A", 5);
  field<ppd_file_t *>(tested, "PPD") = nullptr;
  EXPECT_FALSE([tested checkUIConstraintCondition:dictionary(onAttribute("ShiftRange", "Wide"))]);
}

TEST_F(ConstraintCondition, CheckingAConditionChangesNothing) {
  MorvaADPIntegerSettingRV2 *tested = make(record());
  field<int32_t>(tested, "Value") = 99;
  bind(tested, {item("entry", kEntryField), item("range", kLabel, 1)});
  [tested checkUIConstraintCondition:dictionary({{"ConditionType", "Setting"},
                                                 {"ConditionObj", "FrontLRM"},
                                                 {"ConditionPattern", "Value"},
                                                 {"ConditionValue", "99"},
                                                 {"ActionObj", "FrontLRM"},
                                                 {"ActionPattern", "Value"},
                                                 {"ActionValue", "5"}})];
  EXPECT_EQ(value(tested), 99);
  EXPECT_EQ(journal.take(), Lines());
}

} // namespace
} // namespace imageposition::test
