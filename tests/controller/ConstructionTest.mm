// Construction of a controller from a bundle, and its deallocation.
#import "ControllerFixture.h"
#import "LiveObjects.h"
#import "RefusingInit.h"
#import "TestPool.h"

#include <algorithm>

using namespace imageposition::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// While an instance lives, records the "SettingName" of every record that a setting is built from.
class BuiltSettings {
public:
  BuiltSettings() {
    Method method = class_getInstanceMethod(objc_getClass("MorvaADPIntegerSettingRV2"), @selector
                                            (initWithSettingInfo:ConstraintInfo:BundleInfo:PPD:));
    original() = reinterpret_cast<Initializer>(method_getImplementation(method));
    names().clear();
    method_setImplementation(method, reinterpret_cast<IMP>(note));
  }
  ~BuiltSettings() {
    method_setImplementation(
        class_getInstanceMethod(objc_getClass("MorvaADPIntegerSettingRV2"),
                                @selector(initWithSettingInfo:ConstraintInfo:BundleInfo:PPD:)),
        reinterpret_cast<IMP>(original()));
  }

  static Lines &names() {
    static Lines list;
    return list;
  }

private:
  using Initializer = id (*)(id, SEL, NSDictionary *, NSDictionary *, NSBundle *, ppd_file_t *);
  static Initializer &original() {
    static Initializer implementation;
    return implementation;
  }
  static id note(id self, SEL selector, NSDictionary *record, NSDictionary *table, NSBundle *bundle,
                 ppd_file_t *ppd) {
    names().push_back(cxxString([record objectForKey:@"SettingName"]));
    return original()(self, selector, record, table, bundle, ppd);
  }
};

class Construction : public ControllerFixture {
protected:
  /// The names of the listed settings.
  Lines listed() {
    Lines names;
    NSArray *list = get<id>("SettingsList");
    for (NSUInteger i = 0; i < [list count]; ++i)
      names.push_back(cxxString([[list objectAtIndex:i] getSettingName]));
    return names;
  }
};

TEST_F(Construction, NeedsAHost) {
  writeBundle();
  EXPECT_EQ([[MorvaADPSettingsCollectorRV2 alloc] initWithCallback:nil Bundle:bundle->bundle()],
            nil);
}

TEST_F(Construction, NeedsABundle) {
  writeBundle();
  EXPECT_EQ([[MorvaADPSettingsCollectorRV2 alloc] initWithCallback:host Bundle:nil], nil);
  EXPECT_EQ(host->ppdRequests, 0);
}

struct BrokenFileRow {
  const char *resource;
  const char *content; // null if there is no such file
};

std::ostream &operator<<(std::ostream &out, const BrokenFileRow &row) {
  return out << row.resource << ": " << (row.content ? row.content : "missing");
}

TEST_F(Construction, CannotBeBuiltIfTheSuperclassRefuses) {
  writeBundle();
  {
    const RefusingInit refusing([MorvaADPSettingsCollectorRV2 class]);
    EXPECT_EQ([[MorvaADPSettingsCollectorRV2 alloc] initWithCallback:host Bundle:bundle->bundle()],
              nil);
  }
  EXPECT_NE(make(), nil);
}

class ConstructionOverBrokenFiles : public Construction,
                                    public testing::WithParamInterface<BrokenFileRow> {};

TEST_P(ConstructionOverBrokenFiles, ReturnsNullAndReleasesEverything) {
  writeBundle();
  const std::string file = GetParam().resource + std::string(".plist");
  bundle->remove(file);
  if (GetParam().content)
    bundle->write(file, GetParam().content);
  NSBundle *resources = bundle->bundle();
  NSUInteger bundleReferences = 0;
  const NSUInteger hostReferences = [host retainCount];
  {
    Pool pool;
    bundleReferences = [resources retainCount];
    EXPECT_EQ(make(), nil);
  }
  EXPECT_EQ([host retainCount], hostReferences);
  EXPECT_EQ([resources retainCount], bundleReferences);
  EXPECT_THAT(log->lines(), testing::Not(testing::Contains(kCheckTrace)));
}

