// The panel: what it returns, and in which order it forwards the dialog's calls.
#import "ClassTable.h"
#import "ControllerFixture.h"
#import "LiveObjects.h"
#import "RefusingInit.h"
#import "SilentBundle.h"
#import "TestPool.h"

#import "MorvaADPPdePanelRV2.h"

using namespace imageposition::test;
using testing::ElementsAre;
using testing::IsEmpty;

/// Replaces the panel's controller.
@interface RecordingCollector : Recorder {
@public
  NSView *view;
  NSDictionary *summary;
  BOOL result;
}
@end

@implementation RecordingCollector
- (NSView *)prepareView {
  [self record:"prepareView"];
  return view;
}
- (void)prepareForShow {
  [self record:"prepareForShow"];
}
- (BOOL)getTicket {
  [self record:"getTicket"];
  return result;
}
- (BOOL)saveTicket {
  [self record:"saveTicket"];
  return result;
}
- (void)notifyUI {
  [self record:"notifyUI"];
}
- (NSDictionary *)getSummaryInfo {
  [self record:"getSummaryInfo"];
  return summary;
}
@end

namespace {

class Panel : public ControllerFixture {
protected:
  void SetUp() override {
    ControllerFixture::SetUp();
    writeBundle();
    panel = [[MorvaADPPdePanelRV2 alloc] initWithCallback:host Bundle:bundle->bundle()];
    ASSERT_NE(panel, nil);
    host->journal = &journal;
    log->clear();
  }

  void TearDown() override {
    [panel release];
    [collector release];
    ControllerFixture::TearDown();
  }

  /// Replaces the controller by a recorder.
  void recordCalls() {
    collector = [[RecordingCollector alloc] initWithName:"items" journal:&journal];
    [field<id>(panel, "SettingItems") release];
    field<id>(panel, "SettingItems") = [collector retain];
    journal.clear();
  }

