#import "ObservedSetting.h"
#import "SettingFixture.h"
#import "TestPool.h"

#import <Foundation/NSDebug.h>

#include <algorithm>
#include <array>

/// Records when it is retained, released and deallocated.
@interface CountedDictionary : NSDictionary {
@public
  NSDictionary *entries;
  imageposition::test::Journal *journal;
}
@end

@implementation CountedDictionary
- (void)dealloc {
  [entries release];
  [super dealloc];
}
- (oneway void)release {
  journal->add("rules.release");
  [super release];
}
- (NSUInteger)count {
  return [entries count];
}
- (id)objectForKey:(id)key {
  return [entries objectForKey:key];
}
- (NSEnumerator *)keyEnumerator {
  return [entries keyEnumerator];
}
@end

@interface CountedBundle : NSBundle {
@public
  imageposition::test::Journal *journal;
}
@end

@implementation CountedBundle
- (oneway void)release {
  if (journal != nullptr)
    journal->add("bundle.release");
  [super release];
}
@end

@interface CountedItem : NSObject {
@public
  imageposition::test::Journal *journal;
}
@end

@implementation CountedItem
- (oneway void)release {
  journal->add("item.release");
  [super release];
}
@end

namespace imageposition::test {
namespace {

class SettingOwnership : public SettingTest {
protected:
  id alloc(Class type, NSDictionary *definition, NSDictionary *rules) {
    return [[type alloc] initWithSettingInfo:definition
                              ConstraintInfo:rules
                                  BundleInfo:resources.bundle()
                                         PPD:printer];
  }
  static std::vector<Texts> someRules() {
    return {{{"ActionObj", "FrontLRM"},
             {"ActionPattern", "Value"},
             {"ActionValue", "5"},
             {"ConditionType", "Setting"},
             {"ConditionObj", "FrontLRM"},
             {"ConditionPattern", "Range"},
             {"ConditionValue", "0:9"}},
            {{"ActionObj", "FrontLRM"},
             {"ActionPattern", "View"},
             {"ActionValue", "OFF"},
             {"ConditionType", "PPD"},
             {"ConditionPattern", "None"},
             {"ConditionValue", "x"}}};
  }
  static std::array<Class, 2> types() {
    return {[MorvaADPSettingRV2 class], [MorvaADPIntegerSettingRV2 class]};
  }
};

TEST_F(SettingOwnership, RulesAndBundleAreRetainedForTheSettingsLife) {
  for (Class type : types()) {
    NSDictionary *rules = [ruleTable(someRules()) retain];
    NSBundle *bundle = resources.bundle();
    const NSUInteger rulesBefore = [rules retainCount];
    const NSUInteger bundleBefore = [bundle retainCount];
    {
      Pool pool;
      id setting = alloc(type, dictionary(record()), rules);
      EXPECT_GT([rules retainCount], rulesBefore);
      EXPECT_EQ([bundle retainCount], bundleBefore + 1);
      [setting release];
    }
    EXPECT_EQ([rules retainCount], rulesBefore);
    EXPECT_EQ([bundle retainCount], bundleBefore);
    [rules release];
  }
}

TEST_F(SettingOwnership, RecordItsStringsAndTheRelatedSettingsAreBorrowed) {
  for (Class type : types()) {
    NSDictionary *definition = dictionary(record());
    NSArray *related = [NSArray arrayWithObject:@"anything"];
    NSString *ticketKey = [definition objectForKey:@"TicketKey"];
    NSString *name = [definition objectForKey:@"SettingName"];
    NSString *summary = [definition objectForKey:@"SummaryInfoName"];
    const NSUInteger before[] = {[definition retainCount],
                                 [related retainCount],
                                 [ticketKey retainCount],
                                 [name retainCount],
                                 [summary retainCount]};
    Pool pool;
    id setting = alloc(type, definition, [NSDictionary dictionary]);
    [setting setRelatedSettings:related HandlingTarget:nil];
    const NSUInteger after[] = {[definition retainCount],
                                [related retainCount],
                                [ticketKey retainCount],
                                [name retainCount],
                                [summary retainCount]};
    EXPECT_THAT(after, testing::ElementsAreArray(before));
    [setting release];
  }
}

TEST_F(SettingOwnership, ItemsAreRetainedUntilTheyAreReplacedOrTheSettingIsDeallocated) {
  for (Class type : types()) {
    RecordingItem *first = item("first", kViewAvailable);
    RecordingItem *second = item("second", kViewAvailable);
    const NSUInteger before = [first retainCount];
    id setting = alloc(type, dictionary(record()), [NSDictionary dictionary]);
    {
      Pool pool;
      [setting setRelatedSettings:nil HandlingTarget:array({first})];
    }
    EXPECT_EQ([first retainCount], before + 1);
    {
      Pool pool;
      [setting setRelatedSettings:nil HandlingTarget:array({second})];
    }
    EXPECT_EQ([first retainCount], before);
    EXPECT_EQ([second retainCount], before + 1);
    [setting release];
    EXPECT_EQ([second retainCount], before);
  }
}

TEST_F(SettingOwnership, RulesThenBundleThenItemsAreReleased) {
  for (Class type : types()) {
    Journal releases;
    CountedDictionary *rules = [[CountedDictionary alloc] init];
    rules->entries = [ruleTable(someRules()) retain];
    rules->journal = &releases;
    TestBundle other;
    CountedBundle *bundle = [[CountedBundle alloc] initWithPath:nsString(other.path().string())];
    bundle->journal = &releases;
    CountedItem *last = [[CountedItem alloc] init];
    last->journal = &releases;
    Pool pool;
    id setting = [[type alloc] initWithSettingInfo:dictionary(record())
                                    ConstraintInfo:rules
                                        BundleInfo:bundle
                                               PPD:printer];
    {
      Pool binding; // an enumerator may retain the list until the pool is drained
      [setting setRelatedSettings:nil HandlingTarget:[NSArray arrayWithObject:last]];
    }
    releases.clear();
    [setting release];
    Lines lines = releases.take();
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    EXPECT_EQ(lines, (Lines{"rules.release", "bundle.release", "item.release"}));
    [rules release];
    [bundle release];
    [last release];
  }
}

TEST_F(SettingOwnership, OnlyTheSettingRetainsTheWording) {
  id setting =
      alloc([MorvaADPIntegerSettingRV2 class], dictionary(record()), [NSDictionary dictionary]);
  NSArray *wording = nil;
  {
    Pool pool;
    wording = [field<NSArray *>(setting, "RangeLabelInfoList") retain];
  }
  const NSUInteger before = [wording retainCount];
  [setting release];
  EXPECT_EQ([wording retainCount], before - 1);
  [wording release];
}

TEST_F(SettingOwnership, SettingThatCannotBeBuiltReleasesEverything) {
  NSDictionary *rules = [ruleTable(someRules()) retain];
  NSBundle *bundle = resources.bundle();
  const NSUInteger rulesBefore = [rules retainCount];
  const NSUInteger bundleBefore = [bundle retainCount];
  GSDebugAllocationActive(YES);
  const int settingsBefore = GSDebugAllocationCount([MorvaADPIntegerSettingRV2 class]);
  {
    Pool pool;
    LogCapture log;
    Class type = [MorvaADPIntegerSettingRV2 class];
    EXPECT_TRUE(alloc(type, nil, rules) == nil);
    EXPECT_TRUE(alloc(type, dictionary(record()), nil) == nil);
    EXPECT_TRUE(alloc(type, dictionary(record({{"Range", "5"}})), rules) == nil);
    EXPECT_TRUE(alloc(type, dictionary(record({{"RangeLabelWording", "a:b"}})), rules) == nil);
  }
  EXPECT_EQ(GSDebugAllocationCount([MorvaADPIntegerSettingRV2 class]), settingsBefore);
  GSDebugAllocationActive(NO);
  EXPECT_EQ([rules retainCount], rulesBefore);
  EXPECT_EQ([bundle retainCount], bundleBefore);
  [rules release];
}

TEST_F(SettingOwnership, PrinterDescriptionIsLeftOpen) {
  id setting =
      alloc([MorvaADPIntegerSettingRV2 class], dictionary(record()), [NSDictionary dictionary]);
  [setting release];
  EXPECT_NE(ppdFindOption(printer, "PageSize"), nullptr);
}

TEST_F(SettingOwnership, WholeLifeCyclesLeakNoObject) {
  resources.writeStrings({{"RangeText", "MIN to MAX"}});
  const auto live = [this] {
    Pool pool;
    for (Class type : {[MorvaADPIntegerSettingRV2 class], [ObservedSetting class]}) {
      MorvaADPIntegerSettingRV2 *setting = make(type, dictionary(record()), ruleTable(someRules()));
      RecordingItem *stepper = item("stepper", kStepperItem);
      stepper->steps = 2;
      bind(setting, {item("entry", kEntryField), stepper, item("name", kLabel, 0),
                     item("range", kLabel, 1)});
      for (int i = 0; i < 2; ++i) {
        [setting checkUI:store.handle()];
        [setting applyUIConstraint:store.handle()];
        [setting checkUIConstraintCondition:dictionary(someRules()[0])];
        store.failWrite(1);
        [setting setTicket:store.handle()];
        [setting getTicket:store.handle()];
        [setting setViewState:i == 0];
        [setting setStringValue:[setting getValueString]];
        [setting checkValue];
      }
    }
    store.remove("LeftRightMargin");
    store.forgetCalls();
    journal.clear();
  };
  live(); // objects that GNUstep caches on first use are not leaks
  GSDebugAllocationActive(YES);
  live();
  std::map<std::string, int> before;
  const auto counts = [] {
    std::map<std::string, int> result;
    Class *list = GSDebugAllocationClassList();
    for (Class *type = list; *type != Nil; ++type)
      result[class_getName(*type)] = GSDebugAllocationCount(*type);
    NSZoneFree(NSDefaultMallocZone(), list);
    return result;
  };
  before = counts();
  for (int i = 0; i < 20; ++i)
    live();
  for (const auto &[name, count] : counts())
    EXPECT_LT(count - before[name], 10) << name;
  GSDebugAllocationActive(NO);
}

} // namespace
} // namespace imageposition::test