constexpr const char *kArrayFile =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><array><string>a</string>"
    "</array></plist>\n";

INSTANTIATE_TEST_SUITE_P(
    Files, ConstructionOverBrokenFiles,
    testing::Values(
        BrokenFileRow{"SettingInfo", nullptr}, BrokenFileRow{"ConstraintInfo", nullptr},
        BrokenFileRow{"SettingInfo", ""}, BrokenFileRow{"ConstraintInfo", ""},
        BrokenFileRow{"SettingInfo", "{ 0 = "}, BrokenFileRow{"ConstraintInfo", "{ 0 = "},
        BrokenFileRow{"SettingInfo", "\x01\x02\xff\xfe"},
        BrokenFileRow{"ConstraintInfo", "\x01\x02\xff\xfe"},
        BrokenFileRow{"SettingInfo", "<plist><dict><key>0</key>"},
        BrokenFileRow{"ConstraintInfo", "<plist><dict><key>0</key>"},
        BrokenFileRow{"SettingInfo", "bplist00"}, BrokenFileRow{"ConstraintInfo", "bplist00"},
        BrokenFileRow{"SettingInfo", kArrayFile}, BrokenFileRow{"ConstraintInfo", kArrayFile}));

TEST_F(Construction, WithoutAnyDefinitionFileThePpdIsStillRequested) {
  EXPECT_EQ(make(), nil);
  EXPECT_EQ(host->ppdRequests, 1);
}

TEST_F(Construction, WithoutARuleTableTheDefinitionsAreStillReadFirst) {
  writeBundle();
  bundle->remove("ConstraintInfo.plist");
  BuiltSettings built;
  EXPECT_EQ(make(), nil);
  EXPECT_THAT(built.names(), ElementsAre("FrontLRM")) << "the first setting cannot be built";
}

TEST_F(Construction, SetsEveryFieldExceptTheOutlets) {
  writeBundle();
  ASSERT_NE(make(), nil);
  EXPECT_EQ(get<id>("PDECallback"), host);
  EXPECT_EQ(get<id>("Bundle"), bundle->bundle());
  EXPECT_EQ(get<ppd_file_t *>("ppd"), ppd->get());
  EXPECT_EQ([get<NSDictionary *>("SettingInfoDictionary") count], 4U);
  EXPECT_EQ([get<NSDictionary *>("ConstraintInfoDictionary") count], 0U);
  for (const std::string &name : kNames) {
    ASSERT_NE(setting(name), nil) << name;
    EXPECT_EQ(object_getClass(setting(name)), [MorvaADPIntegerSettingRV2 class]);
    for (const char *suffix : {"Text", "Stepper", "Label", "RangeLabel"})
      EXPECT_EQ(get<id>((name + suffix).c_str()), nil) << name << suffix;
  }
  EXPECT_EQ(get<id>("ImagePositionPrintView"), nil);
  EXPECT_EQ(get<id>("chkEnableImagePositionAdjust"), nil);
  EXPECT_EQ(get<id>("btnRestore2Defalut"), nil);
  EXPECT_THAT(listed(), ElementsAre("FrontLRM", "FrontTBM", "BackLRM", "BackTBM"));
}

TEST_F(Construction, PassesEverySettingItsRecordTheRuleTableTheBundleAndThePpd) {
  writeBundle(fourDefinitions(), rules({{"", "PPD", "A", "b", "FrontLRM", "Value", "1"}}));
  ASSERT_NE(make(), nil);
  for (const std::string &name : kNames) {
    EXPECT_EQ(field<NSDictionary *>(setting(name), "ConstraintInfo"),
              get<NSDictionary *>("ConstraintInfoDictionary"));
    EXPECT_EQ(field<NSBundle *>(setting(name), "BundleInfo"), bundle->bundle());
    EXPECT_EQ(field<ppd_file_t *>(setting(name), "PPD"), ppd->get());
    EXPECT_EQ(cxxString(field<id>(setting(name), "TicketKey")), name + "Ticket");
    EXPECT_EQ(cxxString([setting(name) getSummaryInfoName]), name + "Summary");
  }
}

