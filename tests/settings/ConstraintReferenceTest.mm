#import "LiteralRules.h"
#import "SettingFixture.h"
#import "TestPool.h"

#include <algorithm>
#include <array>
#include <random>

namespace imageposition::test {
namespace {

constexpr std::array<const char *, 4> kNames = {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"};

/// Rule tables in which most rules are valid and the others are wrong in every known way.
class Tables {
public:
  explicit Tables(unsigned seed) : random_(seed) {}

  NSDictionary *next() {
    NSMutableDictionary *table = [NSMutableDictionary dictionary];
    const unsigned count = random_() % 24;
    for (unsigned i = 0; i < count; ++i)
      [table setObject:entry() forKey:key(i)];
    return table;
  }

  unsigned below(unsigned bound) { return random_() % bound; }
  // Mostly small, so that strings are often equal and intervals often hold.
  int32_t number() {
    const int32_t reach = below(6) == 0 ? 30 : 4;
    return static_cast<int32_t>(below(2 * reach + 1)) - reach;
  }

private:
  NSString *key(unsigned index) {
    if (below(25) != 0)
      return nsString(std::to_string(index));
    return pick({"00", "+1", "-1", "x", "", "40", "01", "2"});
  }

  id entry() {
    switch (below(30)) {
    case 0:
      return @"no dictionary";
    case 1:
      return [NSArray array];
    default:
      return rule();
    }
  }

  NSDictionary *rule() {
    NSMutableDictionary *rule = [NSMutableDictionary dictionary];
    put(rule, @"ActionObj", name());
    put(rule, @"ConditionObj", name());
    put(rule, @"ActionPattern",
        pick({"Value", "View", "Range", "Default", "Value", "Range", "value"}));
    const bool asksThePrinter = below(4) == 0;
    put(rule, @"ConditionType",
        below(20) == 0   ? pick({"ppd", "", "Settings"})
        : asksThePrinter ? @"PPD"
                         : @"Setting");
    put(rule, @"ConditionPattern",
        asksThePrinter ? pick({"ShiftA", "ShiftA", "ShiftB", "ShiftEmpty", "Missing"})
                       : pick({"Value", "Range", "Range", "Range", "Range", "range"}));
    put(rule, @"ConditionValue",
        asksThePrinter ? pick({"on", "on", "off", "", "On"}) : value(below(8) != 0));
    put(rule, @"ActionValue", below(5) == 0 ? pick({"ON", "OFF", "on"}) : value(below(2) == 0));
    return rule;
  }

  // Now and then an entry is missing or not a string.
  void put(NSMutableDictionary *rule, NSString *key, NSString *text) {
    switch (below(40)) {
    case 0:
      break;
    case 1:
      [rule setObject:[NSNumber numberWithInt:5] forKey:key];
      break;
    default:
      [rule setObject:text forKey:key];
    }
  }

  NSString *name() { return below(12) == 0 ? pick({"", "frontlrm", "Other"}) : pick(kNames); }

  NSString *value(bool interval) {
    if (below(10) == 0)
      return pick({"", "abc", "05", "+5", " 7", "-0", "5x", ":", "a:b", "99999999999",
                   "-99999999999", "1:2:3", "--4"});
    if (!interval)
      return nsString(std::to_string(number()));
    const int32_t first = number();
    const int32_t second = number();
    const bool inverted = below(8) == 0;
    return nsString(std::to_string(inverted ? std::max(first, second) : std::min(first, second)) +
                    ":" +
                    std::to_string(inverted ? std::min(first, second) : std::max(first, second)));
  }

  template <std::size_t N> NSString *pick(const std::array<const char *, N> &texts) {
    return nsString(texts[below(N)]);
  }
  NSString *pick(std::initializer_list<const char *> texts) {
    return nsString(texts.begin()[below(static_cast<unsigned>(texts.size()))]);
  }

  std::mt19937 random_;
};

class ConstraintReference : public SettingTest {
protected:
  ConstraintReference()
      : ppd_({"*ShiftA: \"on\"", "*ShiftB First: \"off\"", "*ShiftB Second: \"on\"",
              "*ShiftEmpty: \"\""}) {}

  std::vector<MorvaADPIntegerSettingRV2 *> panel(NSDictionary *rules) {
    std::vector<MorvaADPIntegerSettingRV2 *> settings;
    NSMutableArray *list = [NSMutableArray array];
    for (const char *name : kNames) {
      MorvaADPIntegerSettingRV2 *setting = [[[MorvaADPIntegerSettingRV2 alloc]
          initWithSettingInfo:dictionary(record({{"SettingName", name}}))
               ConstraintInfo:rules
                   BundleInfo:resources.bundle()
                          PPD:ppd_] autorelease];
      settings.push_back(setting);
      [list addObject:setting];
    }
    for (std::size_t i = 0; i < kNames.size(); ++i)
      [settings[i] setRelatedSettings:list HandlingTarget:array({item(kNames[i], kEntryField)})];
    journal.clear();
    return settings;
  }

  void expectSame(const std::vector<MorvaADPIntegerSettingRV2 *> &settings,
                  const LiteralRules &reference) {
    for (std::size_t i = 0; i < kNames.size(); ++i) {
      const LiteralSetting &model = reference.models[i];
      EXPECT_EQ(value(settings[i]), model.value) << kNames[i];
      EXPECT_EQ(field<int32_t>(settings[i], "Min"), model.min) << kNames[i];
      EXPECT_EQ(field<int32_t>(settings[i], "Max"), model.max) << kNames[i];
      EXPECT_EQ(field<int32_t>(settings[i], "Default"), model.standard) << kNames[i];
    }
    EXPECT_EQ(journal.lines(), reference.calls);
  }

  /// Random edits and walks, the same in both.
  void play(Tables &random, NSDictionary *rules) {
    const auto settings = panel(rules);
    LiteralRules reference(rules, ppd_);
    std::size_t edits = 0;
    for (; edits < 8 && !HasFailure(); ++edits) {
      const unsigned index = random.below(4);
      const int32_t number = random.number();
      [settings[index] setIntValue:number];
      reference.models[index].set(number, reference.calls);
      for (std::size_t i = 0; i < kNames.size(); ++i) {
        [settings[i] applyUIConstraint:store.handle()];
        reference.apply(i);
      }
      expectSame(settings, reference);
    }
    calls_ += reference.calls.size() - edits;
  }

  TestPpd ppd_;
  std::size_t calls_ = 0; // made by rules
};

TEST_F(ConstraintReference, RandomTablesMatchALiteralWalk) {
  Tables random(20240607);
  for (int round = 0; round < 3000 && !HasFailure(); ++round) {
    Pool pool;
    NSDictionary *rules = random.next();
    play(random, rules);
    if (HasFailure())
      ADD_FAILURE() << "round " << round << " with " << cxxString(rules);
  }
  // If hardly any rule fired, the comparison would prove nothing.
  EXPECT_GT(calls_, 5000u);
}

TEST_F(ConstraintReference, EverySingleRuleMatchesALiteralReading) {
  Tables random(31);
  for (int round = 0; round < 1500 && !HasFailure(); ++round) {
    Pool pool;
    NSDictionary *rules = random.next();
    const auto settings = panel(rules);
    for (NSUInteger i = 0; i < [rules count]; ++i) {
      id rule = [rules objectForKey:nsString(std::to_string(i))];
      if (![rule isKindOfClass:[NSDictionary class]])
        continue;
      // As the only rule, which sets the default if it fires.
      NSMutableDictionary *question = [NSMutableDictionary dictionaryWithDictionary:rule];
      [question setObject:@"FrontLRM" forKey:@"ActionObj"];
      [question setObject:@"Default" forKey:@"ActionPattern"];
      [question setObject:@"77" forKey:@"ActionValue"];
      NSDictionary *table = [NSDictionary dictionaryWithObject:question forKey:@"0"];
      LiteralRules reference(table, ppd_);
      reference.apply(0);
      EXPECT_EQ(bool([settings[0] checkUIConstraintCondition:rule]),
                reference.models[0].standard == 77)
          << cxxString(rule);
    }
  }
}

} // namespace
} // namespace imageposition::test
