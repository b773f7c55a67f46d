#import "SettingFixture.h"

/// An item that conforms to a different protocol each time.
@interface FickleItem : RecordingItem {
@public
  Protocol *conformsTo;
}
@end

@implementation FickleItem
- (BOOL)conformsToProtocol:(Protocol *)protocol {
  return conformsTo != nil && protocol_isEqual(protocol, conformsTo);
}
@end

namespace imageposition::test {
namespace {

class IntegerSettingRefresh : public SettingTest {
protected:
  RecordingItem *entry = item("entry", kEntryField);
  RecordingItem *stepper = item("stepper", kStepperItem);
  RecordingItem *name = item("name", kLabel, 0);
  RecordingItem *range = item("range", kLabel, 1);

  MorvaADPIntegerSettingRV2 *bound(const Texts &definition = record()) {
    MorvaADPIntegerSettingRV2 *setting = make(definition);
    bind(setting, {entry, stepper, name, range});
    return setting;
  }
  std::string nameLine() {
    return "name.applyLocalizableStrings:FrontLRM BundleInfo:" + resources.path().string();
  }
  std::string rangeTextOf(const Texts &definition) {
    MorvaADPIntegerSettingRV2 *setting = make(definition);
    bind(setting, {range});
    [setting checkUI:store.handle()];
    const Lines lines = journal.take();
    return lines.size() > 1 ? lines[1] : "no range label";
  }
};

TEST_F(IntegerSettingRefresh, ReadsTheItemsInOrderThenWritesThenReadsTheTicket) {
  resources.writeStrings({{"RangeText", "MIN to MAX mm"}});
  entry->number = 5;
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"entry.getInt", "entry.getInt", "stepper.getSteps", "name.tag", nameLine(),
                   "range.tag", "range.setRangeStrings:-20 to 20 mm", "set LeftRightMargin=5",
                   "get LeftRightMargin", "entry.setStringValue:5"}));
  EXPECT_EQ(value(setting), 5);
}

TEST_F(IntegerSettingRefresh, ItemThatOverridesConformanceIsCheckedEachTime) {
  FickleItem *fickle = static_cast<FickleItem *>([FickleItem itemNamed:"fickle"
                                                          capabilities:kNone
                                                               journal:&journal]);
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {fickle});
  const Lines access = {"set LeftRightMargin=3", "get LeftRightMargin"};
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(), access);
  fickle->conformsTo = @protocol(StepperInterface);
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(), (Lines{"fickle.getSteps", access[0], access[1]}));
  fickle->conformsTo = @protocol(TextFieldInterface);
  fickle->number = 3;
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"fickle.getInt", access[0], access[1], "fickle.setStringValue:3"}));
}

TEST_F(IntegerSettingRefresh, EntryFieldThatShowsTheValueIsReadOnce) {
  entry->number = 3;
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {entry});
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(), (Lines{"entry.getInt", "set LeftRightMargin=3", "get LeftRightMargin",
                                   "entry.setStringValue:3"}));
}

TEST_F(IntegerSettingRefresh, SecondReadOfTheEntryFieldCounts) {
  entry->number = 5;
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {entry});
  RecordingItem *const field = entry;
  int readings = 0;
  onEachOperationOf(entry, [=, &readings](const std::string &operation) {
    if (operation == "getInt")
      field->number = ++readings == 1 ? 5 : 6;
  });
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), 6);
}

TEST_F(IntegerSettingRefresh, StepperMovesTheValueThatTheFieldStillShows) {
  entry->number = 3;
  stepper->steps = 1;
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), 4);
  EXPECT_EQ(store.text("LeftRightMargin"), "4");
  EXPECT_EQ(shownBy(entry), "4");
}

TEST_F(IntegerSettingRefresh, StepperMovesTheNewNumberOfTheField) {
  entry->number = 12;
  stepper->steps = -1;
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), 11);
}

TEST_F(IntegerSettingRefresh, SumIsClampedWhenWritten) {
  entry->number = 19;
  stepper->steps = 5;
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), 20);
  EXPECT_EQ(store.text("LeftRightMargin"), "20");
  EXPECT_EQ(shownBy(entry), "20");
}

