// The layout of the panel and its labels in this process's language: nothing is clipped, nothing
// overlaps, everything is aligned. Measures with the fonts that draw the panel.
#import "PanelFixture.h"
#import "ResourceFiles.h"

#import "Text.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

using namespace imageposition::test;

namespace {

// The widest and the narrowest numbers of any printer.
const std::vector<std::string> kRangeNames = {"Wide", "Narrow"};

struct State {
  std::string rangeName;
  bool backSideOn;
};

void PrintTo(const State &state, std::ostream *out) {
  *out << state.rangeName << " range, back side " << (state.backSideOn ? "on" : "off");
}

std::string testName(const testing::TestParamInfo<State> &state) {
  return state.param.rangeName + (state.param.backSideOn ? "RangeBackSideOn" : "RangeBackSideOff");
}

class InterfaceLayout : public PanelFixture, public testing::WithParamInterface<State> {
protected:
  void SetUp() override {
    show({"*MVDuplexShiftRange: \"" + GetParam().rangeName + "\""}, GetParam().backSideOn);
  }

  static std::vector<std::string> outlets() {
    std::vector<std::string> names = {"chkEnableImagePositionAdjust", "btnRestore2Defalut"};
    for (const std::string &setting : kSettingNames) {
      for (const char *item : {"Text", "Stepper", "Label", "RangeLabel"})
        names.push_back(setting + item);
    }
    return names;
  }

  NSRect frame(const std::string &outlet) const { return [control(outlet) frame]; }

  // The size of the text in its font, compared with the space that the cell has for it.
  void expectFits(NSTextField *label, NSString *text) {
    NSDictionary *attributes = [NSDictionary dictionaryWithObject:[label font]
                                                           forKey:NSFontAttributeName];
    const NSSize size = [text sizeWithAttributes:attributes];
    const NSSize room = [[label cell] drawingRectForBounds:[label bounds]].size;
    EXPECT_LE(std::ceil(size.width), room.width) << cxxString(text);
    EXPECT_LE(std::ceil(size.height), room.height) << cxxString(text);
  }

  void expectFits(NSButton *button) {
    const NSSize size = [[button cell] cellSize];
    EXPECT_LE(std::ceil(size.width), NSWidth([button frame])) << cxxString([button title]);
    EXPECT_LE(std::ceil(size.height), NSHeight([button frame])) << cxxString([button title]);
  }

