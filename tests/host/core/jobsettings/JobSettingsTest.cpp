#include "JobSettings.hpp"

#include "OptionsPpd.hpp"
#include "ReleaseTime.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace {

using namespace imageposition;
using imageposition::test::optionsPrinter;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StrEq;

std::vector<std::string> keywordsOf(const std::vector<OptionGroup> &groups) {
  std::vector<std::string> keywords;
  for (const OptionGroup &group : groups)
    for (const PrinterOption &option : group.options)
      keywords.push_back(group.text + "/" + option.keyword);
  return keywords;
}

std::vector<std::string> keywordsOf(const std::vector<OptionChoice> &choices) {
  std::vector<std::string> keywords;
  for (const OptionChoice &choice : choices)
    keywords.push_back(choice.keyword);
  return keywords;
}

/// A description with further lines.
PrinterDescription printerWith(const std::string &lines) {
  std::string ppd = imageposition::test::kOptionsPpd;
  const std::string before = "*ColorDevice";
  ppd.insert(ppd.find(before), lines);
  return optionsPrinter(ppd);
}

class JobSettingsTest : public testing::Test {
protected:
  PrinterOption option(const char *keyword) {
    const auto option = settings().find(keyword);
    EXPECT_TRUE(option) << keyword;
    return option.value_or(PrinterOption());
  }
  JobSettings settings() { return JobSettings(printer, job, context); }
  std::string stored(const char *name) {
    const char *const value = job.get(name);
    return value != nullptr ? value : "-";
  }

  PrinterDescription printer = optionsPrinter();
  PrintSettingsStore job;
  JobSettingsContext context{{"none", "standard", "house"}, "report.pdf"};
};

TEST_F(JobSettingsTest, AreListedInTwoGroups) {
  EXPECT_THAT(keywordsOf(settings().listed()),
              ElementsAre("Layout/orientation-requested", "Layout/print-scaling",
                          "Layout/number-up", "Layout/number-up-layout", "Layout/page-border",
                          "Layout/booklet", "Layout/outputorder", "Job/job-hold-until",
                          "Job/job-priority", "Job/job-sheets-first", "Job/job-sheets-last",
                          "Job/job-name"));
  EXPECT_EQ(settings().differing(), 0U);
  EXPECT_TRUE(settings().section().lines.empty());
}

TEST_F(JobSettingsTest, LeaveOutWhatThePrintersDescriptionHas) {
  printer = printerWith("*OpenUI *OutputOrder/Order: PickOne\n*DefaultOutputOrder: Normal\n"
                        "*OutputOrder Normal/Normal: \"\"\n*OutputOrder Reverse/Reverse: \"\"\n"
                        "*CloseUI: *OutputOrder\n");
  EXPECT_FALSE(settings().find("outputorder"));
  EXPECT_TRUE(settings().find("number-up"));
  EXPECT_THAT(settings().names(), Not(Contains(StrEq("outputorder"))));
  EXPECT_FALSE(settings().choose("outputorder", "reverse"));
  EXPECT_FALSE(isLayoutSetting(printer, "OutputOrder")) << "the printer's setting is remembered";
}

TEST_F(JobSettingsTest, AreStoredUnlessTheyAreTheDefault) {
  EXPECT_EQ(settings().choose("number-up", "4"), "");
  EXPECT_EQ(stored("number-up"), "4");
  EXPECT_EQ(settings().differing(), 1U);
  EXPECT_EQ(settings().choose("number-up", "1"), "");
  EXPECT_EQ(stored("number-up"), "-");
  EXPECT_EQ(settings().choose("orientation-requested", "4"), "");
  EXPECT_EQ(settings().choose("orientation-requested", ""), "");
  EXPECT_EQ(job.optionCount(), 0);
}

TEST_F(JobSettingsTest, KeepAndListAValueThatIsNotAmongTheChoices) {
  job.set("number-up", "12");
  const PrinterOption pages = option("number-up");
  EXPECT_EQ(pages.chosen, "12");
  EXPECT_THAT(keywordsOf(pages.choices), ElementsAre("1", "2", "4", "6", "9", "16", "12"));
  job.set("job-sheets", "none,visitors");
  EXPECT_THAT(keywordsOf(option("job-sheets-last").choices),
              ElementsAre("none", "standard", "house", "visitors"));
  EXPECT_EQ(settings().choose("job-sheets-first", "standard"), "");
  EXPECT_EQ(stored("job-sheets"), "standard,visitors");
  EXPECT_EQ(stored("number-up"), "12");
}

// The first column is what a command line may have, the others are what it means.
TEST_F(JobSettingsTest, UnderstandOtherNamesAndSpellings) {
  const struct {
    const char *name, *value, *keyword, *chosen;
  } rows[] = {{"landscape", "true", "orientation-requested", "4"},
              {"landscape", "no", "orientation-requested", "3"},
              {"fit-to-page", "true", "print-scaling", "fit"},
              {"fit-to-page", "false", "print-scaling", "auto"},
              {"fitplot", "true", "print-scaling", "fit"},
              {"fill", "true", "print-scaling", "fill"},
              {"print-scaling", "FIT", "print-scaling", "fit"},
              {"print-scaling", "auto-fit", "print-scaling", "auto"},
              {"OutputOrder", "Reverse", "outputorder", "reverse"},
              {"page-delivery", "reverse-order", "outputorder", "reverse"},
              {"booklet", "yes", "booklet", "true"},
              {"booklet", "shuffle-only", "booklet", "shuffle-only"},
              {"job-sheets", "standard", "job-sheets-first", "standard"},
              {"job-sheets", "standard", "job-sheets-last", "none"}};
  for (const auto &row : rows) {
    job = PrintSettingsStore();
    job.set(row.name, row.value);
    EXPECT_EQ(option(row.keyword).chosen, row.chosen) << row.name << "=" << row.value;
  }
}

