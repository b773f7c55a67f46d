// Loading the interface file and binding what it connects.
#import "ControllerFixture.h"
#import "LiveObjects.h"
#import "TestPool.h"

#include <fstream>
#include <regex>
#include <sstream>

/// Raises once everything is connected.
@interface RaisingLabel : NSTextField
@end

@implementation RaisingLabel
- (void)awakeFromNib {
  [NSException raise:NSGenericException format:@"on purpose"];
}
@end

using namespace imageposition::test;
using testing::ElementsAre;

namespace {

std::string realInterfaceFile() {
  std::ifstream file(IMAGEPOSITION_RESOURCES "/ImagePositionAdjustPrint.xib", std::ios::binary);
  std::stringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

const Lines kSuffixes = {"Text", "Stepper", "Label", "RangeLabel"};

Lines outletNames() {
  Lines names = {"ImagePositionPrintView", "chkEnableImagePositionAdjust", "btnRestore2Defalut"};
  for (const std::string &name : kNames)
    for (const std::string &suffix : kSuffixes)
      names.push_back(name + suffix);
  return names;
}

class ViewBinding : public ControllerFixture {
protected:
  void SetUp() override {
    ControllerFixture::SetUp();
    writeBundle();
    ASSERT_NE(make(), nil);
  }

  NSArray *targets(const std::string &name) {
    return field<NSMutableArray *>(setting(name), "HandlingTarget");
  }

  /// Everything that the dialog or a user can trigger; it must do no harm, whatever is missing.
  void useEverything() {
    [controller prepareForShow];
    [controller getTicket];
    [controller saveTicket];
    [controller notifyUI];
    [controller UIItemActionListener:nil];
    [controller clickEnableImgPositionAdjust:nil];
    [controller clickbtnReasto2Default:nil];
    EXPECT_NE([controller getSummaryInfo], nil);
  }
};

TEST_F(ViewBinding, ConnectsAllOutletsWithTheItemsOfTheirClasses) {
  writeInterfaceFile();
  ASSERT_NE([controller prepareView], nil);
  for (const std::string &name : outletNames())
    EXPECT_NE(get<id>(name.c_str()), nil) << name;
  for (const std::string &name : kNames) {
    EXPECT_STREQ(object_getClassName(get<id>((name + "Text").c_str())),
                 "MorvaADPIntegerTextFieldItemRV2");
    EXPECT_STREQ(object_getClassName(get<id>((name + "Stepper").c_str())),
                 "MorvaADPStepperItemRV2");
    EXPECT_STREQ(object_getClassName(get<id>((name + "Label").c_str())), "MorvaADPLabelItemRV2");
    EXPECT_STREQ(object_getClassName(get<id>((name + "RangeLabel").c_str())),
                 "MorvaADPLabelItemRV2");
  }
  EXPECT_TRUE([get<id>("chkEnableImagePositionAdjust") isKindOfClass:[NSButton class]]);
  EXPECT_TRUE([get<id>("btnRestore2Defalut") isKindOfClass:[NSButton class]]);
}

TEST_F(ViewBinding, ReturnsTheViewOfTheInterfaceFile) {
  writeInterfaceFile();
  NSView *view = [controller prepareView];
  EXPECT_EQ(view, get<id>("ImagePositionPrintView"));
  for (const std::string &name : outletNames())
    EXPECT_TRUE([get<NSView *>(name.c_str()) isDescendantOf:view]) << name;
}

TEST_F(ViewBinding, BindsEachSettingToItsFourItemsInOrder) {
  writeInterfaceFile();
  [controller prepareView];
  for (const std::string &name : kNames) {
    ASSERT_EQ([targets(name) count], 4U) << name;
    for (NSUInteger i = 0; i < 4; ++i)
      EXPECT_EQ([targets(name) objectAtIndex:i], get<id>((name + kSuffixes[i]).c_str()))
          << name << kSuffixes[i];
  }
}

TEST_F(ViewBinding, BindsEachSettingToTheListOfAllSettings) {
  writeInterfaceFile();
  [controller prepareView];
  for (const std::string &name : kNames)
    EXPECT_EQ(field<NSArray *>(setting(name), "RelatedSettings"), get<NSArray *>("SettingsList"));
}

TEST_F(ViewBinding, PassesTheEntryFieldsTheirRange) {
  writeInterfaceFile();
  [controller prepareView];
  for (const std::string &name : kNames) {
    EXPECT_EQ(field<int32_t>(get<id>((name + "Text").c_str()), "Max"), 20);
    EXPECT_EQ(field<int32_t>(get<id>((name + "Text").c_str()), "Min"), -20);
  }
}

TEST_F(ViewBinding, TheSecondCallReturnsTheSameViewAndLoadsNothing) {
  writeInterfaceFile();
  NSView *first = [controller prepareView];
  id field = get<id>("FrontLRMText");
  NSArray *bound = targets("FrontLRM");
  removeInterfaceFile();
  EXPECT_EQ([controller prepareView], first);
  EXPECT_EQ(get<id>("FrontLRMText"), field);
  EXPECT_EQ(targets("FrontLRM"), bound);
}

TEST_F(ViewBinding, TheSecondCallDoesNotBindAgain) {
  writeInterfaceFile();
  makeRecording();
  [controller prepareView];
  [controller prepareView];
  const Lines lines = journal.take();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "self.CBSCInitializeView"), 1);
}

