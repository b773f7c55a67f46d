#include "ValueCheck.hpp"

#include "OptionsPpd.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace {

using namespace imageposition;
using imageposition::test::optionsPrinter;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Kind = CustomParameter::Kind;

class CustomValue : public testing::Test {
protected:
  CustomOption option(const char *keyword) {
    ppdLocalize(printer.ppd());
    const auto option = customOption(printer.ppd(), keyword);
    EXPECT_TRUE(option) << keyword;
    return option.value_or(CustomOption{keyword, false, {CustomParameter()}});
  }
  CheckedEntry check(const char *keyword, const std::string &typed,
                     LengthUnit unit = LengthUnit::Millimetre, std::size_t parameter = 0) {
    return checkEntry(option(keyword).parameters.at(parameter), typed, unit);
  }

  PrinterDescription printer =
      PrinterDescription::fromFile(std::string(IMAGEPOSITION_SAMPLES) + "/finisher.ppd");
};

TEST_F(CustomValue, HasParametersOfEachTypeWithTheirRanges) {
  const struct {
    const char *keyword;
    std::size_t at;
    const char *text;
    Kind kind;
    double minimum, maximum;
  } rows[] = {{"PageSize", 0, "Width", Kind::Length, 200, 700},
              {"PageSize", 1, "Height", Kind::Length, 300, 1200},
              {"Holes", 0, "Number of Holes", Kind::Integer, 1, 12},
              {"Trim", 0, "Width", Kind::Length, 10, 72},
              {"Gloss", 0, "Amount", Kind::Real, 0.5, 2.5},
              {"Gloss", 1, "Light", Kind::Real, 0, 1},
              {"Gloss", 2, "Dark", Kind::Real, 0, 1}, // the PPD has 1 to 0
              {"Stamp", 0, "Words", Kind::Text, 1, 20},
              {"Secret", 0, "User", Kind::Text, 1, 16},
              {"Secret", 1, "Password", Kind::Password, 4, 16},
              {"Secret", 2, "Code", Kind::Passcode, 4, 4}};
  for (const auto &row : rows) {
    SCOPED_TRACE(std::string(row.keyword) + " " + row.text);
    const CustomParameter parameter = option(row.keyword).parameters.at(row.at);
    EXPECT_EQ(parameter.text, row.text);
    EXPECT_EQ(parameter.kind, row.kind);
    EXPECT_EQ(parameter.minimum, row.minimum);
    EXPECT_EQ(parameter.maximum, row.maximum);
  }
  EXPECT_EQ(option("PageSize").parameters.size(), 2u); // CUPS chooses the rest itself
}

TEST_F(CustomValue, RequiresAnOptionWithParameters) {
  EXPECT_FALSE(customOption(printer.ppd(), "Duplex"));
  EXPECT_FALSE(customOption(printer.ppd(), "Unknown"));
  std::string text = imageposition::test::kOptionsPpd;
  const std::string parameter = "*ParamCustomWatermark Words/Words: 1 string 1 20\n";
  text.erase(text.find(parameter), parameter.size());
  EXPECT_FALSE(customOption(optionsPrinter(text).ppd(), "Watermark"));
}

