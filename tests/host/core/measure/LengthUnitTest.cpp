#include "LengthUnit.hpp"

#include <gtest/gtest.h>

#include <map>

namespace {

using namespace imageposition;

TEST(LengthUnit, ConvertsWithoutRounding) {
  const Length a4{210, LengthUnit::Millimetre};
  EXPECT_NEAR(toPoints(a4).count, 595.2756, 0.0001);
  EXPECT_NEAR(convert(a4, LengthUnit::Inch).number, 8.267717, 0.000001);
  for (const LengthUnit unit : {LengthUnit::Millimetre, LengthUnit::Inch, LengthUnit::Point})
    EXPECT_NEAR(convert(convert(a4, unit), LengthUnit::Millimetre).number, 210, 1e-9);
}

TEST(LengthUnit, ParsesTheLengthsThatCupsParses) {
  const struct {
    const char *text;
    double points;
  } rows[] = {{"72", 72},    {"72pt", 72},   {"25.4mm", 72}, {"2.54cm", 72}, {"0.0254m", 72},
              {"1in", 72},   {"1 IN", 72},   {"0.5ft", 432}, {"25,4mm", 72}, {"-1in", -72},
              {" 1in ", 72}, {".5in", 36.0}, {"5.in", 360}};
  for (const auto &row : rows) {
    const auto length = readLength(row.text);
    ASSERT_TRUE(length) << row.text;
    EXPECT_NEAR(toPoints(*length).count, row.points, 1e-9) << row.text;
  }
  for (const char *text :
       {"", "mm", "10 parsecs", "1in2", "1x2", "1.2.3mm", "- 5", "+-5", "++5", "10mmm"})
    EXPECT_FALSE(readLength(text)) << text;
  EXPECT_EQ(readLength("10", LengthUnit::Inch)->unit, LengthUnit::Inch);
  EXPECT_FALSE(readLength(std::string(308, '9') + "m")) << "infinite in millimetres";
  EXPECT_FALSE(readLength(std::string(400, '9')));
  EXPECT_FALSE(readLength(std::string("1.pt\0", 5))) << "no truncation at the null";
}

TEST(LengthUnit, FormatsRoundedNumbers) {
  EXPECT_EQ(writeLength({100, LengthUnit::Millimetre}), "100mm");
  EXPECT_EQ(writeLength({100.126, LengthUnit::Millimetre}), "100.13mm");
  EXPECT_EQ(writeLength({4.12345, LengthUnit::Inch}), "4.123in");
  EXPECT_EQ(writeLength({0.005, LengthUnit::Point}), "0.01");
  EXPECT_EQ(writeLength({1e300, LengthUnit::Point}).find_first_not_of("0123456789"),
            std::string::npos);
  EXPECT_EQ(writeLength({-0.001, LengthUnit::Millimetre}), "0mm");
  EXPECT_EQ(plainNumber(1000, 0), "1000");
}

TEST(LengthUnit, DefaultsToTheUnitOfTheCountry) {
  const auto usual = [](std::map<std::string, std::string> environment) {
    return usualUnit([=](const char *name) -> const char * {
      const auto found = environment.find(name);
      return found == environment.end() ? nullptr : found->second.c_str();
    });
  };
  EXPECT_EQ(usual({}), LengthUnit::Millimetre);
  EXPECT_EQ(usual({{"LANG", "en_US.UTF-8"}}), LengthUnit::Inch);
  EXPECT_EQ(usual({{"LANG", "en_GB.UTF-8"}}), LengthUnit::Millimetre);
  EXPECT_EQ(usual({{"LANG", "C"}}), LengthUnit::Millimetre);
  EXPECT_EQ(usual({{"LANG", "en_US.UTF-8"}, {"LC_MEASUREMENT", "de_DE"}}), LengthUnit::Millimetre);
  EXPECT_EQ(usual({{"LC_ALL", ""}, {"LANG", "en_US"}}), LengthUnit::Inch);
}

} // namespace