TEST_F(JobSettingsTest, AChoiceReplacesTheSettingsOtherNames) {
  job.set("landscape", "true");
  job.set("orientation-requested", "3");
  EXPECT_EQ(option("orientation-requested").chosen, "4") << "as the filters read it";
  EXPECT_EQ(settings().choose("orientation-requested", "6"), "");
  EXPECT_EQ(stored("landscape"), "-");
  EXPECT_EQ(stored("orientation-requested"), "6");
}

TEST_F(JobSettingsTest, TellThePagesOnASide) {
  EXPECT_EQ(settings().pagesPerSide(), 1);
  job.set("number-up", "4");
  EXPECT_EQ(settings().pagesPerSide(), 4);
  job.set("booklet", "true");
  EXPECT_EQ(settings().pagesPerSide(), 0) << "a booklet reorders the pages";
  job.remove("booklet");
  job.set("number-up", "many");
  EXPECT_EQ(settings().pagesPerSide(), 0);
}

TEST_F(JobSettingsTest, TheDefaultOrderIsTheDescriptions) {
  printer = printerWith("*DefaultOutputOrder: Reverse\n");
  EXPECT_EQ(option("outputorder").chosen, "reverse");
  EXPECT_EQ(settings().differing(), 0U);
  EXPECT_EQ(settings().choose("outputorder", "normal"), "");
  EXPECT_EQ(stored("outputorder"), "normal");
}

TEST_F(JobSettingsTest, AreLockedWhereAnotherSettingMakesThemIdle) {
  EXPECT_TRUE(option("number-up-layout").isLocked);
  job.set("number-up", "2");
  EXPECT_FALSE(option("number-up-layout").isLocked);
  EXPECT_FALSE(option("number-up").isLocked);
  job.set("booklet", "true");
  EXPECT_TRUE(option("number-up").isLocked);
  EXPECT_TRUE(option("number-up-layout").isLocked);
}

TEST_F(JobSettingsTest, LockedByATicketAreNotChanged) {
  job.set("landscape", "true", true);
  EXPECT_TRUE(option("orientation-requested").isLocked);
  EXPECT_FALSE(settings().choose("orientation-requested", "3"));
  EXPECT_EQ(stored("landscape"), "true");
}

TEST_F(JobSettingsTest, ABookletIsPrintedOnBothSides) {
  const auto note = settings().choose("booklet", "true");
  ASSERT_TRUE(note);
  EXPECT_THAT(*note, HasSubstr("because a booklet needs it"));
  EXPECT_EQ(stored("Duplex"), "DuplexTumble");
  EXPECT_EQ(settings().choose("booklet", "true"), "") << "it is so already";
}

TEST_F(JobSettingsTest, PriorityAndTitleCanBeEntered) {
  EXPECT_EQ(settings().firstValue("job-priority"), "Custom.50");
  EXPECT_FALSE(settings().choose("job-priority", "Custom.101"));
  EXPECT_EQ(settings().choose("job-priority", "Custom.75"), "");
  EXPECT_EQ(stored("job-priority"), "75");
  EXPECT_EQ(option("job-priority").chosen, "75");
  EXPECT_EQ(option("job-name").textOf(option("job-name").chosen), "report.pdf");
  EXPECT_EQ(settings().choose("job-name", "Custom.Minutes, May"), "");
  EXPECT_EQ(stored("job-name"), "Minutes, May");
  EXPECT_EQ(settings().choose("job-name", ""), "");
  EXPECT_EQ(stored("job-name"), "-");
}

TEST_F(JobSettingsTest, TheSummaryHasThemInTheUsersWords) {
  settings().choose("number-up", "2");
  settings().choose("job-sheets-last", "house");
  const SummarySection section = settings().section();
  ASSERT_EQ(section.lines.size(), 2U);
  EXPECT_EQ(section.lines[0].title, "Pages per side");
  EXPECT_EQ(section.lines[0].value, "2  (usually 1)");
  EXPECT_TRUE(section.lines[0].differs);
  EXPECT_EQ(section.lines[1].value, "house  (usually None)");
}

TEST_F(JobSettingsTest, LandscapePagesAreTheDocumentsOrTurned) {
  EXPECT_FALSE(hasLandscapePages(job, false));
  EXPECT_TRUE(hasLandscapePages(job, true));
  const struct {
    const char *name, *value;
    bool expected;
  } rows[] = {{"orientation-requested", "3", false}, {"orientation-requested", "4", true},
              {"orientation-requested", "5", true},  {"orientation-requested", "6", false},
              {"landscape", "true", true},           {"landscape", "false", false}};
  for (const auto &row : rows) {
    PrintSettingsStore settings;
    settings.set(row.name, row.value);
    EXPECT_EQ(hasLandscapePages(settings, false), row.expected) << row.name << row.value;
  }
}

TEST_F(JobSettingsTest, TheTimeIsAskedForAsLocalTime) {
  ASSERT_EQ(settings().choose("job-hold-until", "{Hour=18 Minute=30}"), "");
  EXPECT_EQ(settings().firstValue("job-hold-until"), "{Hour=18 Minute=30}");
  const auto option = settings().find("job-hold-until");
  EXPECT_EQ(option->textOf(option->chosen), "At 18:30 (local time)");
  EXPECT_EQ(localReleaseTime(job.get("job-hold-until"), std::time(nullptr))->text(), "18:30");
  EXPECT_FALSE(settings().choose("job-hold-until", "{Hour=24 Minute=0}"));
}

} // namespace