TEST_F(CustomValue, IsWrittenAsCupsAcceptsItAndReadBack) {
  const struct {
    const char *keyword;
    CustomEntries entries;
    const char *value;
  } rows[] = {
      {"PageSize", {"100mm", "200.5mm"}, "Custom.100x200.5mm"},
      {"PageSize", {"4in", "6.25in"}, "Custom.4x6.25in"},
      {"PageSize", {"300", "400"}, "Custom.300x400"},
      {"Holes", {"3"}, "Custom.3"},
      {"Trim", {"10.5mm"}, "Custom.10.5mm"},
      {"Gloss", {"0.5", "0", "1"}, "{Amount=0.5 Light=0 Dark=1}"},
      {"Stamp", {"It's \"mine\" \\ {x}"}, "Custom.It's \"mine\" \\ {x}"},
      {"Stamp", {"Größe 文"}, "Custom.Größe 文"},
      {"Secret", {"a b", "x\"y'z\\", "1234"}, R"({User="a b" Password="x\"y'z\\" Code=1234})"}};
  for (const auto &row : rows) {
    EXPECT_EQ(writeCustomValue(option(row.keyword), row.entries), row.value);
    const auto read = readCustomValue(option(row.keyword), row.value);
    ASSERT_TRUE(read) << row.value;
    EXPECT_EQ(*read, row.entries) << row.value;
  }
  EXPECT_EQ(writeCustomValue(option("PageSize"), {"100mm", "10in"}), "Custom.283.46x720");
  EXPECT_THAT(*readCustomValue(option("Holes"), "7"), ElementsAre("7")); // some clients send it
  EXPECT_THAT(*readCustomValue(option("Secret"), "{Code=12}"), ElementsAre("", "", "12"));
  EXPECT_THAT(*readCustomValue(option("PageSize"), "Custom.10x20cm"),
              ElementsAre("100mm", "200mm"));
  for (const char *value : {"A4", "Custom.", "Custom.100", "Custom.axb", "Custom.1x2parsecs", "{}"})
    EXPECT_FALSE(readCustomValue(option("PageSize"), value)) << value;
  EXPECT_FALSE(readCustomValue(option("Stamp"), "Draft"));
  EXPECT_FALSE(readCustomValue(option("Trim"), "Custom.10,5mm")); // which CUPS reads as 10 points
  EXPECT_FALSE(readCustomValue(option("Trim"), "Custom.10 mm"));
  EXPECT_FALSE(readCustomValue(option("PageSize"), "Custom.100,5x200mm"));
  EXPECT_FALSE(readCustomValue(option("Gloss"), R"({Amount="0,5" Light=0 Dark=1})"));
}

TEST_F(CustomValue, OfThePageRequiresLimitsInThePpd) {
  std::string text = imageposition::test::kOptionsPpd;
  for (const char *line : {"*MaxMediaWidth: \"700\"\n", "*MaxMediaHeight: \"1000\"\n",
                           "*ParamCustomPageSize Width: 1 points 200 700\n",
                           "*ParamCustomPageSize Height: 2 points 300 1000\n"})
    text.erase(text.find(line), std::string(line).size());
  EXPECT_FALSE(customOption(optionsPrinter(text).ppd(), "PageSize"));
}

TEST_F(CustomValue, OfARealNumberCanBeEitherEndOfItsRange) {
  CustomParameter parameter{"Amount", "Amount", Kind::Real, 0.1F, 0.9F, false};
  for (const char *end : {"0.1", "0.9"})
    EXPECT_EQ(checkEntry(parameter, end, LengthUnit::Point).entry, end);
  EXPECT_THAT(checkEntry(parameter, "0.09999", LengthUnit::Point).problem, HasSubstr("0.1 to 0.9"));
  EXPECT_EQ(checkEntry(parameter, "0.50001", LengthUnit::Point).entry, "0.50001");
}

TEST_F(CustomValue, OfThePageIsCaseSensitiveLikeCups) {
  const auto size = customOption(printer.ppd(), "PageSize");
  ASSERT_TRUE(size);
  EXPECT_TRUE(readCustomValue(*size, "Custom.100x200mm"));
  EXPECT_EQ(ppdPageSize(printer.ppd(), "custom.100x200mm"), nullptr) << "CUPS finds no such size";
  EXPECT_FALSE(readCustomValue(*size, "custom.100x200mm"));
}

/// In "{Amount=1 =2}" CUPS could not find the second.
TEST(CustomValueOfADescription, RequiresANameForEachOfSeveralParameters) {
  const auto ppd = [](const std::string &further) {
    return optionsPrinter(R"ppd(*PPD-Adobe: "4.3"
*OpenUI *Gloss/Gloss: PickOne
*DefaultGloss: Normal
*Gloss Normal/Normal: ""
*CloseUI: *Gloss
*CustomGloss True: "pop"
*ParamCustomGloss /Amount: 1 real 0.5 2.5
)ppd" + further);
  };
  EXPECT_TRUE(customOption(ppd("").ppd(), "Gloss")) << "\"Custom.1\" needs no name";
  EXPECT_FALSE(customOption(ppd("*ParamCustomGloss Light/Light: 2 curve 0 1\n").ppd(), "Gloss"));
}

/// As a floating-point number it would be 9, but CUPS reads 8.
TEST_F(CustomValue, OfAnIntegerMustNotNeedRounding) {
  const CustomOption holes = option("Holes");
  EXPECT_EQ(customValueProblem(holes, "Custom.9.00"), "");
  EXPECT_NE(customValueProblem(holes, "Custom.8.99999999999999999999"), "");
  EXPECT_NE(check("Holes", "8,99999999999999999999").problem, "");
}

