#include "ChoiceList.hpp"

#include "JobSummary.hpp"
#include "OptionConflicts.hpp"
#include "OptionList.hpp"
#include "OptionsPpd.hpp"
#include "ValueCheck.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace imageposition;
using imageposition::test::optionsPrinter;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StrEq;

TEST(ChoiceLists, AreSplitAtCommas) {
  EXPECT_THAT(splitChoices("Staple,Fold"), ElementsAre("Staple", "Fold"));
  EXPECT_THAT(splitChoices(" Staple , Fold ,"), ElementsAre("Staple", "Fold"));
  EXPECT_THAT(splitChoices(",, ,"), IsEmpty());
  EXPECT_THAT(splitChoices(""), IsEmpty());
  EXPECT_EQ(joinChoices({"Staple", "Fold"}), "Staple,Fold");
  EXPECT_EQ(joinChoices({}), "");
}

class ListOption : public testing::Test {
protected:
  PrinterOption finishing() { return *options.find("Finishing"); }
  bool isMarked(const char *choice) {
    return ppdFindChoice(ppdFindOption(printer.ppd(), "Finishing"), choice)->marked != 0;
  }
  std::string conflictsInWords(const std::string &chosenLast = {}) {
    OptionConflicts conflicts(printer, job);
    std::string words;
    for (const OptionConflict &conflict : conflicts.find())
      words += conflict.sentence;
    const auto proposal = conflicts.proposal(chosenLast);
    return words + (proposal ? " " + proposal->sentence : "");
  }

  PrinterDescription printer =
      PrinterDescription::fromFile(std::string(IMAGEPOSITION_SAMPLES) + "/finisher.ppd");
  PrintSettingsStore job;
  PrinterOptions options{printer, job};
};

TEST_F(ListOption, StartsWithThePpdsDefault) {
  EXPECT_EQ(finishing().kind, PrinterOption::Kind::Several);
  EXPECT_EQ(finishing().chosen, "Punch");
  EXPECT_THAT(finishing().chosenSet(), testing::Contains("Punch"));
  EXPECT_FALSE(finishing().differsFromDefault());
}

TEST_F(ListOption, AcceptsAnyNumberOfChoicesInThePpdsOrder) {
  EXPECT_TRUE(options.tick("Finishing", "Fold", true));
  EXPECT_TRUE(options.tick("finishing", "staple", true));
  EXPECT_THAT(job.get("Finishing"), StrEq("Punch,Staple,Fold"));
  EXPECT_TRUE(isMarked("Punch") && isMarked("Staple") && isMarked("Fold") && !isMarked("None"));
  EXPECT_TRUE(options.tick("Finishing", "Punch", false));
  EXPECT_THAT(job.get("Finishing"), StrEq("Staple,Fold"));
  EXPECT_FALSE(isMarked("Punch")) << "the default is replaced";
  EXPECT_TRUE(finishing().differsFromDefault());
  EXPECT_EQ(finishing().textOf(finishing().chosen), "Staple, Fold");
}

TEST_F(ListOption, ReturnsToTheDefaultWithoutASetting) {
  options.tick("Finishing", "Staple", true);
  options.tick("Finishing", "Staple", false);
  EXPECT_EQ(job.optionCount(), 0);
  EXPECT_TRUE(isMarked("Punch"));
}

TEST_F(ListOption, BecomesNoneWhenEmptiedAndNoneExcludesAllOthers) {
  options.tick("Finishing", "Punch", false);
  EXPECT_THAT(job.get("Finishing"), StrEq("None"));
  options.tick("Finishing", "Staple", true);
  EXPECT_THAT(job.get("Finishing"), StrEq("Staple"));
  options.tick("Finishing", "None", true);
  EXPECT_THAT(job.get("Finishing"), StrEq("None"));
  options.tick("Finishing", "None", false);
  EXPECT_EQ(finishing().chosen, "None");
}