  void expectDrawable(NSString *text, NSFont *font) {
    for (NSUInteger i = 0; i < [text length]; ++i)
      EXPECT_TRUE([[font coveredCharacterSet] characterIsMember:[text characterAtIndex:i]])
          << cxxString([font fontName]) << " has no character " << i << " of " << cxxString(text)
          << "; the tests measure with DejaVu Sans and WenQuanYi Micro Hei";
  }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(States, InterfaceLayout,
                         testing::Values(State{"Wide", false}, State{"Wide", true},
                                         State{"Narrow", false}, State{"Narrow", true}),
                         testName);

TEST_P(InterfaceLayout, UsesTheUsersLanguage) {
  const auto expected = localizedStrings(language());
  const bool on = GetParam().backSideOn;
  EXPECT_EQ(localized("PluginName"), expected.at("PluginName"));
  EXPECT_EQ(shown(nameLabel("FrontLRM")), expected.at(on ? "FrontLRM" : "LRM"));
  EXPECT_EQ(shown(nameLabel("FrontTBM")), expected.at(on ? "FrontTBM" : "TBM"));
  EXPECT_EQ(shown(nameLabel("BackLRM")), expected.at("BackLRM"));
  EXPECT_EQ(shown(nameLabel("BackTBM")), expected.at("BackTBM"));
  EXPECT_EQ(cxxString([control("chkEnableImagePositionAdjust") title]),
            expected.at("EnableImgPstAdj"));
  EXPECT_EQ(cxxString([control("btnRestore2Defalut") title]), expected.at("RestoreDefaults"));
}

TEST_P(InterfaceLayout, EveryCharacterIsInTheFontThatDrawsIt) {
  for (const std::string &setting : kSettingNames) {
    for (NSTextField *label : {nameLabel(setting), rangeLabel(setting)})
      expectDrawable([label stringValue], [label font]);
  }
  for (const char *button : {"chkEnableImagePositionAdjust", "btnRestore2Defalut"})
    expectDrawable([control(button) title], [control(button) font]);
}

TEST_P(InterfaceLayout, NoTextIsClipped) {
  for (const std::string &setting : kSettingNames) {
    for (NSTextField *label : {nameLabel(setting), rangeLabel(setting)})
      expectFits(label, [label stringValue]);
    // Room for the insertion point beside the widest number.
    expectFits(field(setting), @"-2000");
  }
  expectFits(control("chkEnableImagePositionAdjust"));
  expectFits(control("btnRestore2Defalut"));
}

TEST_P(InterfaceLayout, EverythingIsWithinTheView) {
  for (const std::string &outlet : outlets())
    EXPECT_TRUE(NSContainsRect([view() bounds], frame(outlet))) << outlet;
}

TEST_P(InterfaceLayout, NothingOverlaps) {
  const std::vector<std::string> all = outlets();
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (std::size_t j = i + 1; j < all.size(); ++j)
      EXPECT_FALSE(NSIntersectsRect(frame(all[i]), frame(all[j]))) << all[i] << " " << all[j];
  }
}

TEST_P(InterfaceLayout, TheItemsOfAnOffsetAreInOneRow) {
  for (const std::string &setting : kSettingNames) {
    const NSRect entry = frame(setting + "Text");
    for (const char *item : {"Label", "RangeLabel", "Stepper"})
      EXPECT_NEAR(NSMidY(frame(setting + item)), NSMidY(entry), 1) << setting << item;
    EXPECT_EQ(NSMinY(frame(setting + "Label")), NSMinY(frame(setting + "RangeLabel")));
    EXPECT_LT(NSMaxX(frame(setting + "Label")), NSMinX(entry));
    EXPECT_LE(NSMaxX(entry), NSMinX(frame(setting + "Stepper")));
    EXPECT_LT(NSMaxX(frame(setting + "Stepper")), NSMinX(frame(setting + "RangeLabel")));
  }
}

TEST_P(InterfaceLayout, TheRowsAreAlignedInColumnsAtEqualDistances) {
  for (const char *item : {"Text", "Stepper", "Label", "RangeLabel"}) {
    const NSRect first = frame("FrontLRM" + std::string(item));
    for (const std::string &setting : kSettingNames) {
      EXPECT_EQ(NSMinX(frame(setting + item)), NSMinX(first)) << setting << item;
      EXPECT_EQ(NSWidth(frame(setting + item)), NSWidth(first)) << setting << item;
      EXPECT_EQ(NSHeight(frame(setting + item)), NSHeight(first)) << setting << item;
    }
    EXPECT_EQ(NSMinY(first) - NSMinY(frame("FrontTBM" + std::string(item))),
              NSMinY(frame("BackLRM" + std::string(item))) -
                  NSMinY(frame("BackTBM" + std::string(item))));
  }
}

TEST_P(InterfaceLayout, ReadsFromTheFrontSideOverTheCheckboxToTheBackSideAndTheButton) {
  const std::vector<std::string> downwards = {
      "FrontLRMText", "FrontTBMText", "chkEnableImagePositionAdjust",
      "BackLRMText",  "BackTBMText",  "btnRestore2Defalut"};
  for (std::size_t i = 1; i < downwards.size(); ++i)
    EXPECT_GT(NSMinY(frame(downwards[i - 1])), NSMaxY(frame(downwards[i]))) << downwards[i];
}

TEST_P(InterfaceLayout, TabGoesFromEntryFieldToEntryField) {
  EXPECT_EQ([field("FrontLRM") nextValidKeyView], field("FrontTBM"));
  EXPECT_EQ([field("FrontTBM") nextValidKeyView], control("chkEnableImagePositionAdjust"));
  NSView *afterCheckbox = [control("chkEnableImagePositionAdjust") nextValidKeyView];
  if (GetParam().backSideOn) {
    EXPECT_EQ(afterCheckbox, field("BackLRM"));
    EXPECT_EQ([field("BackLRM") nextValidKeyView], field("BackTBM"));
    EXPECT_EQ([field("BackTBM") nextValidKeyView], control("btnRestore2Defalut"));
  } else {
    EXPECT_EQ(afterCheckbox, control("btnRestore2Defalut"));
  }
  EXPECT_EQ([control("btnRestore2Defalut") nextValidKeyView], field("FrontLRM"));
}

TEST_P(InterfaceLayout, LabelsAcceptNoKeyboardFocus) {
  for (const std::string &setting : kSettingNames) {
    for (NSTextField *label : {nameLabel(setting), rangeLabel(setting)})
      EXPECT_FALSE([label canBecomeKeyView]) << setting;
  }
}
