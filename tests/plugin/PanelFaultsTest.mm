// The whole panel with its real view, used like a print dialog does, while its dependencies fail.
#import "ControllerFixture.h"
#import "TestPool.h"

#import "MorvaADPPdePanelRV2.h"

#include <fstream>
#include <functional>

using namespace imageposition::test;

namespace {

class PanelFaults : public ControllerFixture {
protected:
  using Step = std::function<void()>;

  void SetUp() override {
    ControllerFixture::SetUp();
    writeBundle();
    writeInterfaceFile();
  }

  void TearDown() override {
    [panel release];
    controller = nil; // owned by the panel
    ControllerFixture::TearDown();
  }

  void makePanel() {
    [panel release];
    panel = [[MorvaADPPdePanelRV2 alloc] initWithCallback:host Bundle:bundle->bundle()];
    ASSERT_NE(panel, nil);
    controller = field<id>(panel, "SettingItems");
  }

  /// A job that already has offsets and an unrelated entry.
  void newJob() {
    settings = std::make_unique<TestPrintSettings>();
    host->settings = settings->handle();
    host->ppd = ppd->get();
    settings->put("FrontLRMTicket", "-3");
    settings->put("FrontTBMTicket", "4");
    settings->put("BackLRMTicket", "5");
    settings->put("BackTBMTicket", "-6");
    settings->put(kEnableKey, "True");
    settings->put("Foreign", "kept");
  }

  void edit(const char *name, NSString *text) {
    NSTextField *entry = get<NSTextField *>((std::string(name) + "Text").c_str());
    [entry setStringValue:text];
    [controller UIItemActionListener:entry];
  }

  /// All steps between a dialog and its panel, in order.
  std::vector<Step> protocol() {
    return {
        [this] { [panel panelKind]; },
        [this] { [panel panelName]; },
        [this] { [panel supportedPPDOptionKeys]; },
        [this] { [panel panelView]; },
        [this] { [panel summaryInfo]; },
        [this] { [panel willShow]; },
        [this] { edit("FrontLRM", @"12"); },
        [this] {
          NSStepper *stepper = get<NSStepper *>("BackTBMStepper");
          [stepper setIntValue:1];
          [controller UIItemActionListener:stepper];
        },
        [this] { [panel saveValuesAndReturnError:nullptr]; },
        [this] { EXPECT_NE([panel summaryInfo], nil); },
        [this] { [panel restoreValuesAndReturnError:nullptr]; },
        [this] { [controller clickEnableImgPositionAdjust:nil]; },
        [this] { [controller clickbtnReasto2Default:nil]; },
        [this] { [panel willShow]; },
        [this] { edit("BackLRM", @"99"); },
        [this] { EXPECT_TRUE([panel shouldPrint]); },
        [this] { [panel saveValuesAndReturnError:nullptr]; },
    };
  }

  void useFrom(std::size_t first, std::size_t end) {
    const auto steps = protocol();
    for (std::size_t i = first; i < std::min(end, steps.size()); ++i) {
      SCOPED_TRACE("step " + std::to_string(i));
      EXPECT_NO_THROW(steps[i]());
    }
  }

  /// Checks that the failure has no lasting effect: the next use works normally.
  void expectWhole() {
    settings->stopFailing();
    host->settings = settings->handle();
    host->ppd = ppd->get();
    [panel willShow];
    edit("FrontLRM", @"7");
    edit("BackTBM", @"-8");
    [panel saveValuesAndReturnError:nullptr];
    EXPECT_EQ(settings->text("FrontLRMTicket"), "7");
    EXPECT_EQ(settings->text("BackTBMTicket"), "-8");
    EXPECT_EQ(settings->text("Foreign"), "kept");
    for (const std::string &name : kNames) {
      const int stored = std::stoi(settings->text(name + "Ticket").value_or("0"));
      EXPECT_TRUE(stored >= -20 && stored <= 20) << name << " " << stored;
    }
  }

  static std::string idOf(const std::string &file, const std::string &element) {
    const std::size_t from = file.find(" id=\"", file.find(element)) + 5;
    return file.substr(from, file.find('"', from) - from);
  }