TEST(RepeatedChoices, AreListedAndSentOnce) {
  auto repeating = optionsPrinter(R"ppd(*PPD-Adobe: "4.3"
*OpenUI *Finishing/Finishing: PickMany
*DefaultFinishing: None
*Finishing None/None: ""
*Finishing Fold/Fold: ""
*Finishing Staple/Staple: ""
*Finishing Fold/Fold again: ""
*CloseUI: *Finishing
)ppd");
  PrintSettingsStore settings;
  PrinterOptions several(repeating, settings);
  EXPECT_THAT(several.find("Finishing")->choices, SizeIs(3));
  EXPECT_TRUE(several.choose("Finishing", "Fold"));
  EXPECT_THAT(settings.get("Finishing"), StrEq("Fold"));
  EXPECT_TRUE(several.tick("Finishing", "Staple", true));
  EXPECT_THAT(settings.get("Finishing"), StrEq("Fold,Staple"));
  EXPECT_TRUE(several.tick("Finishing", "Fold", false));
  EXPECT_THAT(settings.get("Finishing"), StrEq("Staple"));
}

TEST(RepeatedOption, IsNotAListIfOnlyTheOccurrenceThatCupsIgnoresIsOne) {
  auto repeating = optionsPrinter(R"ppd(*PPD-Adobe: "4.3"
*OpenUI *MediaType/Kind of Paper: PickOne
*MediaType Plain/Plain Paper: ""
*CloseUI: *MediaType
*OpenUI *Finishing/Finishing: PickOne
*DefaultFinishing: None
*Finishing None/None: ""
*Finishing Fold/Fold: ""
*CloseUI: *Finishing
*OpenGroup: Finisher/Finisher
*OpenUI *Finishing/Finishing: PickMany
*DefaultFinishing: Punch
*Finishing Punch/Punch: ""
*CloseUI: *Finishing
*OpenUI *Stapler/Staple: Boolean
*Stapler True/Yes: ""
*CloseUI: *Stapler
*CloseGroup: Finisher
)ppd");
  PrintSettingsStore settings;
  PrinterOptions options(repeating, settings);
  ASSERT_EQ(options.find("Finishing")->kind, PrinterOption::Kind::List);
  for (const char *choice : {"Fold", "None"}) {
    EXPECT_TRUE(options.choose("Finishing", choice));
    EXPECT_EQ(options.find("Finishing")->chosen, choice);
  }
}

TEST_F(ListOption, CanBeEmptyIfThereIsNoChoiceForNone) {
  ppd_option_t &option = *ppdFindOption(printer.ppd(), "Finishing");
  EXPECT_THAT(withChoice(option, {"Punch"}, "Punch", false), ElementsAre("None"));
  option.choices[0].choice[0] = 'X'; // "Xone" is an ordinary choice
  options.tick("Finishing", "Punch", false);
  EXPECT_THAT(job.get("Finishing"), StrEq(""));
  EXPECT_EQ(finishing().chosen, "");
  EXPECT_EQ(finishing().textOf(""), "None");
  EXPECT_TRUE(finishing().differsFromDefault());
}

TEST_F(ListOption, IgnoresChoicesThatThePrinterLacks) {
  job.set("Finishing", "Gold,Fold");
  EXPECT_EQ(finishing().chosen, "Fold");
  job.set("Finishing", "Gold");
  EXPECT_EQ(finishing().chosen, "Punch") << "the default";
  EXPECT_FALSE(options.choose("Finishing", "Gold,Fold"));
  EXPECT_FALSE(options.tick("Finishing", "Gold", true));
  EXPECT_FALSE(options.tick("MediaType", "Heavy", true));
  EXPECT_TRUE(options.choose("Finishing", "Fold,Staple"));
  EXPECT_THAT(job.get("Finishing"), StrEq("Staple,Fold"));
}

TEST_F(ListOption, IsUnchangedIfLocked) {
  job.set("Finishing", "Fold", true);
  EXPECT_FALSE(options.tick("Finishing", "Staple", true));
  EXPECT_EQ(finishing().chosen, "Fold");
}

TEST_F(ListOption, LosesOnlyTheChoiceInConflict) {
  job.set("Finishing", "Punch,Fold");
  EXPECT_EQ(conflictsInWords(), "");
  options.choose("MediaType", "Heavy");
  EXPECT_EQ(ppdConflicts(printer.ppd()), 1) << "CUPS sees it, too";
  EXPECT_EQ(conflictsInWords("MediaType"),
            "The printer cannot combine \"Media Type: Heavy Paper\" and \"Finishing: Fold\". "
            "Change to \"Finishing: Punch\".");
  OptionConflicts conflicts(printer, job);
  EXPECT_TRUE(conflicts.take(*conflicts.proposal("MediaType")));
  EXPECT_EQ(finishing().chosen, "Punch");
  EXPECT_EQ(conflictsInWords(), "");
}

