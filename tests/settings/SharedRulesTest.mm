#import "settings/ConstraintDictionary.h"
#import "tests/settings/SettingFixture.h"
#import "tests/support/Pool.h"

#import <Foundation/NSDebug.h>

/// Keeps the rules that it is asked about.
@interface RuleKeepingSetting : MorvaADPIntegerSettingRV2 {
@public
  NSMutableArray *kept; // the test's
}
@end

@implementation RuleKeepingSetting
- (BOOL)checkUIConstraintCondition:(NSDictionary *)rule {
  [kept addObject:rule];
  return [super checkUIConstraintCondition:rule];
}
@end

namespace imageposition::test {
namespace {

/// A rule table that several settings share in typed form.
class SharedRules : public SettingTest {
protected:
  static Texts rule(const std::string &setting, const std::string &number) {
    return {{"ActionObj", setting},       {"ActionPattern", "Value"}, {"ActionValue", number},
            {"ConditionType", "Setting"}, {"ConditionObj", setting},  {"ConditionPattern", "Value"},
            {"ConditionValue", "3"}};
  }
  static NSDictionary *shared(NSDictionary *entries) {
    return [MorvaADPConstraintTable tableWithDictionary:entries];
  }
};

TEST_F(SharedRules, NoTableIsMadeOfNothing) { EXPECT_TRUE(shared(nil) == nil); }

TEST_F(SharedRules, ReadLikeTheDictionaryTheyWereMadeOf) {
  NSDictionary *entries = ruleTable({rule("FrontLRM", "5"), rule("BackLRM", "6")});
  NSDictionary *table = shared(entries);
  EXPECT_TRUE([table isKindOfClass:[NSDictionary class]]);
  EXPECT_EQ([table count], 2u);
  EXPECT_TRUE([table isEqual:entries]);
  EXPECT_TRUE([entries isEqual:table]);
  EXPECT_TRUE([[table objectForKey:@"1"] isEqual:[entries objectForKey:@"1"]]);
  EXPECT_TRUE([table objectForKey:@"2"] == nil);
}

TEST_F(SharedRules, DoNotFollowLaterChangesOfTheDictionary) {
  NSMutableDictionary *entries =
      [NSMutableDictionary dictionaryWithDictionary:ruleTable({rule("FrontLRM", "5")})];
  NSDictionary *table = shared(entries);
  [entries setObject:dictionary(rule("FrontLRM", "6")) forKey:@"0"];
  MorvaADPIntegerSettingRV2 *setting =
      make([MorvaADPIntegerSettingRV2 class], dictionary(record()), table);
  relate({setting});
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 5);
}

TEST_F(SharedRules, EachSettingTakesItsOwn) {
  NSDictionary *table = shared(ruleTable({rule("BackLRM", "6"), rule("FrontLRM", "5")}));
  MorvaADPIntegerSettingRV2 *front =
      make([MorvaADPIntegerSettingRV2 class], dictionary(record()), table);
  MorvaADPIntegerSettingRV2 *back = make([MorvaADPIntegerSettingRV2 class],
                                         dictionary(record({{"SettingName", "BackLRM"}})), table);
  relate({front, back});
  EXPECT_TRUE(field<NSDictionary *>(front, "ConstraintInfo") == table);
  EXPECT_TRUE(field<NSDictionary *>(back, "ConstraintInfo") == table);
  [front applyUIConstraint:store.handle()];
  [back applyUIConstraint:store.handle()];
  EXPECT_EQ(value(front), 5);
  EXPECT_EQ(value(back), 6);
}

TEST_F(SharedRules, OfMalformedTablesAreSkipped) {
  NSMutableDictionary *entries = [NSMutableDictionary dictionary];
  [entries setObject:@"text" forKey:@"0"];
  [entries setObject:dictionary(rule("FrontLRM", "9")) forKey:@"x"];
  [entries setObject:dictionary(rule("FrontLRM", "5")) forKey:@"2"];
  MorvaADPIntegerSettingRV2 *setting =
      make([MorvaADPIntegerSettingRV2 class], dictionary(record()), shared(entries));
  relate({setting});
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 5);
}

TEST_F(SharedRules, GoWithTheLastSetting) {
  GSDebugAllocationActive(YES);
  Class tableClass = [MorvaADPConstraintTable class];
  const int before = GSDebugAllocationCount(tableClass);
  id first = nil;
  id second = nil;
  {
    Pool pool;
    NSDictionary *table = shared(ruleTable({rule("FrontLRM", "5")}));
    first = [make([MorvaADPIntegerSettingRV2 class], dictionary(record()), table) retain];
    second = [make([MorvaADPIntegerSettingRV2 class], dictionary(record()), table) retain];
  }
  EXPECT_EQ(GSDebugAllocationCount(tableClass), before + 1);
  [first release];
  EXPECT_EQ(GSDebugAllocationCount(tableClass), before + 1);
  [second release];
  EXPECT_EQ(GSDebugAllocationCount(tableClass), before);
  GSDebugAllocationActive(NO);
}

TEST_F(SharedRules, RuleThatOutlivesItsTableIsStillDecidedByItsTexts) {
  NSMutableArray *kept = [NSMutableArray array];
  {
    Pool pool;
    RuleKeepingSetting *setting =
        static_cast<RuleKeepingSetting *>(make([RuleKeepingSetting class], dictionary(record()),
                                               shared(ruleTable({rule("FrontLRM", "5")}))));
    setting->kept = kept;
    relate({setting});
    [setting applyUIConstraint:store.handle()];
  }
  ASSERT_EQ([kept count], 1u);
  EXPECT_TRUE([[kept objectAtIndex:0] isEqual:dictionary(rule("FrontLRM", "5"))]);
  MorvaADPIntegerSettingRV2 *other = make();
  relate({other});
  EXPECT_TRUE([other checkUIConstraintCondition:[kept objectAtIndex:0]]);
  [other setIntValue:4];
  EXPECT_FALSE([other checkUIConstraintCondition:[kept objectAtIndex:0]]);
}

TEST_F(SharedRules, OfOneSettingMayBeDecidedByAnother) {
  NSMutableArray *kept = [NSMutableArray array];
  RuleKeepingSetting *keeper =
      static_cast<RuleKeepingSetting *>(make([RuleKeepingSetting class], dictionary(record()),
                                             shared(ruleTable({rule("FrontLRM", "5")}))));
  keeper->kept = kept;
  relate({keeper});
  [keeper applyUIConstraint:store.handle()];
  ASSERT_EQ([kept count], 1u);
  MorvaADPIntegerSettingRV2 *other = make();
  relate({other});
  EXPECT_TRUE([other checkUIConstraintCondition:[kept objectAtIndex:0]]);
  [other setIntValue:4];
  EXPECT_FALSE([other checkUIConstraintCondition:[kept objectAtIndex:0]]);
}

} // namespace
} // namespace imageposition::test