  MorvaADPPdePanelRV2 *panel = nil;
  RecordingCollector *collector = nil;
};

// The class.

TEST(PanelInterface, DerivesFromNSObject) {
  EXPECT_EQ([MorvaADPPdePanelRV2 superclass], [NSObject class]);
}

// macOS has no such protocol.
TEST(PanelInterface, DeclaresNoProtocol) {
  EXPECT_FALSE([MorvaADPPdePanelRV2 conformsToProtocol:@protocol(PDEPanel)]);
}

TEST(PanelInterface, HasItsFieldsInOrder) {
  EXPECT_EQ(fieldsOf([MorvaADPPdePanelRV2 class]),
            (Lines{"PDEPluginCallbackObject @", "PDEName @", "PanelShown C", "ppd ^", "PDEBundle @",
                   "SettingItems @", "supportedOptions @"}));
}

TEST(PanelInterface, ImplementsItsMethodsItself) {
  const auto operations = operationsOf([MorvaADPPdePanelRV2 class]);
  for (const char *name :
       {"initWithCallback:Bundle:", "dealloc", "panelView", "panelName", "panelKind",
        "supportedPPDOptionKeys", "shouldShowHelp", "shouldHide", "shouldPrint", "willShow",
        "restoreValuesAndReturnError:", "saveValuesAndReturnError:", "summaryInfo"})
    EXPECT_EQ(operations.count(name), 1U) << name;
}

TEST(PanelInterface, BooleansAreOneByte) {
  for (SEL operation : {
         @selector(shouldShowHelp), @selector(shouldHide), @selector(shouldPrint),
             @selector(restoreValuesAndReturnError:), @selector(saveValuesAndReturnError:)
       }) {
    NSMethodSignature *signature =
        [MorvaADPPdePanelRV2 instanceMethodSignatureForSelector:operation];
    EXPECT_EQ([signature methodReturnLength], 1U) << sel_getName(operation);
  }
}

// Construction and deallocation.

TEST_F(Panel, NeedsAHostAndABundle) {
  EXPECT_EQ([[MorvaADPPdePanelRV2 alloc] initWithCallback:nil Bundle:bundle->bundle()], nil);
  EXPECT_EQ([[MorvaADPPdePanelRV2 alloc] initWithCallback:host Bundle:nil], nil);
}

TEST_F(Panel, CannotBeBuiltIfItsSuperclassRefuses) {
  const RefusingInit refusing([MorvaADPPdePanelRV2 class]);
  EXPECT_EQ([[MorvaADPPdePanelRV2 alloc] initWithCallback:host Bundle:bundle->bundle()], nil);
}

TEST_F(Panel, WithoutAControllerCannotBeBuiltAndReleasesEverything) {
  bundle->remove("SettingInfo.plist");
  LiveObjects alive;
  const int before = alive.count([MorvaADPPdePanelRV2 class]);
  const NSUInteger hostReferences = [host retainCount];
  NSBundle *resources = bundle->bundle();
  NSUInteger bundleReferences = 0;
  {
    Pool pool;
    bundleReferences = [resources retainCount];
    EXPECT_EQ([[MorvaADPPdePanelRV2 alloc] initWithCallback:host Bundle:resources], nil);
  }
  EXPECT_EQ(alive.count([MorvaADPPdePanelRV2 class]), before);
  EXPECT_EQ([host retainCount], hostReferences);
  EXPECT_EQ([resources retainCount], bundleReferences);
}

TEST_F(Panel, StartsUnshownWithANewController) {
  EXPECT_EQ(field<id>(panel, "PDEPluginCallbackObject"), host);
  EXPECT_EQ(field<NSBundle *>(panel, "PDEBundle"), bundle->bundle());
  EXPECT_EQ(field<id>(panel, "PDEName"), nil);
  EXPECT_EQ(field<BOOL>(panel, "PanelShown"), NO);
  EXPECT_EQ(field<ppd_file_t *>(panel, "ppd"), nullptr);
  EXPECT_EQ(field<id>(panel, "supportedOptions"), nil);
  EXPECT_EQ([field<id>(panel, "SettingItems") class], [MorvaADPSettingsCollectorRV2 class]);
  EXPECT_EQ(field<id>(field<id>(panel, "SettingItems"), "PDECallback"), host);
  EXPECT_EQ(field<NSBundle *>(field<id>(panel, "SettingItems"), "Bundle"), bundle->bundle());
}

TEST_F(Panel, ReleasesWhatItOwnsInOrder) {
  recordCalls();
  collector->recordsReleases = YES;
  [panel panelName];
  for (const char *name : {"supportedOptions", "PDEBundle", "PDEPluginCallbackObject"}) {
    [field<id>(panel, name) release];
    Recorder *recorder = [[Recorder alloc] initWithName:name journal:&journal];
    recorder->recordsReleases = YES;
    field<id>(panel, name) = recorder;
  }
  journal.clear();
  [panel release];
  panel = nil;
  EXPECT_THAT(journal.take(), ElementsAre("items.release", "supportedOptions.release",
                                          "PDEBundle.release", "PDEPluginCallbackObject.release"));
  collector->recordsReleases = NO;
}

// What it returns.

TEST_F(Panel, ReturnsItsKind) {
  EXPECT_EQ(cxxString([panel panelKind]), "com.morva.print.pde.ImagePositionRV1");
}

TEST_F(Panel, ReturnsTrueForShouldShowHelpAndShouldHide) {
  EXPECT_EQ([panel shouldShowHelp], 1);
  EXPECT_EQ([panel shouldHide], 1);
  [panel willShow];
  EXPECT_EQ([panel shouldShowHelp], 1);
  EXPECT_EQ([panel shouldHide], 1);
}

TEST_F(Panel, LooksItsNameUpOnce) {
  NSBundle *original = field<NSBundle *>(panel, "PDEBundle");
  RecordingStrings *strings = [[RecordingStrings alloc] initWithName:"strings" journal:&journal];
  field<id>(panel, "PDEBundle") = strings;
  NSString *name = [panel panelName];
  EXPECT_EQ(cxxString(name), "[PluginName]");
  EXPECT_EQ([panel panelName], name);
  EXPECT_THAT(journal.take(), ElementsAre("strings.localize:PluginName"));
  field<id>(panel, "PDEBundle") = original;
  EXPECT_EQ([panel panelName], name) << "whatever the bundle returns now";
  [strings release];
}

TEST_F(Panel, DoesNotRetainItsName) {
  NSString *name = [[NSString alloc] initWithFormat:@"a name of %d", 1];
  field<id>(panel, "PDEName") = name;
  EXPECT_EQ([panel panelName], name);
  EXPECT_EQ([name retainCount], 1U);
  [panel release];
  panel = nil;
  EXPECT_EQ([name retainCount], 1U);
  [name release];
}

TEST_F(Panel, HasTheLocalizedName) { EXPECT_EQ(cxxString([panel panelName]), "Image Position"); }

TEST_F(Panel, WithoutALocalizedNameItsNameIsTheKey) {
  TestBundle nameless;
  nameless.writePropertyList("SettingInfo", fourDefinitions());
  nameless.writePropertyList("ConstraintInfo", [NSDictionary dictionary]);
  MorvaADPPdePanelRV2 *other =
      [[[MorvaADPPdePanelRV2 alloc] initWithCallback:host Bundle:nameless.bundle()] autorelease];
  EXPECT_EQ(cxxString([other panelName]), "PluginName");
}

// It looks for the name until there is one.
TEST_F(Panel, HasNoNameIfTheBundleReturnsNull) {
  NSBundle *original = field<NSBundle *>(panel, "PDEBundle");
  SilentBundle *strings = [[SilentBundle alloc] init];
  field<id>(panel, "PDEBundle") = strings;
  EXPECT_EQ([panel panelName], nil);
  field<id>(panel, "PDEBundle") = original;
  EXPECT_EQ(cxxString([panel panelName]), "Image Position");
  [strings release];
}

TEST_F(Panel, ReturnsTheSameFiveOptionKeysEachTimeAndLogsThemEachTime) {
  NSArray *keys = [panel supportedPPDOptionKeys];
  ASSERT_EQ([keys count], 5U);
  EXPECT_EQ(cxxString([keys objectAtIndex:0]), "LeftRightMargin");
  EXPECT_EQ(cxxString([keys objectAtIndex:1]), "TopBottomMargin");
  EXPECT_EQ(cxxString([keys objectAtIndex:2]), "BackLeftRightMargin");
  EXPECT_EQ(cxxString([keys objectAtIndex:3]), "BackTopBottomMargin");
  EXPECT_EQ(cxxString([keys objectAtIndex:4]), "MVAdjustDuplexPosition");
  const std::string line = "supportedPPDOptionKeys:=NSArray(" + cxxString([keys description]) + ")";
  EXPECT_THAT(log->lines(), ElementsAre(line));
  EXPECT_EQ([panel supportedPPDOptionKeys], keys) << "not the same object";
  EXPECT_EQ([keys count], 5U);
  EXPECT_THAT(log->lines(), ElementsAre(line, line));
}

TEST_F(Panel, OwnsAMutableListOfOptionKeys) {
  Pool pool;
  NSArray *keys = [panel supportedPPDOptionKeys];
  EXPECT_EQ(keys, field<id>(panel, "supportedOptions"));
  EXPECT_TRUE([keys isKindOfClass:[NSMutableArray class]]);
  EXPECT_EQ([keys retainCount], 1U);
}

// Forwarding.

using Request = void (*)(MorvaADPPdePanelRV2 *);

struct ForwardingRow {
  const char *name;
  Request request;
  Lines unshown;
  Lines shown;
};

const Lines kShowing = {"host.ppdFile", "items.prepareForShow", "items.getTicket",
                        "items.saveTicket"};

class PanelForwarding : public Panel, public testing::WithParamInterface<ForwardingRow> {
protected:
  void SetUp() override {
    Panel::SetUp();
    recordCalls();
  }
};

TEST_P(PanelForwarding, BeforeThePaneWasShown) {
  GetParam().request(panel);
  EXPECT_EQ(journal.take(), GetParam().unshown);
}

TEST_P(PanelForwarding, AfterThePaneWasShown) {
  [panel willShow];
  journal.clear();
  GetParam().request(panel);
  EXPECT_EQ(journal.take(), GetParam().shown);
}

TEST_P(PanelForwarding, IgnoresTheControllersResults) {
  collector->result = YES;
  GetParam().request(panel);
  EXPECT_EQ(journal.take(), GetParam().unshown);
}

TEST_P(PanelForwarding, LogsNothing) {
  GetParam().request(panel);
  EXPECT_THAT(log->lines(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Requests, PanelForwarding,
    testing::Values(
        ForwardingRow{"willShow", [](auto panel) { [panel willShow]; }, kShowing, kShowing},
        ForwardingRow{"shouldPrint",
                      [](auto panel) { EXPECT_EQ([panel shouldPrint], 1); },
                      {"items.getTicket", "items.notifyUI", "items.saveTicket"},
                      {"items.notifyUI", "items.saveTicket"}},
        ForwardingRow{"restore",
                      [](auto panel) { EXPECT_EQ([panel restoreValuesAndReturnError:nullptr], 1); },
                      {},
                      {"items.getTicket", "items.saveTicket", "items.getTicket"}},
        ForwardingRow{"save",
                      [](auto panel) { EXPECT_EQ([panel saveValuesAndReturnError:nullptr], 1); },
                      {},
                      {"items.notifyUI", "items.saveTicket", "items.getTicket"}},
        ForwardingRow{"summaryInfo",
                      [](auto panel) { [panel summaryInfo]; },
                      {"items.getSummaryInfo"},
                      {"items.getSummaryInfo"}},
        ForwardingRow{"panelKind", [](auto panel) { [panel panelKind]; }, {}, {}},
        ForwardingRow{"panelName", [](auto panel) { [panel panelName]; }, {}, {}},
        ForwardingRow{"shouldHide", [](auto panel) { [panel shouldHide]; }, {}, {}},
        ForwardingRow{"shouldShowHelp", [](auto panel) { [panel shouldShowHelp]; }, {}, {}}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(Panel, RequestsItsViewFromTheControllerShownOrNot) {
  recordCalls();
  NSView *view = [[[NSView alloc] initWithFrame:NSZeroRect] autorelease];
  collector->view = view;
  EXPECT_EQ([panel panelView], view);
  [panel willShow];
  journal.clear();
  EXPECT_EQ([panel panelView], view);
  EXPECT_THAT(journal.take(), ElementsAre("items.prepareView"));
}

TEST_F(Panel, ReturnsTheControllersSummaryUnchanged) {
  recordCalls();
  NSDictionary *summary = [NSDictionary dictionaryWithObject:@"b" forKey:@"a"];
  collector->summary = summary;
  EXPECT_EQ([panel summaryInfo], summary);
}

TEST_F(Panel, StaysShownAfterTheFirstShow) {
  recordCalls();
  [panel willShow];
  EXPECT_EQ(field<BOOL>(panel, "PanelShown"), YES);
  [panel shouldPrint];
  [panel saveValuesAndReturnError:nullptr];
  EXPECT_EQ(field<BOOL>(panel, "PanelShown"), YES);
}

TEST_F(Panel, OnlyWillShowMarksItAsShown) {
  recordCalls();
  [panel panelView];
  [panel shouldPrint];
  [panel summaryInfo];
  [panel saveValuesAndReturnError:nullptr];
  EXPECT_EQ(field<BOOL>(panel, "PanelShown"), NO);
}

TEST_F(Panel, TakesThePpdAgainEachTimeItIsShown) {
  recordCalls();
  [panel willShow];
  EXPECT_EQ(field<ppd_file_t *>(panel, "ppd"), ppd->get());
  TestPpd other;
  host->ppd = other.get();
  [panel willShow];
  EXPECT_EQ(field<ppd_file_t *>(panel, "ppd"), other.get());
  host->ppd = nullptr;
  [panel willShow];
  EXPECT_EQ(field<ppd_file_t *>(panel, "ppd"), nullptr);
}

TEST_F(Panel, LeavesErrorOutputsUnchanged) {
  NSError *error = (NSError *)host;
  for (int shown = 0; shown < 2; ++shown) {
    EXPECT_EQ([panel saveValuesAndReturnError:&error], 1);
    EXPECT_EQ([panel restoreValuesAndReturnError:&error], 1);
    [panel willShow];
  }
  EXPECT_EQ(error, (NSError *)host);
  settings->failWrite(1);
  EXPECT_EQ([panel saveValuesAndReturnError:&error], 1);
  EXPECT_EQ(error, (NSError *)host);
}

// With the real controller.

TEST_F(Panel, SavingAndRestoringBeforeTheFirstShowChangeNothing) {
  writeInterfaceFile();
  [panel panelView];
  settings->put("FrontLRMTicket", "7");
  EXPECT_EQ([panel saveValuesAndReturnError:nullptr], 1);
  EXPECT_EQ([panel restoreValuesAndReturnError:nullptr], 1);
  EXPECT_TRUE(settings->calls().empty());
  EXPECT_EQ(settings->size(), 1U);
}

TEST_F(Panel, PrintingWithAPaneThatWasNeverShownWritesEverything) {
  writeInterfaceFile();
  [panel panelView];
  settings->put("FrontLRMTicket", "-3");
  settings->put("BackTBMTicket", "99");
  settings->put(kEnableKey, "True");
  EXPECT_EQ([panel shouldPrint], 1);
  EXPECT_EQ(settings->text("FrontLRMTicket"), "-3");
  EXPECT_EQ(settings->text("FrontTBMTicket"), "0");
  EXPECT_EQ(settings->text("BackLRMTicket"), "0");
  EXPECT_EQ(settings->text("BackTBMTicket"), "20");
  EXPECT_EQ(settings->text(kEnableKey), "True");
}

TEST_F(Panel, PrintingWithAPaneWithoutAViewWritesTheValuesToo) {
  settings->put("FrontLRMTicket", "-3");
  EXPECT_EQ([panel shouldPrint], 1);
  EXPECT_EQ(settings->text("FrontLRMTicket"), "-3");
  EXPECT_EQ(settings->text("BackTBMTicket"), "0");
  EXPECT_EQ(settings->text(kEnableKey), "False");
}

TEST_F(Panel, PrintingSucceedsWhateverFails) {
  host->settings = nullptr;
  EXPECT_EQ([panel shouldPrint], 1);
  [panel willShow];
  EXPECT_EQ([panel shouldPrint], 1);
  host->settings = settings->handle();
  settings->failWritesOf(kEnableKey);
  EXPECT_EQ([panel shouldPrint], 1);
}

TEST_F(Panel, EachShowReadsThePrintSettingsAgainAndWritesThemBack) {
  writeInterfaceFile();
  [panel panelView];
  [panel willShow];
  settings->put("FrontLRMTicket", "12");
  settings->put("FrontTBMTicket", "99");
  [panel willShow];
  id items = field<id>(panel, "SettingItems");
  EXPECT_EQ(cxxString([field<NSTextField *>(items, "FrontLRMText") stringValue]), "12");
  EXPECT_EQ(settings->text("FrontTBMTicket"), "20");
  EXPECT_EQ(settings->text(kEnableKey), "False");
}

TEST_F(Panel, RestoringShowsThePrintSettingsAgain) {
  writeInterfaceFile();
  [panel panelView];
  [panel willShow];
  id items = field<id>(panel, "SettingItems");
  NSTextField *entry = field<NSTextField *>(items, "FrontLRMText");
  [entry setStringValue:@"9"];
  settings->put("FrontLRMTicket", "-4");
  [panel restoreValuesAndReturnError:nullptr];
  EXPECT_EQ(cxxString([entry stringValue]), "-4");
}

TEST_F(Panel, SavingTakesWhatTheViewShows) {
  writeInterfaceFile();
  [panel panelView];
  [panel willShow];
  id items = field<id>(panel, "SettingItems");
  [field<NSTextField *>(items, "FrontLRMText") setStringValue:@"9"];
  [field<NSButton *>(items, "chkEnableImagePositionAdjust") setState:1];
  [panel saveValuesAndReturnError:nullptr];
  EXPECT_EQ(settings->text("FrontLRMTicket"), "9");
  EXPECT_EQ(settings->text(kEnableKey), "True");
}

TEST_F(Panel, ItsViewIsLoadedOnce) {
  writeInterfaceFile();
  NSView *view = [panel panelView];
  ASSERT_NE(view, nil);
  [panel willShow];
  EXPECT_EQ([panel panelView], view);
}

class PanelWithoutInterfaceFile : public Panel, public testing::WithParamInterface<const char *> {};

TEST_P(PanelWithoutInterfaceFile, HasNoView) {
  if (GetParam() != nullptr)
    writeInterfaceFile(GetParam());
  EXPECT_EQ([panel panelView], nil);
  [panel willShow];
  EXPECT_EQ([panel shouldPrint], 1);
}

INSTANTIATE_TEST_SUITE_P(Files, PanelWithoutInterfaceFile,
                         testing::Values(static_cast<const char *>(nullptr), "",
                                         "no interface file", "<document>"));

} // namespace