TEST_F(CustomValue, IsAcceptedByCups) {
  PrintSettingsStore job;
  job.set("PageSize", writeCustomValue(option("PageSize"), {"100mm", "200mm"}));
  job.set("Trim", writeCustomValue(option("Trim"), {"10mm"}));
  job.set("Secret", writeCustomValue(option("Secret"), {"a b", "x\"y'z\\", "1234"}));
  printer.mark(job);
  const ppd_size_t *const size = ppdPageSize(printer.ppd(), nullptr);
  ASSERT_NE(size, nullptr);
  EXPECT_NEAR(size->width, 283.46, 0.01);
  EXPECT_NEAR(size->length, 566.93, 0.01);
  const auto current = [&](const char *keyword, const char *name) {
    return ppdFindCustomParam(ppdFindCustomOption(printer.ppd(), keyword), name)->current;
  };
  EXPECT_NEAR(current("Trim", "Width").custom_points, 28.35, 0.01);
  EXPECT_STREQ(current("Secret", "User").custom_string, "a b");
  EXPECT_STREQ(current("Secret", "Password").custom_string, "x\"y'z\\");
  EXPECT_STREQ(current("Secret", "Code").custom_string, "1234");
}

TEST_F(CustomValue, IsShownWithoutItsHiddenParts) {
  EXPECT_EQ(customValueText(option("PageSize"), "Custom.100x200mm"), "100 × 200 mm");
  EXPECT_EQ(customValueText(option("PageSize"), "Custom.4x6.5in"), "4 × 6.5 in");
  EXPECT_EQ(customValueText(option("PageSize"), "Custom.300x400"), "300 × 400 pt");
  EXPECT_EQ(customValueText(option("Trim"), "Custom.10.5mm"), "10.5 mm");
  EXPECT_EQ(customValueText(option("Holes"), "Custom.3"), "3");
  EXPECT_EQ(customValueText(option("Gloss"), "{Amount=0.5 Light=0 Dark=1}"),
            "Amount: 0.5, Light: 0, Dark: 1");
  EXPECT_EQ(customValueText(option("Secret"), "{User=me Password=abcd Code=1234}"),
            "User: me, Password: ••••, Code: ••••");
  EXPECT_EQ(customValueText(option("Secret"), "abcd"), "••••");
  EXPECT_EQ(customValueText(option("PageSize"), "Custom.huge"), "Custom.huge");
}

TEST_F(CustomValue, OfANumberMustBeInItsRange) {
  for (const char *typed : {"1", " 12 ", "+7", "3,0"})
    EXPECT_THAT(check("Holes", typed).problem, IsEmpty()) << typed;
  EXPECT_EQ(check("Holes", "3,0").entry, "3");
  for (const char *typed : {"0", "13", "-1", "99999999999999999999"})
    EXPECT_EQ(check("Holes", typed).problem, "Number of Holes is out of range. Enter 1 to 12.");
  EXPECT_THAT(check("Holes", "2.5").problem, HasSubstr("must be a whole number"));
  for (const char *typed : {"", "x", "nan", "inf", "0x5", "1e1", "1,2,3", "3 holes", "--3"})
    EXPECT_THAT(check("Holes", typed).problem, HasSubstr("must be a number")) << typed;
  EXPECT_EQ(check("Gloss", "0,75").entry, "0.75");
  EXPECT_THAT(check("Gloss", "2.5001").problem, HasSubstr("out of range"));
  EXPECT_THAT(check("Gloss", "2.5").problem, IsEmpty());
  EXPECT_THAT(check("Gloss", "0.5", LengthUnit::Point, 2).problem, IsEmpty()); // from 1 to 0
}