TEST_F(IntegerSettingRefresh, StepsWrapAt32Bits) {
  MorvaADPIntegerSettingRV2 *setting = bound(record({{"Range", "-2147483648:2147483647"}}));
  entry->number = INT32_MAX;
  stepper->steps = 1;
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), INT32_MIN);
  entry->number = INT32_MIN;
  stepper->steps = -1;
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), INT32_MAX);
}

TEST_F(IntegerSettingRefresh, NewNumberInTheFieldOverridesAnEarlierStepper) {
  entry->number = 9;
  stepper->steps = 2;
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {stepper, entry});
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), 9);
}

TEST_F(IntegerSettingRefresh, FieldsAreComparedWithTheValueFromBeforeTheLoop) {
  // The stepper has changed the value from 3, but a field that shows 3 was not edited.
  entry->number = 3;
  stepper->steps = 2;
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {stepper, entry});
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), 5);

  RecordingItem *first = item("first", kTextField);
  RecordingItem *second = item("second", kTextField);
  first->number = 8;
  second->number = 5;
  bind(setting, {first, second});
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), 8);

  first->number = 9;
  second->number = 10;
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), 10);
}

TEST_F(IntegerSettingRefresh, ItemWithEveryProtocolIsReadAsFieldThenStepperThenLabel) {
  RecordingItem *all = item("all", 63, 0);
  all->number = 7;
  all->steps = 2;
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {all});
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"all.getInt", "all.getInt", "all.getSteps", "all.tag",
                   "all.applyLocalizableStrings:FrontLRM BundleInfo:" + resources.path().string(),
                   "set LeftRightMargin=9", "get LeftRightMargin", "all.setStringValue:9"}));
}

TEST_F(IntegerSettingRefresh, OtherItemsAreNotCalled) {
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {item("a", kNone, 0), item("b", kAction | kViewAvailable | kInteger, 1)});
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(), (Lines{"set LeftRightMargin=3", "get LeftRightMargin"}));
}

TEST_F(IntegerSettingRefresh, LabelsWithOtherTagsStayUnchanged) {
  MorvaADPIntegerSettingRV2 *setting = make();
  NSInteger wide = sizeof(NSInteger) > 4 ? NSInteger(0x100000000LL) : 9;
  bind(setting, {item("minus", kLabel, -1), item("two", kLabel, 2), item("wide", kLabel, wide)});
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(), (Lines{"minus.tag", "two.tag", "wide.tag", "set LeftRightMargin=3",
                                   "get LeftRightMargin"}));
}

TEST_F(IntegerSettingRefresh, AllLabelsWithATagAreSet) {
  MorvaADPIntegerSettingRV2 *setting = make();
  bind(setting, {range, name, item("again", kLocalizable, 1)});
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(), (Lines{"range.tag", "range.setRangeStrings:RangeText", "name.tag",
                                   nameLine(), "again.tag", "again.setRangeStrings:RangeText",
                                   "set LeftRightMargin=3", "get LeftRightMargin"}));
}

TEST_F(IntegerSettingRefresh, RangeLabelInsertsTheBoundsIntoTheLocalizedTemplate) {
  resources.writeStrings({{"RangeText", "min-mark to max-mark"}});
  EXPECT_EQ(rangeTextOf(record({{"RangeLabelWording", "min-mark:max-mark:RangeText"}})),
            "range.setRangeStrings:-20 to 20");
}

TEST_F(IntegerSettingRefresh, RangeLabelReplacesEveryPlaceholderMaximumFirst) {
  resources.writeStrings({{"RangeText", "X Y X"}});
  EXPECT_EQ(rangeTextOf(record({{"Range", "5:10"}, {"RangeLabelWording", "1:X:RangeText"}})),
            "range.setRangeStrings:50 Y 50");
}

TEST_F(IntegerSettingRefresh, MissingTemplateShowsTheKeyWithItsPlaceholdersReplaced) {
  EXPECT_EQ(rangeTextOf(record({{"RangeLabelWording", "MIN:MAX:from MIN up to MAX, MAX"}})),
            "range.setRangeStrings:from -20 up to 20, 20");
}