/// As when the program starts with options on the command line.
TEST_F(ListOption, ResolvesConflictsWithoutALastChoice) {
  job.set("Finishing", "Punch,Fold");
  job.set("MediaType", "Heavy");
  OptionConflicts conflicts(printer, job);
  const auto proposal = conflicts.proposal();
  ASSERT_TRUE(proposal);
  EXPECT_THAT(proposal->sentence, HasSubstr("Change to \"Media Type: Plain Paper\"."));
  EXPECT_TRUE(conflicts.take(*proposal));
  EXPECT_EQ(finishing().chosen, "Punch,Fold")
      << "a list is kept if another change ends the conflict";
  job.set("MediaType", "Heavy", true);
  EXPECT_THAT(conflicts.proposal()->sentence, HasSubstr("Change to \"Finishing: Punch\"."));
  job.set("Finishing", "Punch,Fold", true);
  EXPECT_FALSE(conflicts.proposal());
}

TEST_F(ListOption, KeepsTheChoiceThatWasCheckedLast) {
  options.choose("MediaType", "Heavy");
  options.tick("Finishing", "Fold", true);
  EXPECT_THAT(conflictsInWords("Finishing"), HasSubstr("Change to \"Media Type: Plain Paper\"."));
}

TEST_F(ListOption, IsListedWithAllChosenValues) {
  job.set("Finishing", "Staple,Fold");
  const std::string list = writeOptionList(options.all());
  EXPECT_THAT(list, HasSubstr("    Punch: Punch\n  * Staple: Staple\n  * Fold: Fold\n"));
  EXPECT_THAT(list, HasSubstr("    Custom.WIDTHxHEIGHT\n"));
  EXPECT_THAT(list, HasSubstr("    {User=VALUE Password=VALUE Code=VALUE}\n"));
  const SummarySection summary = optionSection(printer, job, {});
  for (const SummaryLine &line : summary.lines) {
    if (line.title == "Finishing") {
      EXPECT_EQ(line.value, "Staple, Fold  (usually Punch)");
    }
  }
}

TEST_F(ListOption, FitsAPrinterThatHasAllItsChoices) {
  const FittedSetting known = fitSetting(printer.ppd(), "Finishing", "Staple,Fold", true);
  EXPECT_EQ(known.value, "Staple,Fold");
  EXPECT_EQ(known.change, "");
  const FittedSetting unknown = fitSetting(printer.ppd(), "Finishing", "Staple,Gold", true);
  EXPECT_FALSE(unknown.value);
  EXPECT_THAT(unknown.change, HasSubstr("does not offer \"Staple,Gold\""));
}

TEST_F(ListOption, ShowsACustomValueEverywhere) {
  job.set("PageSize", "Custom.100x200mm");
  job.set("Secret", "{User=me Password=abcd Code=1234}");
  EXPECT_EQ(options.find("PageSize")->textOf("Custom.100x200mm"), "Custom: 100 × 200 mm");
  EXPECT_EQ(options.find("PageSize")->choices.back().text, "Custom: 100 × 200 mm");
  for (const SummaryLine &line : optionSection(printer, job, {}).lines)
    EXPECT_THAT(line.value, testing::Not(testing::AnyOf(HasSubstr("abcd"), HasSubstr("1234"))));
  job.remove("PageSize");
  job.set("media", "Custom.4x6in,Tray");
  EXPECT_EQ(options.find("PageSize")->chosen, "Custom.4x6in");
  EXPECT_TRUE(options.choose("PageSize", "Custom.5x7in"));
  EXPECT_EQ(job.get("media"), nullptr);
  EXPECT_FALSE(options.choose("PageSize", "Custom.5x700in"));
  EXPECT_FALSE(options.choose("PageSize", "Custom.huge"));
  EXPECT_EQ(options.find("PageSize")->chosen, "Custom.5x7in");
  EXPECT_TRUE(options.choose("PageSize", "A4"));
  EXPECT_THAT(options.find("PageSize")->choices, SizeIs(3));
}

} // namespace