TEST_F(ViewBinding, ReadsNoPrintSettingsAndDoesNotUpdateAvailability) {
  writeInterfaceFile();
  log->clear();
  [controller prepareView];
  EXPECT_EQ(host->settingsRequests, 0);
  EXPECT_THAT(log->lines(), testing::IsEmpty());
}

TEST_F(ViewBinding, TheControlsSendTheControllersActions) {
  writeInterfaceFile();
  [controller prepareView];
  for (const std::string &name : kNames)
    for (const char *suffix : {"Text", "Stepper"}) {
      NSControl *item = get<NSControl *>((name + suffix).c_str());
      EXPECT_EQ([item target], controller) << name << suffix;
      EXPECT_STREQ(sel_getName([item action]), "UIItemActionListener:") << name << suffix;
    }
  NSControl *check = get<NSControl *>("chkEnableImagePositionAdjust");
  EXPECT_EQ([check target], controller);
  EXPECT_STREQ(sel_getName([check action]), "clickEnableImgPositionAdjust:");
  NSControl *button = get<NSControl *>("btnRestore2Defalut");
  EXPECT_EQ([button target], controller);
  EXPECT_STREQ(sel_getName([button action]), "clickbtnReasto2Default:");
}

TEST_F(ControllerFixture, BindingPassesEachSettingItsItemsInTheOrderOfTheSettings) {
  makeHollow();
  [controller CBSCInitializeView];
  EXPECT_THAT(journal.take(),
              ElementsAre("self.CBSCInitializeView", "FrontLRM.setRelatedSettings:HandlingTarget:",
                          "FrontTBM.setRelatedSettings:HandlingTarget:",
                          "BackLRM.setRelatedSettings:HandlingTarget:",
                          "BackTBM.setRelatedSettings:HandlingTarget:"));
  NSMutableSet *lists = [NSMutableSet set];
  for (const std::string &name : kNames) {
    RecordingSetting *bound = get<id>((name + "Settings").c_str());
    EXPECT_EQ(bound->related, get<NSArray *>("SettingsList"));
    [lists addObject:[NSValue valueWithNonretainedObject:bound->targets]];
    ASSERT_EQ([bound->targets count], 4U);
    for (NSUInteger i = 0; i < 4; ++i)
      EXPECT_EQ([bound->targets objectAtIndex:i], get<id>((name + kSuffixes[i]).c_str()));
  }
  EXPECT_EQ([lists count], 4U) << "each list of items is a new one";
}

// Damaged interface files.

TEST_F(ViewBinding, WithoutAnInterfaceFileTheViewIsNull) {
  EXPECT_EQ([controller prepareView], nil);
  useEverything();
}

TEST_F(ViewBinding, AnInterfaceFileThatAppearsLaterIsLoaded) {
  EXPECT_EQ([controller prepareView], nil);
  writeInterfaceFile();
  EXPECT_NE([controller prepareView], nil);
  EXPECT_EQ([targets("BackTBM") count], 4U);
}

class ViewBindingOfBytes : public ViewBinding, public testing::WithParamInterface<const char *> {};

TEST_P(ViewBindingOfBytes, DoesNoHarm) {
  writeInterfaceFile(GetParam());
  EXPECT_EQ([controller prepareView], nil);
  useEverything();
}

INSTANTIATE_TEST_SUITE_P(
    Contents, ViewBindingOfBytes,
    testing::Values("", " ", "\n", "not an interface file", "<", "<?xml version=\"1.0\"?>",
                    "<document/>", "<plist version=\"1.0\"><dict></dict></plist>",
                    "<document type=\"com.apple.InterfaceBuilder3.Cocoa.XIB\" version=\"3.0\"/>",
                    "<document><objects><nonsense/></objects></document>", "\xff\xfe\x01\x02",
                    "bplist00\x01"));

