// The effects of the shipped definitions and rules for several PPDs, as the user sees them.
#import "PanelFixture.h"

#include <gmock/gmock.h>

using namespace imageposition::test;
using testing::HasSubstr;

namespace {

class PrinterData : public PanelFixture {
protected:
  void expectRange(const std::string &min, const std::string &max) {
    for (const std::string &setting : kSettingNames) {
      EXPECT_THAT(shown(rangeLabel(setting)), HasSubstr(min)) << setting;
      EXPECT_THAT(shown(rangeLabel(setting)), testing::ContainsRegex("[^0-9-]" + max + "[^0-9]"))
          << setting;
    }
  }

  // Every value in the range label can be typed; one outside becomes the nearest bound.
  void expectEntryUpTo(int max) {
    for (const std::string &setting : kSettingNames) {
      for (int sign : {1, -1}) {
        enter(setting, std::to_string(sign * max));
        EXPECT_EQ(shown(field(setting)), std::to_string(sign * max)) << setting;
        enter(setting, std::to_string(sign * (max + 1)));
        EXPECT_EQ(shown(field(setting)), std::to_string(sign * max)) << setting;
        enter(setting, sign > 0 ? "99999" : "-99999");
        EXPECT_EQ(shown(field(setting)), std::to_string(sign * max)) << setting;
      }
    }
  }
};

} // namespace

TEST_F(PrinterData, OffersTenMillimetresEitherWay) {
  show({}, true);
  expectRange("-100", "100");
  expectEntryUpTo(100);
}

TEST_F(PrinterData, ANarrowPrinterOffersFiveMillimetres) {
  show({"*MVDuplexShiftRange: \"Narrow\""}, true);
  expectRange("-50", "50");
  expectEntryUpTo(50);
}

TEST_F(PrinterData, AWidePrinterOffersTwentyMillimetresInTheEntryFieldsToo) {
  show({"*MVDuplexShiftRange: \"Wide\""}, true);
  expectRange("-200", "200");
  expectEntryUpTo(200);
}

TEST_F(PrinterData, AnUnknownRangeNameChangesNothing) {
  show({"*MVDuplexShiftRange: \"narrow\""}, true);
  expectRange("-100", "100");
}

TEST_F(PrinterData, AllOffsetsStartAtZero) {
  show();
  for (const std::string &setting : kSettingNames)
    EXPECT_EQ(shown(field(setting)), "0");
}

TEST_F(PrinterData, TheBackSideHasThePrintersDefaultUntilTheJobHasAValue) {
  show({"*MVBackLeftRightDefault: \"5\"", "*MVBackTopBottomDefault: \"-10\""}, true);
  EXPECT_EQ(shown(field("FrontLRM")), "0");
  EXPECT_EQ(shown(field("FrontTBM")), "0");
  EXPECT_EQ(shown(field("BackLRM")), "5");
  EXPECT_EQ(shown(field("BackTBM")), "-10");
}

TEST_F(PrinterData, AValueInTheJobOverridesThePrintersDefault) {
  settings_.put("BackLeftRightMargin", "7");
  show({"*MVBackLeftRightDefault: \"5\""}, true);
  EXPECT_EQ(shown(field("BackLRM")), "7");
}