TEST_F(Construction, RequestsThePpdOnlyOnce) {
  writeBundle();
  ASSERT_NE(make(), nil);
  EXPECT_EQ(host->ppdRequests, 1);
  [controller prepareForShow];
  [controller getTicket];
  [controller saveTicket];
  [controller getSummaryInfo];
  [controller UIItemActionListener:nil];
  EXPECT_EQ(host->ppdRequests, 1);
}

TEST_F(Construction, ReadsNoPrintSettings) {
  writeBundle();
  ASSERT_NE(make(), nil);
  EXPECT_EQ(host->settingsRequests, 0);
  EXPECT_TRUE(settings->calls().empty());
}

TEST_F(Construction, EndsByUpdatingAvailabilityOnce) {
  writeBundle();
  makeRecording();
  EXPECT_THAT(journal.take(),
              ElementsAre("self.grayUI", "self.checkImagePositionAdjustValid", "self.setFrontName",
                          "self.setFrontLRMState:1", "self.setFrontTBMState:1",
                          "self.setBackLRMState:0", "self.setBackTBMState:0"));
  EXPECT_THAT(log->lines(), ElementsAre(kCheckTrace));
}

TEST_F(Construction, SucceedsForAPrinterThatForbidsTheAdjustment) {
  writeBundle();
  ppd->mark("Duplex", "None");
  EXPECT_NE(make(), nil);
  EXPECT_THAT(log->lines(), ElementsAre(kDuplexTrace, kCheckTrace));
}