TEST_F(CustomValue, OfALengthMustBeInItsRangeInAnyUnit) {
  EXPECT_EQ(check("Trim", "10").entry, "10mm");
  EXPECT_EQ(check("Trim", "10", LengthUnit::Point).entry, "10");
  EXPECT_EQ(check("Trim", "0.5in").entry, "0.5in"); // its unit takes precedence over the field's
  EXPECT_EQ(check("Trim", "1 cm", LengthUnit::Inch).entry, "10mm");
  EXPECT_EQ(check("Trim", "10,12345").entry, "10.12mm"); // rounded
  EXPECT_EQ(rangeText(option("Trim").parameters[0], LengthUnit::Millimetre), "3.53 to 25.4 mm");
  EXPECT_EQ(rangeText(option("Trim").parameters[0], LengthUnit::Inch), "0.139 to 1 in");
  EXPECT_EQ(rangeText(option("Trim").parameters[0], LengthUnit::Point), "10 to 72 pt");
  for (const char *end : {"3.53", "25.4"})
    EXPECT_THAT(check("Trim", end).problem, IsEmpty()) << end;
  EXPECT_THAT(check("Trim", "25.57").problem, IsEmpty()) << "half a point";
  for (const char *beyond : {"3.3", "25.6", "-10"})
    EXPECT_EQ(check("Trim", beyond).problem, "Width is out of range. Enter 3.53 to 25.4 mm.");
  EXPECT_THAT(check("Trim", "10 miles").problem, HasSubstr("must be a number"));
  const std::string digits(308, '9');
  EXPECT_THAT(check("Trim", digits).problem, HasSubstr("out of range"));
  EXPECT_THAT(check("Trim", "-" + digits + "mm").problem, HasSubstr("out of range"));
  EXPECT_THAT(check("Trim", digits + "m").problem, HasSubstr("must be a number"));
}

TEST_F(CustomValue, OfAStringIsLimitedInBytes) {
  EXPECT_THAT(check("Stamp", "a").problem, IsEmpty());
  EXPECT_THAT(check("Stamp", std::string(20, 'a')).problem, IsEmpty());
  EXPECT_THAT(check("Stamp", "").problem, HasSubstr("length of 0. The printer accepts 1 to 20."));
  EXPECT_THAT(check("Stamp", std::string(21, 'a')).problem, HasSubstr("length of 21"));
  EXPECT_THAT(check("Stamp", "文文文文文文").problem, IsEmpty());
  EXPECT_EQ(check("Stamp", "文文文文文文文").problem,
            "Words has a length of 21. The printer accepts 1 to 20, and a letter such as é counts "
            "as two or more.");
  EXPECT_EQ(check("Stamp", "It's \"mine\" {x}").entry, "It's \"mine\" {x}");
  EXPECT_THAT(check("Stamp", "a\nb").problem, HasSubstr("a print job cannot hold"));
  EXPECT_THAT(check("Stamp", "\xFF").problem, HasSubstr("a print job cannot hold"));
  EXPECT_THAT(check("Secret", "a}b").problem, HasSubstr("curly brackets"));
}

TEST_F(CustomValue, OfAPasswordOrPasscodeIsLimitedInLength) {
  const auto password = [&](const char *typed) {
    return check("Secret", typed, LengthUnit::Point, 1).problem;
  };
  const auto code = [&](const char *typed) {
    return check("Secret", typed, LengthUnit::Point, 2).problem;
  };
  EXPECT_THAT(password("abcd"), IsEmpty());
  EXPECT_THAT(password("abcdefghijklmnop"), IsEmpty());
  EXPECT_THAT(password("abc"), HasSubstr("4 to 16"));
  EXPECT_THAT(password("abcdefghijklmnopq"), HasSubstr("4 to 16"));
  EXPECT_THAT(code("0123"), IsEmpty());
  EXPECT_THAT(code("123"), HasSubstr("accepts 4."));
  EXPECT_THAT(code("12345"), HasSubstr("accepts 4."));
  EXPECT_THAT(code("12a4"), HasSubstr("must consist of digits"));
  EXPECT_THAT(password("secret\n").find("secret"), std::string::npos);
}

TEST_F(CustomValue, IsHiddenIfItHasAPassword) {
  PrintSettingsStore job;
  job.set("Stamp", "Custom.words");
  job.set("Secret", "None");
  EXPECT_THAT(hiddenSettings(printer.ppd(), job), IsEmpty());
  for (const char *value : {"{User=me Password=abcd Code=1234}", "Custom.abcd", "abcd"}) {
    job.set("Secret", value);
    EXPECT_THAT(hiddenSettings(printer.ppd(), job), ElementsAre("Secret")) << value;
  }
  EXPECT_THAT(compoundOptions(printer.ppd()), ElementsAre("Gloss", "Secret"));
}

TEST_F(CustomValue, StartsAtTheLowerEndOfItsRange) {
  EXPECT_EQ(initialEntry(option("Trim").parameters[0], LengthUnit::Millimetre), "3.53");
  EXPECT_EQ(initialEntry(option("Holes").parameters[0], LengthUnit::Millimetre), "1");
  EXPECT_EQ(initialEntry(option("Stamp").parameters[0], LengthUnit::Millimetre), "");
}

} // namespace
