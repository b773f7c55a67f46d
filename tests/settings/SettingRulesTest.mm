#import "SettingRules.h"
#import "SettingFixture.h"

namespace imageposition::test {
namespace {

Texts rule(const std::string &setting, const std::string &number) {
  return {{"ActionObj", setting}, {"ActionPattern", "Default"}, {"ActionValue", number}};
}

/// The numbers of the rules that act on the setting.
std::vector<std::int32_t> actingOn(const SettingRules &rules, NSString *setting) {
  std::vector<std::int32_t> numbers;
  for (const SettingRule *found : rules.actingOn(setting))
    numbers.push_back(found->action.number);
  return numbers;
}

using Numbers = std::vector<std::int32_t>;

TEST(SettingRules, FindsTheRulesOfASettingInIndexOrder) {
  const SettingRules rules(
      ruleTable({rule("A", "1"), rule("B", "2"), rule("A", "3"), rule("C", "4"), rule("A", "5")}));
  EXPECT_EQ(actingOn(rules, @"A"), (Numbers{1, 3, 5}));
  EXPECT_EQ(actingOn(rules, @"B"), (Numbers{2}));
  EXPECT_EQ(actingOn(rules, @"D"), Numbers());
}

TEST(SettingRules, NullTableHasNoRules) {
  const SettingRules rules(nil);
  EXPECT_EQ(actingOn(rules, @"A"), Numbers());
  EXPECT_EQ(rules.find(nil), nullptr);
}

TEST(SettingRules, RulesWithoutASettingActOnNothing) {
  Texts nobodys = rule("", "2");
  nobodys.erase("ActionObj");
  const SettingRules rules(ruleTable({rule("", "1"), nobodys}));
  EXPECT_EQ(actingOn(rules, @""), (Numbers{1}));
  EXPECT_EQ(actingOn(rules, nil), Numbers());
}

TEST(SettingRules, RulesAreFoundOnlyByTheirOwnDictionary) {
  NSDictionary *table = ruleTable({rule("A", "1"), rule("A", "2")});
  const SettingRules rules(table);
  NSDictionary *second = [table objectForKey:@"1"];
  ASSERT_NE(rules.find(second), nullptr);
  EXPECT_EQ(rules.find(second)->action.number, 2);
  EXPECT_EQ(rules.find(second)->dictionary, second);
  EXPECT_EQ(rules.find(dictionary(rule("A", "2"))), nullptr) << "equal, but not identical";
}

TEST(SettingRules, OneDictionaryMayBeUnderSeveralIndexes) {
  NSDictionary *one = dictionary(rule("A", "1"));
  const SettingRules rules([NSDictionary dictionaryWithObjectsAndKeys:one, @"0", one, @"1", nil]);
  EXPECT_EQ(actingOn(rules, @"A"), (Numbers{1, 1}));
}

TEST(SettingRules, LaterChangesOfTheTableHaveNoEffect) {
  NSMutableDictionary *table =
      [NSMutableDictionary dictionaryWithDictionary:ruleTable({rule("A", "1")})];
  const SettingRules rules(table);
  [table setObject:dictionary(rule("A", "2")) forKey:@"0"];
  EXPECT_EQ(actingOn(rules, @"A"), (Numbers{1}));
  EXPECT_TRUE([rules.actingOn(@"A")[0]->dictionary isEqual:dictionary(rule("A", "1"))]);
}

} // namespace
} // namespace imageposition::test