TEST_F(IntegerSettingRefresh, EmptyPlaceholdersReplaceNothing) {
  resources.writeStrings({{"RangeText", "some text"}});
  EXPECT_EQ(rangeTextOf(record({{"RangeLabelWording", "::RangeText"}})),
            "range.setRangeStrings:some text");
}

TEST_F(IntegerSettingRefresh, TemplateMayBeInAnyScript) {
  resources.writeStrings({{"RangeText", "\xE8\xA8\xAD\xE5\xAE\x9A\xE7\xAF\x84\xE5\x9B\xB2: MIN "
                                        "\xE3\x80\x9C MAX"}});
  EXPECT_EQ(rangeTextOf(record()), "range.setRangeStrings:"
                                   "\xE8\xA8\xAD\xE5\xAE\x9A\xE7\xAF\x84\xE5\x9B\xB2: -20 "
                                   "\xE3\x80\x9C 20");
}

TEST_F(IntegerSettingRefresh, ChangedRangeShowsAtTheNextRefreshButDoesNotReachTheEntryField) {
  resources.writeStrings({{"RangeText", "MIN..MAX"}});
  entry->number = 15;
  MorvaADPIntegerSettingRV2 *setting = make(record(), {{{"ActionObj", "FrontLRM"},
                                                        {"ConditionType", "Setting"},
                                                        {"ConditionObj", "FrontLRM"},
                                                        {"ConditionPattern", "Range"},
                                                        {"ConditionValue", "10:20"},
                                                        {"ActionPattern", "Range"},
                                                        {"ActionValue", "-7:8"}}});
  bind(setting, {entry, range});
  [setting checkUI:store.handle()];
  [setting applyUIConstraint:store.handle()];
  EXPECT_EQ(value(setting), 15);
  journal.clear();
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"entry.getInt", "range.tag", "range.setRangeStrings:-7..8",
                   "set LeftRightMargin=8", "get LeftRightMargin", "entry.setStringValue:8"}));
}

TEST_F(IntegerSettingRefresh, RangeLabelShowsInvertedBoundsUnchanged) {
  resources.writeStrings({{"RangeText", "MIN..MAX"}});
  EXPECT_EQ(rangeTextOf(record({{"Range", "10:5"}})), "range.setRangeStrings:10..5");
}

TEST_F(IntegerSettingRefresh, LoopCountsTheItemsAgainAfterEachOne) {
  MorvaADPIntegerSettingRV2 *setting = make();
  NSMutableArray *const own = field<NSMutableArray *>(setting, "HandlingTarget");
  bind(setting, {stepper, name});
  RecordingItem *const later = range;
  onEachOperationOf(stepper, [own](const std::string &) { [own removeLastObject]; });
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"stepper.getSteps", "set LeftRightMargin=3", "get LeftRightMargin"}));
  onEachOperationOf(stepper, [=](const std::string &) { [own addObject:later]; });
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take(),
            (Lines{"stepper.getSteps", "range.tag", "range.setRangeStrings:RangeText",
                   "set LeftRightMargin=3", "get LeftRightMargin"}));
}

TEST_F(IntegerSettingRefresh, StepsAreTakenOnce) {
  stepper->steps = 2;
  entry->number = 3;
  MorvaADPIntegerSettingRV2 *setting = bound();
  [setting checkUI:store.handle()];
  entry->number = 5;
  [setting checkUI:store.handle()];
  EXPECT_EQ(value(setting), 5);
}

TEST_F(IntegerSettingRefresh, SettingWithoutANamePassesNullToItsLabel) {
  Texts texts = record();
  texts.erase("SettingName");
  MorvaADPIntegerSettingRV2 *setting = make(texts);
  bind(setting, {name});
  [setting checkUI:store.handle()];
  EXPECT_EQ(journal.take()[1],
            "name.applyLocalizableStrings:(null) BundleInfo:" + resources.path().string());
}

} // namespace
} // namespace imageposition::test
