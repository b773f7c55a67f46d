// Checks the interface file, as an Xcode document, against the classes that it instantiates and
// connects.
#import "ResourceFiles.h"

#import "MorvaADPSettingsCollectorRV2.h"
#import "Text.h"

#include <gmock/gmock.h>

#include <objc/runtime.h>

#include <regex>
#include <set>

using namespace imageposition::test;
using testing::ElementsAre;

namespace {

using Names = std::vector<std::string>;

const Names kSettings = {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"};

class InterfaceFile : public testing::Test {
protected:
  void SetUp() override {
    NSData *bytes =
        [NSData dataWithContentsOfFile:nsString(resourcePath("ImagePositionAdjustPrint.xib"))];
    document_ = [[[NSXMLDocument alloc] initWithData:bytes options:0 error:NULL] autorelease];
    ASSERT_NE(document_, nil);
  }

  // Null if there are none.
  NSArray *nodes(const std::string &path) {
    return [document_ nodesForXPath:nsString(path) error:NULL];
  }

  std::size_t count(const std::string &path) { return [nodes(path) count]; }

  // The values of the attributes at that path, in document order.
  Names values(const std::string &path) {
    Names result;
    NSEnumerator *found = [nodes(path) objectEnumerator];
    for (NSXMLNode *node = [found nextObject]; node != nil; node = [found nextObject])
      result.push_back(cxxString([node stringValue]));
    return result;
  }

  std::string value(const std::string &path) {
    const Names found = values(path);
    EXPECT_EQ(found.size(), 1u) << path;
    return found.empty() ? std::string() : found.front();
  }

  std::string idOf(const std::string &outlet) {
    return value("//customObject[@id='-2']/connections/outlet[@property='" + outlet +
                 "']/@destination");
  }

  // The path of the element that is connected to an outlet of the owner.
  std::string element(const std::string &outlet) { return "//*[@id='" + idOf(outlet) + "']"; }

  void expectAction(const std::string &outlet, const std::string &selector) {
    const std::string action = element(outlet) + "/connections/action";
    EXPECT_EQ(value(action + "/@selector"), selector) << outlet;
    EXPECT_EQ(value(action + "/@target"), "-2") << outlet;
    EXPECT_TRUE([MorvaADPSettingsCollectorRV2
        instancesRespondToSelector:NSSelectorFromString(nsString(selector))])
        << selector;
  }

  NSXMLDocument *document_ = nil;
};

} // namespace

TEST_F(InterfaceFile, IsInXcodesFormatForTheOldestSystemWithoutConstraints) {
  EXPECT_EQ(value("/document/@type"), "com.apple.InterfaceBuilder3.Cocoa.XIB");
  EXPECT_EQ(value("/document/@version"), "3.0");
  EXPECT_EQ(value("/document/dependencies/deployment/@version"), "1070");
  EXPECT_EQ(count("/document/@useAutolayout"), 0u);
  EXPECT_EQ(count("//constraints"), 0u);
}

TEST_F(InterfaceFile, EveryIdentifierIsUniqueAndEveryReferenceExists) {
  const Names list = values("//@id");
  const std::set<std::string> ids(list.begin(), list.end());
  EXPECT_EQ(ids.size(), list.size());
  for (const char *path : {"//@destination", "//@target"}) {
    for (const std::string &reference : values(path))
      EXPECT_EQ(ids.count(reference), 1u) << reference;
  }
}

TEST_F(InterfaceFile, IsOwnedByTheControllerAndConnectsItsNineteenOutlets) {
  EXPECT_EQ(value("//customObject[@id='-2']/@customClass"), "MorvaADPSettingsCollectorRV2");
  std::set<std::string> expected = {"ImagePositionPrintView", "chkEnableImagePositionAdjust",
                                    "btnRestore2Defalut"};
  for (const std::string &setting : kSettings) {
    for (const char *item : {"Text", "Stepper", "Label", "RangeLabel"})
      expected.insert(setting + item);
  }
  const Names outlets = values("//customObject[@id='-2']/connections/outlet/@property");
  EXPECT_EQ(outlets.size(), 19u);
  EXPECT_EQ(std::set<std::string>(outlets.begin(), outlets.end()), expected);
  const Names destinations = values("//customObject[@id='-2']/connections/outlet/@destination");
  EXPECT_EQ(std::set<std::string>(destinations.begin(), destinations.end()).size(), 19u);
  for (const std::string &outlet : outlets)
    EXPECT_NE(class_getInstanceVariable([MorvaADPSettingsCollectorRV2 class], outlet.c_str()),
              nullptr)
        << outlet;
}

// Interface Builder reads them from the header.
TEST_F(InterfaceFile, OutletsAndActionsAreMarkedAsSuchInTheControllersHeader) {
  const std::string header = fileBytes(IMAGEPOSITION_CONTROLLER_HEADER);
  for (const std::string &outlet : values("//customObject[@id='-2']/connections/outlet/@property"))
    EXPECT_TRUE(std::regex_search(header, std::regex("IBOutlet \\w+ \\*" + outlet + ";")))
        << outlet;
  for (const std::string &action : values("//action/@selector"))
    EXPECT_THAT(header, testing::HasSubstr("- (IBAction)" + action + "(id)sender;"));
}

TEST_F(InterfaceFile, HasOneTopLevelViewWhichIsThePanels) {
  EXPECT_EQ(values("/document/objects/*[not(self::customObject)]/@id"),
            Names{idOf("ImagePositionPrintView")});
  EXPECT_EQ(value("/document/objects/customView/@id"), idOf("ImagePositionPrintView"));
}

// A control that is not connected would show an untranslated string.
TEST_F(InterfaceFile, HoldsTheEighteenConnectedControlsAndNothingElse) {
  const Names controls = values("//subviews/*/@id");
  EXPECT_EQ(controls.size(), 18u);
  const Names connected = values("//customObject[@id='-2']/connections/outlet/@destination");
  for (const std::string &control : controls)
    EXPECT_THAT(connected, testing::Contains(control));
  EXPECT_EQ(count("//@toolTip"), 0u);
}

TEST_F(InterfaceFile, ItemsAreOfTheClassesAndElementsThatTheControllerExpects) {
  const std::map<std::string, std::pair<std::string, std::string>> expected = {
      {"Text", {"textField", "MorvaADPIntegerTextFieldItemRV2"}},
      {"Stepper", {"stepper", "MorvaADPStepperItemRV2"}},
      {"Label", {"textField", "MorvaADPLabelItemRV2"}},
      {"RangeLabel", {"textField", "MorvaADPLabelItemRV2"}}};
  for (const std::string &setting : kSettings) {
    for (const auto &[item, type] : expected) {
      EXPECT_EQ(count("//" + type.first + "[@id='" + idOf(setting + item) + "']"), 1u);
      EXPECT_EQ(value(element(setting + item) + "/@customClass"), type.second);
      EXPECT_NE(NSClassFromString(nsString(type.second)), Nil);
    }
  }
  for (const char *button : {"chkEnableImagePositionAdjust", "btnRestore2Defalut"}) {
    EXPECT_EQ(count("//button[@id='" + idOf(button) + "']"), 1u);
    EXPECT_EQ(count(element(button) + "/@customClass"), 0u);
  }
  EXPECT_EQ(value(element("chkEnableImagePositionAdjust") + "/buttonCell/@type"), "check");
}

TEST_F(InterfaceFile, OnlyRangeLabelsHaveTheTagOfARangeLabel) {
  for (const std::string &setting : kSettings) {
    EXPECT_EQ(value(element(setting + "RangeLabel") + "/@tag"), "1");
    for (const char *item : {"Text", "Stepper", "Label"})
      EXPECT_EQ(count(element(setting + item) + "/@tag"), 0u) << setting << item;
  }
}

TEST_F(InterfaceFile, ControlsSendTheirActionsToTheController) {
  for (const std::string &setting : kSettings) {
    expectAction(setting + "Text", "UIItemActionListener:");
    expectAction(setting + "Stepper", "UIItemActionListener:");
  }
  expectAction("chkEnableImagePositionAdjust", "clickEnableImgPositionAdjust:");
  expectAction("btnRestore2Defalut", "clickbtnReasto2Default:");
  EXPECT_EQ(count("//action"), 10u);
}

TEST_F(InterfaceFile, EntryFieldsAreEditableAndSendTheirActionWhenEditingEnds) {
  for (const std::string &setting : kSettings) {
    const std::string cell = element(setting + "Text") + "/textFieldCell";
    EXPECT_EQ(value(cell + "/@editable"), "YES");
    EXPECT_EQ(value(cell + "/@selectable"), "YES");
    EXPECT_EQ(value(cell + "/@sendsActionOnEndEditing"), "YES");
    EXPECT_EQ(value(cell + "/@alignment"), "right");
  }
}

// GNUstep's text fields are editable by default.
TEST_F(InterfaceFile, LabelsCanBeNeitherEditedNorSelected) {
  for (const std::string &setting : kSettings) {
    for (const char *label : {"Label", "RangeLabel"}) {
      const std::string cell = element(setting + label) + "/textFieldCell";
      EXPECT_EQ(value(cell + "/@editable"), "NO") << setting << label;
      EXPECT_EQ(value(cell + "/@selectable"), "NO") << setting << label;
    }
  }
}

// A stepper counts clicks from 0; at a limit it would lose them.
TEST_F(InterfaceFile, SteppersCountByOneInBothDirectionsWithoutLimit) {
  for (const std::string &setting : kSettings) {
    const std::string cell = element(setting + "Stepper") + "/stepperCell";
    EXPECT_LE(std::stoi(value(cell + "/@minValue")), -100000);
    EXPECT_GE(std::stoi(value(cell + "/@maxValue")), 100000);
    EXPECT_EQ(value(cell + "/@increment"), "1");
    EXPECT_EQ(value(cell + "/@valueWraps"), "NO");
    EXPECT_EQ(value(cell + "/@autorepeat"), "YES");
    EXPECT_EQ(count(cell + "/@doubleValue"), 0u);
  }
}

TEST_F(InterfaceFile, TabGoesThroughAllControlsInReadingOrder) {
  Names expected;
  for (const char *setting : {"FrontLRM", "FrontTBM"})
    expected.insert(expected.end(),
                    {setting + std::string("Text"), setting + std::string("Stepper")});
  expected.push_back("chkEnableImagePositionAdjust");
  for (const char *setting : {"BackLRM", "BackTBM"})
    expected.insert(expected.end(),
                    {setting + std::string("Text"), setting + std::string("Stepper")});
  expected.push_back("btnRestore2Defalut");
  for (std::size_t i = 0; i < expected.size(); ++i)
    EXPECT_EQ(value(element(expected[i]) + "/connections/outlet[@property='nextKeyView']"
                                           "/@destination"),
              idOf(expected[(i + 1) % expected.size()]))
        << expected[i];
}

// GNUstep leaves the size of a font without one uninitialized.
TEST_F(InterfaceFile, EveryFontHasAnExplicitSize) {
  EXPECT_GT(count("//font"), 0u);
  EXPECT_EQ(count("//font[not(@size)]"), 0u);
}
