#import "RefusingInit.h"
#import "SettingFixture.h"

/// An item that decides each time what it conforms to.
@interface ChangingItem : RecordingItem {
@public
  Protocol *conformsTo;
}
@end

@implementation ChangingItem
- (BOOL)conformsToProtocol:(Protocol *)protocol {
  return conformsTo != nil && protocol_isEqual(protocol, conformsTo);
}
@end

namespace imageposition::test {
namespace {

class BaseSetting : public SettingTest {
protected:
  MorvaADPSettingRV2 *base(NSDictionary *definition) {
    return [[[MorvaADPSettingRV2 alloc] initWithSettingInfo:definition
                                             ConstraintInfo:[NSDictionary dictionary]
                                                 BundleInfo:resources.bundle()
                                                        PPD:printer] autorelease];
  }
};

TEST_F(BaseSetting, DeclaresItsFieldsInOrder) {
  EXPECT_EQ(fieldNames([MorvaADPSettingRV2 class]),
            (Lines{"TicketKey", "ConstraintInfo", "RelatedSettings", "HandlingTarget",
                   "SettingName", "SummaryName", "ValueRangeLabelLocalizeKey",
                   "MaxValueRangeLabelKey", "MinValueRangeLabelKey", "PPD", "BundleInfo"}));
  EXPECT_TRUE(class_getSuperclass([MorvaADPSettingRV2 class]) == [NSObject class]);
}

TEST_F(BaseSetting, KeepsWhatItWasBuiltFrom) {
  NSDictionary *rules = ruleTable({{{"ActionObj", "FrontLRM"}}});
  MorvaADPSettingRV2 *setting =
      [[[MorvaADPSettingRV2 alloc] initWithSettingInfo:dictionary(record())
                                        ConstraintInfo:rules
                                            BundleInfo:resources.bundle()
                                                   PPD:printer] autorelease];
  EXPECT_EQ(cxxString(field<NSString *>(setting, "TicketKey")), "LeftRightMargin");
  EXPECT_EQ(cxxString([setting getSettingName]), "FrontLRM");
  EXPECT_EQ(cxxString([setting getSummaryInfoName]), "SummaryTitle");
  EXPECT_TRUE([field<NSDictionary *>(setting, "ConstraintInfo") isEqual:rules]);
  EXPECT_TRUE(field<NSBundle *>(setting, "BundleInfo") == resources.bundle());
  EXPECT_TRUE(field<ppd_file_t *>(setting, "PPD") == printer.get());
  EXPECT_EQ([field<NSMutableArray *>(setting, "HandlingTarget") count], 0u);
  EXPECT_TRUE(field<NSArray *>(setting, "RelatedSettings") == nil);
}

TEST_F(BaseSetting, BorrowsTheStringsOfItsRecord) {
  NSDictionary *definition = dictionary(record());
  MorvaADPSettingRV2 *setting = base(definition);
  EXPECT_TRUE(field<NSString *>(setting, "TicketKey") == [definition objectForKey:@"TicketKey"]);
  EXPECT_TRUE([setting getSettingName] == [definition objectForKey:@"SettingName"]);
  EXPECT_TRUE([setting getSummaryInfoName] == [definition objectForKey:@"SummaryInfoName"]);
}

TEST_F(BaseSetting, WithoutARecordIsNamedUIItemCollectorAndHasNoKeyOrSummaryName) {
  MorvaADPSettingRV2 *setting = base(nil);
  ASSERT_TRUE(setting != nil);
  EXPECT_EQ(cxxString([setting getSettingName]), "UIItemCollector");
  EXPECT_TRUE(field<NSString *>(setting, "TicketKey") == nil);
  EXPECT_TRUE([setting getSummaryInfoName] == nil);
}

TEST_F(BaseSetting, EachMissingEntryLeavesItsFieldNull) {
  for (const char *key : {"TicketKey", "SettingName", "SummaryInfoName"}) {
    Texts texts = record();
    texts.erase(key);
    LogCapture log;
    MorvaADPSettingRV2 *setting = base(dictionary(texts));
    ASSERT_TRUE(setting != nil) << key;
    EXPECT_EQ(field<NSString *>(setting, "TicketKey") == nil, key == std::string("TicketKey"));
    EXPECT_EQ([setting getSettingName] == nil, key == std::string("SettingName"));
    EXPECT_EQ([setting getSummaryInfoName] == nil, key == std::string("SummaryInfoName"));
    EXPECT_EQ(log.lines(), Lines());
  }
}

TEST_F(BaseSetting, EntriesThatAreNotStringsCountAsAbsent) {
  NSMutableDictionary *definition = [NSMutableDictionary dictionary];
  [definition setObject:[NSNumber numberWithInt:5] forKey:@"TicketKey"];
  [definition setObject:[NSArray array] forKey:@"SettingName"];
  [definition setObject:[NSData data] forKey:@"SummaryInfoName"];
  MorvaADPSettingRV2 *setting = base(definition);
  ASSERT_TRUE(setting != nil);
  EXPECT_TRUE(field<NSString *>(setting, "TicketKey") == nil);
  EXPECT_TRUE([setting getSettingName] == nil);
  EXPECT_TRUE([setting getSummaryInfoName] == nil);
}

TEST_F(BaseSetting, CannotBeBuiltWithoutRulesBundleOrPrinter) {
  NSDictionary *definition = dictionary(record());
  NSDictionary *rules = [NSDictionary dictionary];
  for (Class type : {[MorvaADPSettingRV2 class], [MorvaADPIntegerSettingRV2 class]}) {
    for (NSDictionary *given : {definition, static_cast<NSDictionary *>(nil)}) {
      EXPECT_TRUE([[type alloc] initWithSettingInfo:given
                                     ConstraintInfo:nil
                                         BundleInfo:resources.bundle()
                                                PPD:printer] == nil);
      EXPECT_TRUE([[type alloc] initWithSettingInfo:given
                                     ConstraintInfo:rules
                                         BundleInfo:nil
                                                PPD:printer] == nil);
      EXPECT_TRUE([[type alloc] initWithSettingInfo:given
                                     ConstraintInfo:rules
                                         BundleInfo:resources.bundle()
                                                PPD:nullptr] == nil);
    }
  }
}

TEST_F(BaseSetting, CannotBeBuiltIfItsSuperclassRefuses) {
  {
    const RefusingInit refusing([MorvaADPSettingRV2 class]);
    EXPECT_EQ(base(dictionary(record())), nil);
  }
  {
    const RefusingInit refusing(
        [MorvaADPSettingRV2 class]); // but not the integer setting's superclass
    EXPECT_NE(make(), nil);
  }
  EXPECT_NE(base(dictionary(record())), nil);
}

TEST_F(BaseSetting, BeforeBindingViewStateChangesNothing) {
  MorvaADPSettingRV2 *setting = base(dictionary(record()));
  [setting setViewState:NO];
  [setting setViewState:YES];
  [setting setViewStateByTag:NO TagInfo:0];
  EXPECT_EQ(journal.lines(), Lines());
}

TEST_F(BaseSetting, ViewStateGoesToEveryItemThatCanBeDisabledInOrder) {
  MorvaADPSettingRV2 *setting = base(dictionary(record()));
  bind(setting, {item("a", kViewAvailable), item("b", kLocalizable | kAction | kTextField),
                 item("c", kEntryField), item("d", kNone), item("e", kStepperItem)});
  [setting setViewState:NO];
  EXPECT_EQ(journal.take(),
            (Lines{"a.setViewAvailable:0", "c.setViewAvailable:0", "e.setViewAvailable:0"}));
  [setting setViewState:YES];
  EXPECT_EQ(journal.take(),
            (Lines{"a.setViewAvailable:1", "c.setViewAvailable:1", "e.setViewAvailable:1"}));
}

TEST_F(BaseSetting, ItemThatConformsToNothingIsKeptAndIgnored) {
  MorvaADPSettingRV2 *setting = base(dictionary(record()));
  RecordingItem *silent = item("silent", kNone);
  bind(setting, {silent});
  [setting setViewState:NO];
  [setting setViewStateByTag:NO TagInfo:-1];
  EXPECT_EQ(journal.lines(), Lines());
  EXPECT_TRUE([field<NSMutableArray *>(setting, "HandlingTarget") objectAtIndex:0] == silent);
}

TEST_F(BaseSetting, ViewStateByTagChangesAllItemsWithTheTag) {
  MorvaADPSettingRV2 *setting = base(dictionary(record()));
  bind(setting, {item("a", kLabel, 1), item("b", kLabel, 0), item("c", kViewAvailable, 1)});
  [setting setViewStateByTag:NO TagInfo:1];
  EXPECT_EQ(journal.take(),
            (Lines{"a.tag", "a.setViewAvailable:0", "b.tag", "c.tag", "c.setViewAvailable:0"}));
}

TEST_F(BaseSetting, ViewStateByTagThatNoItemHasChangesNothing) {
  MorvaADPSettingRV2 *setting = base(dictionary(record()));
  bind(setting, {item("a", kLabel, 1), item("b", kLabel, 0)});
  [setting setViewStateByTag:YES TagInfo:7];
  EXPECT_EQ(journal.take(), (Lines{"a.tag", "b.tag"}));
}

TEST_F(BaseSetting, ViewStateByTagReadsTheTagOnlyOfItemsThatCanBeDisabled) {
  MorvaADPSettingRV2 *setting = base(dictionary(record()));
  bind(setting, {item("a", kLocalizable | kTextField | kStepper, 4), item("b", kViewAvailable, 4)});
  [setting setViewStateByTag:YES TagInfo:4];
  EXPECT_EQ(journal.take(), (Lines{"b.tag", "b.setViewAvailable:1"}));
}

TEST_F(BaseSetting, ViewStateByTagSignExtendsTheTag) {
  MorvaADPSettingRV2 *setting = base(dictionary(record()));
  const NSInteger wide = sizeof(NSInteger) > 4 ? NSInteger(0x1FFFFFFFFLL) : 5;
  bind(setting, {item("minus", kViewAvailable, -1), item("wide", kViewAvailable, wide),
                 item("smallest", kViewAvailable, INT32_MIN)});
  [setting setViewStateByTag:NO TagInfo:-1];
  EXPECT_EQ(journal.take(),
            (Lines{"minus.tag", "minus.setViewAvailable:0", "wide.tag", "smallest.tag"}));
  [setting setViewStateByTag:NO TagInfo:INT32_MIN];
  EXPECT_EQ(journal.take(),
            (Lines{"minus.tag", "wide.tag", "smallest.tag", "smallest.setViewAvailable:0"}));
}

TEST_F(BaseSetting, BindingKeepsTheListOfSettingsAndCopiesTheListOfItems) {
  for (Class type : {[MorvaADPSettingRV2 class], [MorvaADPIntegerSettingRV2 class]}) {
    MorvaADPSettingRV2 *setting = make(type, dictionary(record()), [NSDictionary dictionary]);
    id own = field<NSMutableArray *>(setting, "HandlingTarget");
    NSArray *settings = array({setting});
    NSMutableArray *items = [NSMutableArray arrayWithObject:item("a", kViewAvailable)];
    [setting setRelatedSettings:settings HandlingTarget:items];
    EXPECT_TRUE(field<NSArray *>(setting, "RelatedSettings") == settings);
    EXPECT_TRUE(field<NSMutableArray *>(setting, "HandlingTarget") == own);
    EXPECT_TRUE([own isEqual:items]);
    [items addObject:item("b", kViewAvailable)];
    EXPECT_EQ([field<NSMutableArray *>(setting, "HandlingTarget") count], 1u);
  }
}

TEST_F(BaseSetting, BindingTwiceReplacesTheItems) {
  for (Class type : {[MorvaADPSettingRV2 class], [MorvaADPIntegerSettingRV2 class]}) {
    MorvaADPSettingRV2 *setting = make(type, dictionary(record()), [NSDictionary dictionary]);
    bind(setting, {item("a", kViewAvailable), item("b", kViewAvailable)});
    bind(setting, {item("c", kViewAvailable)});
    [setting setViewState:YES];
    EXPECT_EQ(journal.take(), (Lines{"c.setViewAvailable:1"}));
  }
}

TEST_F(BaseSetting, BindingToNothingEmptiesTheItems) {
  for (Class type : {[MorvaADPSettingRV2 class], [MorvaADPIntegerSettingRV2 class]}) {
    MorvaADPSettingRV2 *setting = make(type, dictionary(record()), [NSDictionary dictionary]);
    bind(setting, {item("a", kViewAvailable)});
    [setting setRelatedSettings:nil HandlingTarget:nil];
    [setting setViewState:YES];
    EXPECT_EQ(journal.take(), Lines());
    EXPECT_TRUE(field<NSArray *>(setting, "RelatedSettings") == nil);
  }
}

TEST_F(BaseSetting, LoopsCountTheItemsAgainAfterEachOne) {
  MorvaADPSettingRV2 *setting = base(dictionary(record()));
  RecordingItem *first = item("first", kViewAvailable);
  RecordingItem *second = item("second", kViewAvailable);
  NSMutableArray *const own = field<NSMutableArray *>(setting, "HandlingTarget");
  bind(setting, {first, item("gone", kViewAvailable)});
  onEachOperationOf(first, [own](const std::string &) { [own removeLastObject]; });
  [setting setViewState:NO];
  EXPECT_EQ(journal.take(), (Lines{"first.setViewAvailable:0"}));
  onEachOperationOf(first, [=](const std::string &) { [own addObject:second]; });
  [setting setViewState:NO];
  EXPECT_EQ(journal.take(), (Lines{"first.setViewAvailable:0", "second.setViewAvailable:0"}));
}

TEST_F(BaseSetting, ConformanceOfEachItemIsCheckedEachTime) {
  for (Class type : {[MorvaADPSettingRV2 class], [MorvaADPIntegerSettingRV2 class]}) {
    MorvaADPSettingRV2 *setting = make(type, dictionary(record()), [NSDictionary dictionary]);
    ChangingItem *changing = static_cast<ChangingItem *>([ChangingItem itemNamed:"changing"
                                                                    capabilities:kNone
                                                                         journal:&journal]);
    ChangingItem *other = static_cast<ChangingItem *>([ChangingItem itemNamed:"other"
                                                                 capabilities:kNone
                                                                      journal:&journal]);
    bind(setting, {changing, other});
    [setting setViewState:YES];
    EXPECT_EQ(journal.take(), Lines());
    changing->conformsTo = @protocol(ViewAvailableInterface);
    [setting setViewState:YES];
    EXPECT_EQ(journal.take(), (Lines{"changing.setViewAvailable:1"}));
    changing->conformsTo = @protocol(StepperInterface);
    other->conformsTo = @protocol(ViewAvailableInterface);
    [setting setViewState:YES];
    EXPECT_EQ(journal.take(), (Lines{"other.setViewAvailable:1"}));
  }
}

TEST_F(BaseSetting, HasNoValueStringAndNoCondition) {
  MorvaADPSettingRV2 *setting = base(dictionary(record()));
  bind(setting, {item("entry", kEntryField)});
  EXPECT_TRUE([setting getValueString] == nil);
  EXPECT_FALSE([setting checkUIConstraintCondition:dictionary({{"ConditionType", "Setting"},
                                                               {"ConditionObj", "FrontLRM"},
                                                               {"ConditionPattern", "Range"}})]);
  EXPECT_FALSE([setting checkUIConstraintCondition:nil]);
}

TEST_F(BaseSetting, IgnoresTheMethodsForAValue) {
  store.put("LeftRightMargin", "5");
  MorvaADPSettingRV2 *setting = make(
      [MorvaADPSettingRV2 class], dictionary(record()),
      ruleTable({{{"ActionObj", "FrontLRM"}, {"ActionPattern", "View"}, {"ActionValue", "OFF"}}}));
  bind(setting, {item("entry", kEntryField), item("stepper", kStepperItem), item("name", kLabel, 0),
                 item("range", kLabel, 1)});
  [setting checkUI:store.handle()];
  [setting getTicket:store.handle()];
  [setting setTicket:store.handle()];
  [setting checkValue];
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(journal.lines(), Lines());
  EXPECT_EQ(store.text("LeftRightMargin"), "5");
}

} // namespace
} // namespace imageposition::test
