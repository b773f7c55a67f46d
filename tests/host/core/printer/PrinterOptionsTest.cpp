#include "PrinterOptions.hpp"

#include "Language.hpp"
#include "OptionsPpd.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using namespace imageposition;
using imageposition::test::optionsPrinter;
using testing::ElementsAre;
using testing::Field;
using testing::StrEq;

class PrinterOptionsTest : public testing::Test {
protected:
  PrinterOption option(const char *keyword) {
    const auto option = options.find(keyword);
    EXPECT_TRUE(option) << keyword;
    return option.value_or(PrinterOption());
  }
  static std::vector<std::string> keywords(const std::vector<OptionGroup> &groups) {
    std::vector<std::string> keywords;
    for (const OptionGroup &group : groups)
      for (const PrinterOption &option : group.options)
        keywords.push_back(group.text + "/" + option.keyword);
    return keywords;
  }

  PrinterDescription printer = optionsPrinter();
  PrintSettingsStore job;
  PrinterOptions options{printer, job};
};

TEST_F(PrinterOptionsTest, EveryOptionIsInItsGroup) {
  EXPECT_THAT(keywords(options.all()),
              ElementsAre("General/PageSize", "General/PageRegion", "Paper and Trays/MediaType",
                          "Paper and Trays/InputSlot", "Finishing/Duplex", "Finishing/Stapler",
                          "Finishing/Fold", "Finishing/LeftRightMargin", "Finishing/Watermark",
                          "What Is Installed/OptionalTray"));
}

TEST_F(PrinterOptionsTest, ThePaneOmitsOptionsThatAreElsewhere) {
  EXPECT_THAT(keywords(options.listed({"pagesize", "Duplex", "OptionalTray"})),
              ElementsAre("Paper and Trays/MediaType", "Paper and Trays/InputSlot",
                          "Finishing/Stapler", "Finishing/Fold", "Finishing/LeftRightMargin",
                          "Finishing/Watermark"));
}

TEST_F(PrinterOptionsTest, OptionsAndChoicesHaveNames) {
  const PrinterOption media = option("MediaType");
  EXPECT_EQ(media.text, "Kind of Paper");
  EXPECT_EQ(media.kind, PrinterOption::Kind::List);
  EXPECT_THAT(media.choices, ElementsAre(Field(&OptionChoice::text, "Plain Paper"),
                                         Field(&OptionChoice::text, "Foil"),
                                         Field(&OptionChoice::text, "Labels")));
  EXPECT_EQ(media.textOf("transparency"), "Foil");
  EXPECT_EQ(media.textOf("Gold"), "Gold");
  EXPECT_EQ(option("Stapler").kind, PrinterOption::Kind::Switch);
  EXPECT_FALSE(options.find("Unknown"));
}

TEST_F(PrinterOptionsTest, ACustomValueIsListedOnlyWhileItIsChosen) {
  EXPECT_TRUE(option("Watermark").takesCustomValue);
  EXPECT_EQ(option("Watermark").choices.size(), 2U);
  job.set("Watermark", "Custom.Mine");
  const PrinterOption watermark = option("Watermark");
  EXPECT_EQ(watermark.chosen, "Custom.Mine");
  EXPECT_EQ(watermark.choices.size(), 3U);
  EXPECT_TRUE(watermark.differsFromDefault());
  EXPECT_TRUE(options.choose("Watermark", "Draft"));
  EXPECT_EQ(option("Watermark").choices.size(), 2U);
}

TEST_F(PrinterOptionsTest, ACustomValueCanBeThePrintersDefault) {
  std::string text = imageposition::test::kOptionsPpd;
  const std::string before = "*DefaultWatermark: None";
  ASSERT_NE(text.find(before), std::string::npos);
  text.replace(text.find(before), before.size(), "*DefaultWatermark: Custom.Ours");
  PrinterDescription other = optionsPrinter(text);
  const auto watermark = PrinterOptions(other, job).find("Watermark").value_or(PrinterOption());
  EXPECT_EQ(watermark.chosen, "Custom.Ours");
  EXPECT_FALSE(watermark.differsFromDefault());
  EXPECT_EQ(watermark.textOf(watermark.chosen), "Custom: Ours");
}

TEST_F(PrinterOptionsTest, ACustomValueIsShownOnOneLine) {
  job.set("Watermark", "Custom.a\x1B[2Jb");
  EXPECT_EQ(option("Watermark").textOf(option("Watermark").chosen), "Custom: a\\x1b[2Jb");
  EXPECT_EQ(option("Duplex").textOf("un\nknown"), "un\\nknown");
}

TEST_F(PrinterOptionsTest, CustomWithoutAValueIsListedAsAChoice) {
  job.set("Watermark", "Custom");
  const PrinterOption watermark = option("Watermark");
  EXPECT_EQ(watermark.chosen, "Custom");
  EXPECT_EQ(watermark.choices.size(), 3U);
  EXPECT_EQ(watermark.choices.back().keyword, "Custom");
}

