#include "ValueCheck.hpp"

#include "OptionsPpd.hpp"
#include "PrinterOptions.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace imageposition;
using imageposition::test::optionsPrinter;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::Optional;

class ValueCheck : public testing::Test {
protected:
  std::optional<std::string> accepted(const char *keyword, const std::string &value) const {
    return acceptedValue(printer.ppd(), *ppdFindOption(printer.ppd(), keyword), value);
  }
  FittedSetting fitted(const std::string &name, const std::string &value,
                       bool isKept = false) const {
    return fitSetting(printer.ppd(), name, value, isKept);
  }

  PrinterDescription printer = optionsPrinter();
};

TEST_F(ValueCheck, AcceptsAChoiceInAnyCaseAndReturnsThePpdsSpelling) {
  EXPECT_THAT(accepted("Duplex", "duplextumble"), Optional(std::string("DuplexTumble")));
  EXPECT_FALSE(accepted("Duplex", "Tumble"));
  EXPECT_FALSE(accepted("Duplex", ""));
  EXPECT_FALSE(accepted("Duplex", "Custom.1"));
}

TEST_F(ValueCheck, AcceptsACustomValueUnchanged) {
  for (const char *value : {"Custom.-50", "50", "0"})
    EXPECT_THAT(accepted("LeftRightMargin", value), Optional(std::string(value)));
  for (const char *value : {"Custom.51", "51", "7.5", "Custom.", "Custom", "", "much"})
    EXPECT_FALSE(accepted("LeftRightMargin", value)) << value;
}

/// Entered values, presets and choices follow the same rules.
TEST_F(ValueCheck, AcceptsEveryValueThatCanBeChosen) {
  PrintSettingsStore job;
  PrinterOptions options(printer, job);
  for (const char *keyword : {"LeftRightMargin", "Watermark", "PageSize", "Duplex"})
    for (const char *value : {"Custom.50", "Custom.51", "50", "51", "None", "A5", "Custom.300x400",
                              "Custom.30x40", "Custom.Mine", "Mine", "Custom", ""}) {
      SCOPED_TRACE(std::string(keyword) + "=" + value);
      const bool isAccepted = accepted(keyword, value).has_value();
      EXPECT_EQ(options.choose(keyword, value), isAccepted);
      EXPECT_EQ(fitted(keyword, value).change.empty(), isAccepted);
    }
}

TEST_F(ValueCheck, NeitherChangesNorShowsAPinThatIsOutOfRange) {
  const PrinterDescription locked = optionsPrinter(R"ppd(*PPD-Adobe: "4.3"
*OpenUI *UserPin/PIN: PickOne
*DefaultUserPin: None
*UserPin None/None: ""
*CloseUI: *UserPin
*CustomUserPin True: "pop"
*ParamCustomUserPin Pin/PIN: 1 int 0 9999
)ppd");
  const FittedSetting pin = fitSetting(locked.ppd(), "UserPin", "Custom.12345", false);
  EXPECT_FALSE(pin.value);
  EXPECT_THAT(pin.change, AllOf(HasSubstr("PIN"), Not(HasSubstr("12345"))));
}

TEST_F(ValueCheck, KeepsNamesOfCupsAndPanelsThatThePpdLacks) {
  for (const char *name : {"copies", "com.example.OwnBack"})
    EXPECT_THAT(fitted(name, "1").value, Optional(std::string("1"))) << name;
  EXPECT_FALSE(fitted("Saddle", "On").value);
  EXPECT_THAT(fitted("Saddle", "On").change, HasSubstr("no such option"));
  EXPECT_THAT(fitted("Saddle", "On", true).value, Optional(std::string("On")));
}

TEST(WholeNumber, OutOfRangeOrInAnotherFormIsExplained) {
  const struct {
    const char *typed;
    const char *problem;
  } rows[] = {{"-5", ""},
              {"+5", ""},
              {" 5", ""},
              {"-6", "Shift is out of range. Enter -5 to 5."},
              {"99999999999", "Shift is out of range. Enter -5 to 5."},
              {"1.5", "Shift must be a whole number. Enter -5 to 5."},
              {"5.0", "Shift must be a whole number. Enter -5 to 5."},
              {"", "Shift: \"\" is not a number."},
              {"--3", "Shift: \"--3\" is not a number."},
              {"5-", "Shift: \"5-\" is not a number."}};
  for (const auto &row : rows)
    EXPECT_EQ(wholeNumberProblem("Shift", row.typed, -5, 5), row.problem) << row.typed;
}

TEST(WholeNumber, OfAnOptionIsCheckedOnlyIfThePrinterHasARange) {
  const PrinterDescription printer =
      PrinterDescription::fromFile(std::string(IMAGEPOSITION_SAMPLES) + "/duplex-shift.ppd");
  for (const char *value : {"0", "-7", "Custom.100"})
    EXPECT_EQ(wholeNumberProblem(printer.ppd(), "LeftRightMargin", value), "") << value;
  for (const char *value : {"101", "Custom.-101", "abc", "Custom.x", ""})
    EXPECT_NE(wholeNumberProblem(printer.ppd(), "LeftRightMargin", value), "") << value;
  EXPECT_EQ(wholeNumberProblem(printer.ppd(), "Duplex", "abc"), "");
  EXPECT_EQ(wholeNumberProblem(printer.ppd(), "Unknown", "abc"), "");
}

} // namespace