  MorvaADPPdePanelRV2 *panel = nil;
};

TEST_F(PanelFaults, EachReadOrWriteOfTheSettingsMayFail) {
  for (const bool isRead : {true, false}) {
    std::size_t accesses = 1;
    for (std::size_t n = 1; n <= accesses; ++n) {
      SCOPED_TRACE((isRead ? "read " : "write ") + std::to_string(n));
      Pool pool;
      newJob();
      makePanel();
      isRead ? settings->failRead(static_cast<int>(n)) : settings->failWrite(static_cast<int>(n));
      useFrom(0, 100);
      accesses =
          settings->count(isRead ? TestPrintSettings::Access::Get : TestPrintSettings::Access::Set);
      expectWhole();
    }
    EXPECT_GT(accesses, 50U);
    RecordProperty(isRead ? "reads" : "writes", static_cast<int>(accesses));
  }
}

TEST_F(PanelFaults, EachRequestForTheSettingsMayReturnNull) {
  int requests = 1;
  for (int n = 1; n <= requests; ++n) {
    SCOPED_TRACE(n);
    Pool pool;
    newJob();
    makePanel();
    host->settingsRequests = 0;
    host->failingSettingsRequest = n;
    useFrom(0, 100);
    requests = host->settingsRequests;
    expectWhole();
  }
  EXPECT_GT(requests, 10);
}

TEST_F(PanelFaults, TheSettingsMayDisappearAndReturnBetweenAnyTwoSteps) {
  const std::size_t count = protocol().size();
  for (std::size_t gone = 0; gone < count; ++gone) {
    for (std::size_t back = gone + 1; back <= count; ++back) {
      SCOPED_TRACE(std::to_string(gone) + " to " + std::to_string(back));
      Pool pool;
      newJob();
      makePanel();
      useFrom(0, gone);
      host->settings = nullptr;
      useFrom(gone, back);
      host->settings = settings->handle();
      useFrom(back, count);
      expectWhole();
    }
  }
}

TEST_F(PanelFaults, ThePrinterMayDisappearOrChangeBetweenAnyTwoSteps) {
  TestPpd other(TestPpd::option("Duplex", {"None", "DuplexTumble"}));
  TestPpd bare;
  for (ppd_file_t *replacement : {static_cast<ppd_file_t *>(nullptr), other.get(), bare.get()}) {
    for (std::size_t step = 0; step <= protocol().size(); ++step) {
      SCOPED_TRACE(step);
      Pool pool;
      newJob();
      makePanel();
      useFrom(0, step);
      host->ppd = replacement;
      useFrom(step, 100);
      expectWhole();
    }
  }
}

TEST_F(PanelFaults, WithoutAPpdThereIsNoPanel) {
  host->ppd = nullptr;
  EXPECT_EQ([[MorvaADPPdePanelRV2 alloc] initWithCallback:host Bundle:bundle->bundle()], nil);
}

// An interface file whose outlets are connected to the wrong objects.

TEST_F(PanelFaults, AnOutletToAnUnsuitableObjectCountsAsNotConnected) {
  const std::string sound = [] {
    std::ifstream file(IMAGEPOSITION_RESOURCES "/ImagePositionAdjustPrint.xib", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }();
  for (const std::string outlet :
       {"chkEnableImagePositionAdjust", "btnRestore2Defalut", "FrontLRMText", "BackTBMText",
        "FrontLRMStepper", "FrontTBMLabel", "BackLRMRangeLabel", "ImagePositionPrintView"}) {
    SCOPED_TRACE(outlet);
    Pool pool;
    std::string damaged = sound;
    // Other objects in the file: the view lacks a control's methods, and a cell is not a view.
    const std::string elsewhere = outlet == "ImagePositionPrintView"
                                      ? idOf(sound, "<textFieldCell ")
                                      : idOf(sound, "<customView ");
    const std::size_t name = damaged.find("property=\"" + outlet + "\"");
    ASSERT_NE(name, std::string::npos);
    const std::size_t from = damaged.find("destination=\"", name) + 13;
    damaged.replace(from, damaged.find('"', from) - from, elsewhere);
    writeInterfaceFile(damaged);
    newJob();
    makePanel();
    EXPECT_EQ([panel panelView] == nil, outlet == "ImagePositionPrintView");
    useFrom(0, 100);
    [panel release];
    panel = nil;
  }
}

} // namespace

/// A bundle that returns temporary strings, as Foundation does for one that it marks as not
/// translated.
@interface FleetingBundle : NSBundle
@end

@implementation FleetingBundle
- (NSString *)localizedStringForKey:(NSString *)key
                              value:(NSString *)value
                              table:(NSString *)table {
  (void)value;
  (void)table;
  return [NSString stringWithFormat:@"a temporary string for %@, longer than a pointer", key];
}
@end

namespace {

TEST_F(PanelFaults, TheNameStaysValidIfTheBundleDoesNotKeepIt) {
  newJob();
  makePanel();
  id fleeting = [FleetingBundle alloc];
  id own = field<id>(panel, "PDEBundle");
  field<id>(panel, "PDEBundle") = fleeting;
  NSString *name = nil;
  {
    Pool pool;
    name = [panel panelName];
  }
  field<id>(panel, "PDEBundle") = own;
  EXPECT_EQ([panel panelName], name) << "looked up once";
  EXPECT_EQ(cxxString(name), "a temporary string for PluginName, longer than a pointer");
}

} // namespace