TEST_F(ViewBinding, ATruncatedInterfaceFileDoesNoHarm) {
  const std::string whole = realInterfaceFile();
  ASSERT_GT(whole.size(), 1000U);
  for (std::size_t part = 1; part < 40; ++part) {
    SCOPED_TRACE(part);
    writeInterfaceFile(whole.substr(0, whole.size() * part / 40));
    ASSERT_NE(make(), nil);
    [controller prepareView];
    useEverything();
  }
}

TEST_F(ViewBinding, AMissingOutletDoesNoHarm) {
  const std::string whole = realInterfaceFile();
  for (const std::string &name : outletNames()) {
    SCOPED_TRACE(name);
    const std::regex outlet("<outlet property=\"" + name + "\"[^>]*/>");
    const std::string without = std::regex_replace(whole, outlet, "");
    ASSERT_NE(without, whole);
    writeInterfaceFile(without);
    ASSERT_NE(make(), nil);
    EXPECT_EQ([controller prepareView] == nil, name == "ImagePositionPrintView");
    EXPECT_EQ(get<id>(name.c_str()), nil);
    for (const std::string &setting : kNames) {
      if (name.rfind(setting, 0) != 0) {
        EXPECT_EQ([targets(setting) count], 4U) << setting;
      }
    }
    useEverything();
  }
}

TEST_F(ViewBinding, AnUnknownOutletDoesNoHarm) {
  std::string file = realInterfaceFile();
  file = std::regex_replace(file, std::regex("property=\"FrontLRMText\""),
                            "property=\"NoSuchOutlet\"");
  writeInterfaceFile(file);
  [controller prepareView];
  useEverything();
}

TEST_F(ViewBinding, AnUnknownClassDoesNoHarm) {
  std::string file = realInterfaceFile();
  file = std::regex_replace(file, std::regex("customClass=\"MorvaADPStepperItemRV2\""),
                            "customClass=\"NoSuchStepper\"");
  writeInterfaceFile(file);
  [controller prepareView];
  useEverything();
}

TEST_F(ViewBinding, AnExceptionAfterTheConnectionsDoesNoHarm) {
  std::string file = realInterfaceFile();
  file = std::regex_replace(file, std::regex("customClass=\"MorvaADPLabelItemRV2\""),
                            "customClass=\"RaisingLabel\"");
  {
    const Pool pool;
    writeInterfaceFile(file);
    NSView *view = [controller prepareView];
    ASSERT_NE(view, nil);
    EXPECT_EQ([[view subviews] count], 18U);
  }
  useEverything();
  EXPECT_EQ([[[controller prepareView] subviews] count], 18U);
}

/// The real interface file with the view's outlet connected to another object in it.
std::string interfaceFileWithViewOutletTo(const std::string &identifier) {
  const std::string whole = realInterfaceFile();
  const std::regex outlet("property=\"ImagePositionPrintView\" destination=\"[^\"]*\"");
  const std::string changed = std::regex_replace(
      whole, outlet, "property=\"ImagePositionPrintView\" destination=\"" + identifier + "\"");
  EXPECT_NE(changed, whole);
  return changed;
}

TEST_F(ViewBinding, AViewInsideAnotherOneStaysItsSubview) {
  const LiveObjects alive;
  int labels = 0;
  {
    const Pool pool;
    writeInterfaceFile(interfaceFileWithViewOutletTo("tV3-Ln-e9r"));
    [controller prepareView];
    ASSERT_STREQ(object_getClassName(get<id>("ImagePositionPrintView")), "MorvaADPLabelItemRV2");
    labels = LiveObjects::count("MorvaADPLabelItemRV2");
    useEverything();
    [controller release];
    controller = nil;
  }
  EXPECT_EQ(LiveObjects::count("MorvaADPLabelItemRV2"), labels);
}

TEST_F(ViewBinding, AViewOutletToAnotherObjectDoesNoHarm) {
  const LiveObjects alive;
  int cells = 0;
  {
    const Pool pool;
    writeInterfaceFile(interfaceFileWithViewOutletTo("9ia-wL-iww"));
    EXPECT_EQ([controller prepareView], nil);
    cells = LiveObjects::count("NSTextFieldCell");
    useEverything();
    EXPECT_NO_THROW([controller release]);
    controller = nil;
  }
  EXPECT_GE(LiveObjects::count("NSTextFieldCell"), cells)
      << "top-level objects of the file, which nobody owns here";
}

TEST_F(ViewBinding, ItemsOfPlainAppKitClassesAreKeptAndIgnored) {
  std::string file = realInterfaceFile();
  file = std::regex_replace(
      file, std::regex("customClass=\"MorvaADP(Label|Stepper|IntegerTextField)ItemRV2\""), "");
  writeInterfaceFile(file);
  ASSERT_NE([controller prepareView], nil);
  settings->put("FrontLRMTicket", "7");
  useEverything();
}

} // namespace
