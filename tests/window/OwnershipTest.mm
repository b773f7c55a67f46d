// Once the dialog has released them, all objects that the plug-in created are deallocated.
#import "LiveObjects.h"
#import "PanelWindow.h"
#import "TestPool.h"

#include <map>

using namespace imageposition::test;

namespace {

using Counts = std::map<std::string, int>;

constexpr const char *kOwn[] = {"MorvaADPPdePluginRV2",
                                "MorvaADPPdePanelRV2",
                                "MorvaADPSettingsCollectorRV2",
                                "MorvaADPIntegerSettingRV2",
                                "MorvaADPIntegerTextFieldItemRV2",
                                "MorvaADPStepperItemRV2",
                                "MorvaADPLabelItemRV2"};
// The other objects in the interface file.
constexpr const char *kPlatform[] = {"NSView", "NSButton", "NSButtonCell", "NSStepperCell",
                                     "NSTextFieldCell"};

Counts alive() {
  Counts counts;
  for (const char *name : kOwn)
    counts[name] = LiveObjects::count(name);
  for (const char *name : kPlatform)
    counts[name] = LiveObjects::count(name);
  return counts;
}

class Ownership : public testing::Test {
public:
  void SetUp() override {
    log_ = std::make_unique<LogCapture>();
    ppd_ = std::make_unique<TestPpd>(supportingPrinter());
    settings_ = std::make_unique<TestPrintSettings>();
    host = [[RecordingHost hostWithPpd:ppd_->get() settings:settings_->handle()] retain];
    counting_ = std::make_unique<LiveObjects>();
    // Lets GNUstep create the objects that it caches.
    useOnce(&Ownership::everything);
    before = alive();
    hostReferences = [host retainCount];
  }

  void TearDown() override { [host release]; }

  /// Creates a plug-in and a panel, calls the function with the panel, and releases both.
  void useOnce(void (Ownership::*use)(id panel)) {
    Pool pool;
    id plugin = newPlugin();
    NSArray *panels = [(id<PDEPlugIn>)plugin PDEPanelsForType:kPrintDialogType withHostInfo:host];
    ASSERT_EQ([panels count], 1U);
    (this->*use)([panels objectAtIndex:0]);
    [plugin release];
  }

  void nothing(id) {}
  void view(id panel) { EXPECT_NE([panel panelView], nil); }
  void viewTwice(id panel) { EXPECT_EQ([panel panelView], [panel panelView]); }
  void everything(id panel) {
    [panel panelKind];
    [panel panelName];
    [panel supportedPPDOptionKeys];
    [panel panelView];
    [panel willShow];
    [panel saveValuesAndReturnError:nullptr];
    [panel restoreValuesAndReturnError:nullptr];
    [panel summaryInfo];
    [panel shouldPrint];
    [panel willShow];
  }
  void unshownPrint(id panel) {
    [panel summaryInfo];
    [panel shouldPrint];
  }
  void inWindow(id panel) {
    NSView *shown = [panel panelView];
    NSWindow *window = [[NSWindow alloc] initWithContentRect:[shown frame]
                                                   styleMask:NSTitledWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:NO];
    [window setReleasedWhenClosed:NO];
    [[window contentView] addSubview:shown];
    [panel willShow];
    [window makeKeyAndOrderFront:nil];
    EXPECT_TRUE(runUntil([&] { return [window isVisible] != NO; }));
    [window makeFirstResponder:field<id>(field<id>(panel, "SettingItems"), "FrontLRMText")];
    [window makeFirstResponder:nil];
    [shown removeFromSuperview];
    [window close];
    [window release];
  }
  /// A dialog that keeps the view longer than the panel, and a user who still clicks on it.
  void viewOutlives(id panel) {
    {
      Pool pool;
      kept_ = [[panel panelView] retain];
      [panel willShow];
    }
  }

  void expectNothingLeft() {
    EXPECT_EQ(alive(), before);
    EXPECT_EQ([host retainCount], hostReferences);
  }

  RecordingHost *host = nil;
  Counts before;
  NSUInteger hostReferences = 0;
  NSView *kept_ = nil;

private:
  std::unique_ptr<LogCapture> log_;
  std::unique_ptr<TestPpd> ppd_;
  std::unique_ptr<TestPrintSettings> settings_;
  std::unique_ptr<LiveObjects> counting_;
};

TEST_F(Ownership, APanelIsCountedWhileItLives) {
  Pool pool;
  id plugin = newPlugin();
  id panel = [[(id<PDEPlugIn>)plugin PDEPanelsForType:kPrintDialogType
                                         withHostInfo:host] objectAtIndex:0];
  [panel panelView];
  const Counts now = alive();
  for (const char *name :
       {"MorvaADPPdePluginRV2", "MorvaADPPdePanelRV2", "MorvaADPSettingsCollectorRV2"})
    EXPECT_EQ(now.at(name), before.at(name) + 1) << name;
  for (const char *name :
       {"MorvaADPIntegerSettingRV2", "MorvaADPIntegerTextFieldItemRV2", "MorvaADPStepperItemRV2"})
    EXPECT_EQ(now.at(name), before.at(name) + 4) << name;
  EXPECT_EQ(now.at("MorvaADPLabelItemRV2"), before.at("MorvaADPLabelItemRV2") + 8);
  EXPECT_EQ(now.at("NSButton"), before.at("NSButton") + 2);
  [plugin release];
}

TEST_F(Ownership, APanelThatWasOnlyCreatedIsDeallocated) {
  useOnce(&Ownership::nothing);
  expectNothingLeft();
}

TEST_F(Ownership, APanelIsDeallocatedWithItsLoadedView) {
  useOnce(&Ownership::view);
  expectNothingLeft();
}

TEST_F(Ownership, RequestingTheViewAgainLeaksNothing) {
  useOnce(&Ownership::viewTwice);
  expectNothingLeft();
}

TEST_F(Ownership, APanelThatWasUsedIsDeallocated) {
  useOnce(&Ownership::everything);
  expectNothingLeft();
}

TEST_F(Ownership, APanelThatPrintedWithoutAViewIsDeallocated) {
  useOnce(&Ownership::unshownPrint);
  expectNothingLeft();
}

TEST_F(Ownership, APanelThatWasInAWindowIsDeallocated) {
  // The first window of a program creates views that GNUstep caches.
  useOnce(&Ownership::inWindow);
  before["NSView"] = alive().at("NSView");
  useOnce(&Ownership::inWindow);
  expectNothingLeft();
}

TEST_F(Ownership, AHundredPanelsAreDeallocated) {
  for (int i = 0; i < 100; ++i)
    useOnce(&Ownership::everything);
  expectNothingLeft();
}

TEST_F(Ownership, AViewThatTheDialogRetainsOutlivesThePanelAndHasNoTarget) {
  useOnce(&Ownership::viewOutlives);
  ASSERT_NE(kept_, nil);
  {
    Pool pool;
    EXPECT_EQ(alive().at("MorvaADPSettingsCollectorRV2"),
              before.at("MorvaADPSettingsCollectorRV2"));
    NSArray *controls = [kept_ subviews];
    for (NSUInteger i = 0; i < [controls count]; ++i) {
      id item = [controls objectAtIndex:i];
      if ([item isKindOfClass:[NSButton class]])
        [item performClick:nil];
      else if ([item isKindOfClass:[NSControl class]])
        [item sendAction:[item action] to:[item target]];
    }
    [kept_ release];
  }
  expectNothingLeft();
}

} // namespace