TEST_F(Construction, FieldsAreAssignedByNameInAnyOrderOfDefinitions) {
  Lines order = kNames;
  std::sort(order.begin(), order.end());
  do {
    std::vector<NSDictionary *> records;
    for (const std::string &name : order)
      records.push_back(definition(name));
    writeBundle(definitions(records));
    ASSERT_NE(make(), nil);
    for (const std::string &name : kNames)
      EXPECT_EQ(cxxString([setting(name) getSettingName]), name);
    EXPECT_EQ(listed(), kNames);
  } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(Construction, SettingsAreBuiltInTheOrderOfTheirIndexes) {
  writeBundle(definitions({definition("BackTBM"), definition("FrontLRM"), definition("BackLRM"),
                           definition("FrontTBM")}));
  BuiltSettings built;
  ASSERT_NE(make(), nil);
  EXPECT_THAT(built.names(), ElementsAre("BackTBM", "FrontLRM", "BackLRM", "FrontTBM"));
}

TEST_F(Construction, IndexesAreSortedAsNumbersNotAsStrings) {
  NSMutableDictionary *many = [NSMutableDictionary dictionary];
  for (int i = 0; i < 12; ++i)
    [many setObject:definition("unknown") forKey:nsString(std::to_string(i))];
  [many setObject:definition("FrontTBM") forKey:@"2"];
  [many setObject:definition("FrontLRM") forKey:@"11"];
  writeBundle(many);
  BuiltSettings built;
  ASSERT_NE(make(), nil);
  EXPECT_THAT(built.names(), ElementsAre("FrontTBM", "FrontLRM"));
}

TEST_F(Construction, RecordsUnderOneToFourLoseTheFirstAndTheLast) {
  NSMutableDictionary *shifted = [NSMutableDictionary dictionary];
  for (std::size_t i = 0; i < kNames.size(); ++i)
    [shifted setObject:definition(kNames[i]) forKey:nsString(std::to_string(i + 1))];
  writeBundle(shifted);
  ASSERT_NE(make(), nil);
  EXPECT_NE(setting("FrontLRM"), nil);
  EXPECT_NE(setting("FrontTBM"), nil);
  EXPECT_NE(setting("BackLRM"), nil);
  EXPECT_EQ(setting("BackTBM"), nil);
  EXPECT_THAT(listed(), ElementsAre("FrontLRM", "FrontTBM", "BackLRM"));
}

TEST_F(Construction, RecordsUnderOtherKeysCountButAreNotVisited) {
  NSMutableDictionary *odd = [NSMutableDictionary dictionary];
  [odd setObject:definition("FrontLRM") forKey:@"00"];
  [odd setObject:definition("FrontTBM") forKey:@"+1"];
  [odd setObject:definition("BackLRM") forKey:@"two"];
  [odd setObject:definition("BackTBM") forKey:@"3"];
  writeBundle(odd);
  ASSERT_NE(make(), nil);
  EXPECT_EQ(setting("FrontLRM"), nil);
  EXPECT_EQ(setting("FrontTBM"), nil);
  EXPECT_EQ(setting("BackLRM"), nil);
  EXPECT_NE(setting("BackTBM"), nil);
}

TEST_F(Construction, ANameWithDifferentCaseIsIgnored) {
  writeBundle(definitions({definition("frontlrm"), definition("FrontLRM "), definition("Front"),
                           definition("FrontTBM")}));
  ASSERT_NE(make(), nil);
  EXPECT_EQ(setting("FrontLRM"), nil);
  EXPECT_NE(setting("FrontTBM"), nil);
}

TEST_F(Construction, RecordsWithoutANameAreIgnored) {
  NSMutableDictionary *nameless = definition("FrontLRM");
  [nameless removeObjectForKey:@"SettingName"];
  writeBundle(definitions({nameless, definition("BackLRM")}));
  BuiltSettings built;
  ASSERT_NE(make(), nil);
  EXPECT_THAT(built.names(), ElementsAre("BackLRM"));
}

TEST_F(Construction, WithoutFrontTbmTheListHoldsFrontLrmOnly) {
  writeBundle(definitions({definition("FrontLRM"), definition("BackLRM"), definition("BackTBM")}));
  ASSERT_NE(make(), nil);
  EXPECT_NE(setting("BackLRM"), nil);
  EXPECT_NE(setting("BackTBM"), nil);
  EXPECT_THAT(listed(), ElementsAre("FrontLRM"));
}

TEST_F(Construction, WithoutFrontLrmTheListIsEmpty) {
  writeBundle(definitions({definition("FrontTBM"), definition("BackLRM"), definition("BackTBM")}));
  ASSERT_NE(make(), nil);
  ASSERT_NE(get<id>("SettingsList"), nil);
  EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(Construction, WithoutDefinitionsThereAreNoSettingsAndTheListIsEmpty) {
  writeBundle([NSDictionary dictionary]);
  ASSERT_NE(make(), nil);
  for (const std::string &name : kNames)
    EXPECT_EQ(setting(name), nil);
  ASSERT_NE(get<id>("SettingsList"), nil);
  EXPECT_THAT(listed(), IsEmpty());
  EXPECT_THAT(log->lines(), ElementsAre(kCheckTrace));
}

TEST_F(Construction, WithoutAPpdNeitherSettingsNorTheControllerCanBeBuilt) {
  writeBundle();
  host->ppd = nullptr;
  BuiltSettings built;
  EXPECT_EQ(make(), nil);
  EXPECT_THAT(built.names(), ElementsAre("FrontLRM")) << "later definitions are not read";
}

TEST_F(Construction, WithoutAPpdAControllerWithoutSettingsCanBeBuilt) {
  writeBundle(definitions({definition("unknown")}));
  host->ppd = nullptr;
  ASSERT_NE(make(), nil);
  EXPECT_EQ(get<ppd_file_t *>("ppd"), nullptr);
  EXPECT_TRUE([controller checkImagePositionAdjustValid]);
}

TEST_F(Construction, TheLaterOfTwoRecordsWithTheSameNameIsInTheField) {
  NSMutableDictionary *later = definition("FrontTBM");
  [later setObject:@"later" forKey:@"TicketKey"];
  writeBundle(definitions({definition("FrontTBM"), definition("FrontLRM"), later}));
  BuiltSettings built;
  ASSERT_NE(make(), nil);
  EXPECT_THAT(built.names(), ElementsAre("FrontTBM", "FrontLRM", "FrontTBM"));
  EXPECT_EQ(cxxString(field<id>(setting("FrontTBM"), "TicketKey")), "later");
}

TEST_F(Construction, TheEarlierOfTwoRecordsWithTheSameNameIsLeaked) {
  writeBundle(definitions({definition("FrontTBM"), definition("FrontTBM")}));
  LiveObjects alive;
  const int before = alive.count([MorvaADPIntegerSettingRV2 class]);
  {
    Pool pool;
    MorvaADPSettingsCollectorRV2 *made =
        [[MorvaADPSettingsCollectorRV2 alloc] initWithCallback:host Bundle:bundle->bundle()];
    EXPECT_EQ(alive.count([MorvaADPIntegerSettingRV2 class]) - before, 2);
    [made release];
  }
  EXPECT_EQ(alive.count([MorvaADPIntegerSettingRV2 class]) - before, 1);
}

TEST_F(Construction, AFailedControllerLeaksNothing) {
  NSMutableDictionary *broken = definition("BackLRM");
  [broken setObject:@"20" forKey:@"Range"];
  writeBundle(definitions({definition("FrontLRM"), definition("FrontTBM"), broken}));
  NSBundle *resources = bundle->bundle();
  const NSUInteger hostReferences = [host retainCount];
  LiveObjects alive;
  const int settingsBefore = alive.count([MorvaADPIntegerSettingRV2 class]);
  const int before = alive.count([MorvaADPSettingsCollectorRV2 class]);
  NSUInteger bundleReferences = 0;
  {
    Pool pool;
    bundleReferences = [resources retainCount];
    EXPECT_EQ(make(), nil);
  }
  EXPECT_EQ(alive.count([MorvaADPIntegerSettingRV2 class]), settingsBefore);
  EXPECT_EQ(alive.count([MorvaADPSettingsCollectorRV2 class]), before);
  EXPECT_EQ([host retainCount], hostReferences);
  EXPECT_EQ([resources retainCount], bundleReferences);
}

// Deallocation.

TEST_F(Construction, ReleasesWhatItOwnsInOrder) {
  makeHollow();
  host->journal = nullptr;
  for (const std::string &name : kNames)
    get<Recorder *>((name + "Settings").c_str())->recordsReleases = YES;
  get<Recorder *>("Bundle")->recordsReleases = YES;
  for (const char *name :
       {"SettingInfoDictionary", "ConstraintInfoDictionary", "SettingsList", "PDECallback"}) {
    [get<id>(name) release];
    Recorder *recorder = [[Recorder alloc] initWithName:name journal:&journal];
    recorder->recordsReleases = YES;
    get<id>(name) = recorder;
  }
  for (const char *name : {"FrontLRMText", "FrontLRMStepper", "FrontLRMLabel",
                           "chkEnableImagePositionAdjust", "btnRestore2Defalut"})
    get<Recorder *>(name)->recordsReleases = YES; // the controller must not release it
  journal.clear();
  [controller release];
  controller = nil;
  EXPECT_THAT(journal.take(),
              ElementsAre("FrontLRM.release", "FrontTBM.release", "BackLRM.release",
                          "BackTBM.release", "SettingInfoDictionary.release",
                          "ConstraintInfoDictionary.release", "SettingsList.release",
                          "PDECallback.release", "strings.release"));
}

} // namespace
