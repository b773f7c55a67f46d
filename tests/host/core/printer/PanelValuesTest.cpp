#include "PanelValues.hpp"

#include "PrinterDescription.hpp"
#include "SharedKeys.h"
#include "TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <regex>

namespace {

using namespace imageposition;
using namespace imageposition::test;

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

TEST_F(PanelSettings, BeginWithTheNumbersOfThePrintersDescription) {
  const std::vector<std::string> keywords = {IPA_KEY_FRONT_LEFT_RIGHT, "MVAdjustDuplexPosition"};
  EXPECT_EQ(panelDefaults(printer, keywords).optionCount(), 0);
  const TemporaryFolder folder;
  const std::string shifted = std::regex_replace(
      contentOf(std::string(IMAGEPOSITION_SAMPLES) + "/duplex-shift.ppd"),
      std::regex(R"(\*DefaultLeftRightMargin: 0)"), "*DefaultLeftRightMargin: Custom.5");
  const auto other = PrinterDescription::fromFile(folder.write("shifted.ppd", shifted));
  const PrintSettingsStore defaults = panelDefaults(other, keywords);
  ASSERT_EQ(defaults.optionCount(), 1);
  EXPECT_STREQ(defaults.get(IPA_KEY_FRONT_LEFT_RIGHT), "5");
}

} // namespace
