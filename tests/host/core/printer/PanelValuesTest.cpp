#include "PanelValues.hpp"

#include "PrinterDescription.hpp"
#include "SharedKeys.h"

#include <gtest/gtest.h>

namespace {

using namespace imageposition;

TEST(PanelValues, ABooleanIsReadAsLpReadsIt) {
  const struct {
    const char *value;
    std::optional<bool> meaning;
  } rows[] = {{"true", true},          {"True", true},       {"TRUE", true},
              {"yes", true},           {"On", true},         {"1", true},
              {"false", false},        {"False", false},     {"NO", false},
              {"off", false},          {"0", false},         {"", std::nullopt},
              {"maybe", std::nullopt}, {"10", std::nullopt}, {"true ", std::nullopt}};
  for (const auto &row : rows)
    EXPECT_EQ(readBoolean(row.value), row.meaning) << row.value;
}

class PanelSettings : public testing::Test {
protected:
  /// The flag after the conversion.
  std::string flagFrom(const std::string &value, bool locked = false) {
    PrintSettingsStore settings;
    settings.set(IPA_KEY_ENABLE, value, locked);
    makePanelValues(printer.ppd(), {IPA_KEY_FRONT_LEFT_RIGHT}, settings);
    return settings.get(IPA_KEY_ENABLE);
  }

  PrinterDescription printer =
      PrinterDescription::fromFile(std::string(IMAGEPOSITION_SAMPLES) + "/duplex-shift.ppd");
};

TEST_F(PanelSettings, HaveTheFlagAsThePanelWritesIt) {
  EXPECT_EQ(flagFrom("true"), "True");
  EXPECT_EQ(flagFrom("0"), "False");
  EXPECT_EQ(flagFrom("maybe"), "maybe");
}

TEST_F(PanelSettings, KeepALockedFlag) { EXPECT_EQ(flagFrom("true", true), "true"); }

TEST_F(PanelSettings, GetNoFlagThatTheyDoNotHave) {
  PrintSettingsStore settings;
  makePanelValues(printer.ppd(), {}, settings);
  EXPECT_EQ(settings.optionCount(), 0);
}

TEST_F(PanelSettings, HavePlainNumbersForThePanelsOptionsAlone) {
  PrintSettingsStore settings;
  settings.set(IPA_KEY_FRONT_LEFT_RIGHT, "Custom.7");
  settings.set(IPA_KEY_FRONT_TOP_BOTTOM, "Custom.8");
  makePanelValues(printer.ppd(), {IPA_KEY_FRONT_LEFT_RIGHT}, settings);
  EXPECT_STREQ(settings.get(IPA_KEY_FRONT_LEFT_RIGHT), "7");
  EXPECT_STREQ(settings.get(IPA_KEY_FRONT_TOP_BOTTOM), "Custom.8");
}

} // namespace