TEST_F(PrinterOptionsTest, ChoosingStoresTheChoiceAndMarksIt) {
  EXPECT_FALSE(option("MediaType").differsFromDefault());
  EXPECT_TRUE(options.choose("mediatype", "labels"));
  EXPECT_THAT(job.get("MediaType"), StrEq("Labels"));
  EXPECT_STREQ(ppdFindMarkedChoice(printer.ppd(), "MediaType")->choice, "Labels");
  EXPECT_TRUE(option("MediaType").differsFromDefault());
  EXPECT_EQ(option("MediaType").defaultChoice, "Plain");
}

TEST_F(PrinterOptionsTest, ChoosingTheDefaultRemovesTheEntry) {
  options.choose("MediaType", "Labels");
  EXPECT_TRUE(options.choose("MediaType", "Plain"));
  EXPECT_EQ(job.optionCount(), 0);
  EXPECT_STREQ(ppdFindMarkedChoice(printer.ppd(), "MediaType")->choice, "Plain");
}

TEST_F(PrinterOptionsTest, AnExternalChangeOfTheJobIsSeen) {
  job.set("Stapler", "True");
  EXPECT_EQ(option("Stapler").chosen, "True");
  job.remove("Stapler");
  EXPECT_EQ(option("Stapler").chosen, "False");
}

TEST_F(PrinterOptionsTest, ALockedOptionIsUnchanged) {
  job.set("Stapler", "True", true);
  EXPECT_TRUE(option("Stapler").isLocked);
  EXPECT_FALSE(options.choose("Stapler", "False"));
  EXPECT_THAT(job.get("Stapler"), StrEq("True"));
}

TEST_F(PrinterOptionsTest, OptionsAndChoicesThatThePrinterLacksAreRefused) {
  EXPECT_FALSE(options.choose("Unknown", "True"));
  EXPECT_FALSE(options.choose("MediaType", "Gold"));
  EXPECT_FALSE(options.choose("MediaType", ""));
  EXPECT_EQ(job.optionCount(), 0);
}

TEST_F(PrinterOptionsTest, AChoiceReplacesEquivalentSettingsOfTheJob) {
  job.set("sides", "two-sided-long-edge");
  job.set("media", "A5");
  EXPECT_EQ(option("Duplex").chosen, "DuplexNoTumble");
  EXPECT_EQ(option("PageSize").chosen, "A5");
  EXPECT_TRUE(options.choose("Duplex", "None"));
  EXPECT_TRUE(options.choose("PageSize", "A4"));
  EXPECT_EQ(option("Duplex").chosen, "None");
  EXPECT_EQ(option("PageSize").chosen, "A4");
  EXPECT_EQ(job.optionCount(), 0);
}

TEST_F(PrinterOptionsTest, TheTwoSidedOptionIsFoundUnderOlderNames) {
  ASSERT_TRUE(options.twoSided());
  EXPECT_EQ(options.twoSided()->keyword, "Duplex");
  std::string text = imageposition::test::kOptionsPpd;
  for (std::size_t at; (at = text.find("*Duplex")) != std::string::npos;)
    text.replace(at, 7, "*JCLDuplex");
  text.replace(text.find("*DefaultDuplex"), 14, "*DefaultJCLDuplex");
  PrinterDescription older = optionsPrinter(text);
  EXPECT_EQ(PrinterOptions(older, job).twoSided().value_or(PrinterOption()).keyword, "JCLDuplex");
}

TEST_F(PrinterOptionsTest, NamesAreInTheUsersLanguage) {
  setenv("LANG", "de_DE.UTF-8", 1);
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  PrinterDescription german = optionsPrinter();
  const PrinterOption media = *PrinterOptions(german, job).find("MediaType");
  unsetenv("LC_ALL");
  unsetenv("LANG");
  EXPECT_EQ(media.text, "Papiersorte");
  EXPECT_EQ(media.choices.front().text, "Normalpapier");
  EXPECT_EQ(media.choices[1].text, "Foil") << "not translated";
}

/// Runs in a separate process, because CUPS caches what it reads from the environment.
[[noreturn]] void exitWithWordsIn(const std::string &language, const std::string &twoSided) {
  speak(language, "/nowhere");
  PrinterDescription printer =
      PrinterDescription::fromFile(std::string(IMAGEPOSITION_SAMPLES) + "/duplex-shift.ppd");
  PrintSettingsStore job;
  const auto option = PrinterOptions(printer, job).find("Duplex");
  std::exit(option && option->text == twoSided ? 0 : 1);
}

TEST(PrinterOptions, AreInTheProgramsLanguageIfTheDescriptionHasIt) {
  EXPECT_EXIT(exitWithWordsIn("en", "Two-Sided"), testing::ExitedWithCode(0), "");
  EXPECT_EXIT(exitWithWordsIn("de", "Beidseitig"), testing::ExitedWithCode(0), "");
  EXPECT_EXIT(exitWithWordsIn("zh_CN", "双面"), testing::ExitedWithCode(0), "");
  EXPECT_EXIT(exitWithWordsIn("nl", "Two-Sided"), testing::ExitedWithCode(0), "");
}

TEST(PrinterOptions, NamesAreWellFormedUtf8OnOneLine) {
  auto printer = optionsPrinter(R"ppd(*PPD-Adobe: "4.3"
*LanguageEncoding: UTF-8
*OpenGroup: Paper/Paper)ppd"
                                "\xFF\xC2\x85"
                                R"ppd(
*OpenUI *MediaType/Kind)ppd"
                                "\xC2\x9B[31m\xE7\xB4"
                                R"ppd(: PickOne
*DefaultMediaType: Plain
*MediaType Plain/Plain)ppd"
                                "\xC2\x9B\xFE"
                                R"ppd(: ""
*CloseUI: *MediaType
*CustomMediaType True: "pop"
*ParamCustomMediaType Name/The)ppd"
                                "\xC2\x80\xFDname"
                                R"ppd(: 1 string 1 20
*CloseGroup: Paper
)ppd");
  PrintSettingsStore job;
  const auto groups = PrinterOptions(printer, job).all();
  ASSERT_EQ(groups.size(), 1u);
  EXPECT_EQ(groups[0].text, "Paper\uFFFD\\x85");
  ASSERT_EQ(groups[0].options.size(), 1u);
  const PrinterOption &option = groups[0].options[0];
  EXPECT_EQ(option.text, "Kind\\x9b[31m\uFFFD\uFFFD");
  ASSERT_EQ(option.choices.size(), 1u);
  EXPECT_EQ(option.choices[0].text, "Plain\\x9b\uFFFD");
  ASSERT_TRUE(option.custom);
  EXPECT_EQ(option.custom->parameters[0].text, "The\\x80\uFFFDname");
}

/// CUPS marks only the first.
TEST(PrinterOptions, AnOptionThatTheDescriptionRepeatsIsListedOnce) {
  auto printer = optionsPrinter(R"ppd(*PPD-Adobe: "4.3"
*OpenGroup: One/One
*OpenUI *Fold/Fold: PickOne
*DefaultFold: None
*Fold None/None: ""
*CloseUI: *Fold
*CloseGroup: One
*OpenGroup: Two/Two
*OpenUI *Fold/Fold again: PickOne
*Fold Z/Z: ""
*Fold Half/Half: ""
*CloseUI: *Fold
*CloseGroup: Two
)ppd");
  PrintSettingsStore job;
  PrinterOptions options(printer, job);
  int count = 0;
  for (const OptionGroup &group : options.listed({}))
    for (const PrinterOption &option : group.options) {
      count++;
      for (const OptionChoice &choice : option.choices)
        EXPECT_TRUE(options.choose(option.keyword, choice.keyword)) << choice.keyword;
    }
  EXPECT_EQ(count, 1);
}

TEST(PrinterOptions, OptionsThatAJobCannotHoldAreNotListed) {
  auto printer = optionsPrinter(R"ppd(*PPD-Adobe: "4.3"
*OpenUI *Finishing/Finishing: PickMany
*DefaultFinishing: None
*Finishing None/None: ""
*Finishing Fo,ld/Fold: ""
*CloseUI: *Finishing
*OpenUI *Fo=ld/Fold: PickOne
*DefaultFo=ld: None
*Fo=ld None/None: ""
*Fo=ld Z/Z: ""
*CloseUI: *Fo=ld
*OpenUI *Tray/Tray: PickOne
*DefaultTray: One
*Tray One/One: ""
*Tray Th,ree/Three: ""
*Tray :Nameless: ""
*CloseUI: *Tray
)ppd");
  PrintSettingsStore job;
  PrinterOptions options(printer, job);
  std::string listed;
  for (const OptionGroup &group : options.listed({}))
    for (const PrinterOption &option : group.options)
      for (const OptionChoice &choice : option.choices) {
        EXPECT_TRUE(options.choose(option.keyword, choice.keyword));
        listed += option.keyword + "=" + choice.keyword + " ";
      }
  EXPECT_EQ(listed, "Finishing=None Tray=One Tray=Th,ree ");
}

TEST(PrinterOptions, AGroupWithoutANameIsCalledGeneral) {
  auto printer = optionsPrinter(R"ppd(*PPD-Adobe: "4.3"
*OpenGroup: /
*OpenUI *Tray/Tray: PickOne
*Tray One/One: ""
*CloseUI: *Tray
)ppd");
  PrintSettingsStore job;
  const auto groups = PrinterOptions(printer, job).all();
  ASSERT_EQ(groups.size(), 1u);
  EXPECT_EQ(groups[0].text, "General");
}

} // namespace
