#include "JobSplit.hpp"

#include "OptionText.hpp"
#include "SharedKeys.h"
#include "TestPpd.h"

#include <gmock/gmock.h>

namespace imageposition {

namespace {

using testing::IsNull;
using testing::StrEq;

PrintSettingsStore storeOf(const std::string &options) {
  PrintSettingsStore store;
  readOptionArgument(options, store);
  return store;
}

/// "(none)" for an option that is missing.
std::string valueIn(const PrintSettingsStore &options, const char *name) {
  const char *const value = options.get(name);
  return value != nullptr ? value : "(none)";
}

JobSplit split(const std::string &settings, const std::string &defaults = "",
               ppd_file_t *ppd = nullptr) {
  JobRequest job;
  job.printer = "office";
  job.title = "report";
  job.settings = settings.empty() ? PrintSettingsStore() : storeOf(settings);
  job.defaults = defaults.empty() ? PrintSettingsStore() : storeOf(defaults);
  return splitJob(job, ppd, "front 1 2 back 0 0");
}

TEST(JobSplit, SendsOffsetsOfZeroWhereCupsWouldAddDefaults) {
  const JobSplit job = split("LeftRightMargin=25", "LeftRightMargin=3 TopBottomMargin=4");
  EXPECT_EQ(valueIn(job.printing.settings, "LeftRightMargin"), "0");
  EXPECT_EQ(valueIn(job.printing.settings, "TopBottomMargin"), "0");
  EXPECT_EQ(valueIn(job.printing.settings, "BackLeftRightMargin"), "(none)");
}

TEST(JobSplit, LaysOutBeforeAndPrintsNeutrally) {
  const struct {
    const char *settings, *defaults, *option, *laidOut, *printed;
  } rows[] = {
      {"number-up=4", "", "number-up", "4", "1"},
      {"media=A4", "number-up=2", "number-up", "2", "1"},
      {"number-up=1", "number-up=2", "number-up", "1", "1"},
      {"media=A4", "", "number-up", "(none)", "1"},
      {"page-set=even", "", "page-set", "even", "all"},
      {"page-ranges=2-3", "", "page-ranges", "2-3", "(none)"},
      {"number-up-layout=btrl", "", "number-up-layout", "btrl", "(none)"},
      {"page-border=single", "", "page-border", "single", "none"},
      {"print-scaling=fit", "", "print-scaling", "fit", "none"},
      {"fit-to-page", "", "fit-to-page", "true", "(none)"},
      {"media=A4", "fit-to-page", "fit-to-page", "true", "false"},
      {"media=A4", "fitplot=true", "fitplot", "true", "false"},
      {"landscape", "", "landscape", "true", "(none)"},
      {"media=A4", "landscape", "landscape", "true", "false"},
      {"orientation-requested=4", "", "orientation-requested", "4", "3"},
      {"mirror", "", "mirror", "true", "false"},
      {"booklet", "", "booklet", "true", "(none)"},
      {"media=A4", "booklet", "booklet", "true", "false"},
      {"scaling=50", "", "scaling", "50", "(none)"},
      {"page-left=36", "", "page-left", "36", "(none)"},
      {"media=A4", "page-label=draft", "page-label", "draft", ""},
      {"ipp-attribute-fidelity", "", "ipp-attribute-fidelity", "true", "(none)"},
      // of the printed job alone
      {"copies=3", "", "copies", "(none)", "3"},
      {"Collate=True", "", "Collate", "(none)", "True"},
      {"OutputOrder=Reverse", "", "OutputOrder", "Normal", "Reverse"},
      {"outputorder=reverse", "", "OutputOrder", "Normal", "reverse"},
      {"output-order=reverse-order", "", "output-order", "(none)", "reverse-order"},
      {"job-sheets=standard", "", "job-sheets", "(none)", "standard"},
      // of both
      {"media=A5", "", "media", "A5", "A5"},
      {"media=A5", "PageSize=A4", "PageSize", "(none)", "(none)"},
      {"sides=two-sided-long-edge", "", "sides", "two-sided-long-edge", "two-sided-long-edge"},
      {"Duplex=DuplexTumble", "", "Duplex", "DuplexTumble", "DuplexTumble"},
      {"emit-jcl=true", "", "emit-jcl", "false", "true"},
      // the offsets
      {"LeftRightMargin=10", "", "LeftRightMargin", "(none)", "(none)"},
      {"media=A4", "BackTopBottomMargin=10", "BackTopBottomMargin", "(none)", "0"},
      {"media=A4", "", IPA_KEY_ENABLE, "(none)", "False"},
      {IPA_KEY_ENABLE "=True", "", IPA_KEY_ENABLE, "(none)", "False"},
      {"media=A4", "", kShiftNote, "(none)", "front 1 2 back 0 0"},
      {"job-password=1234", "", "job-password", "(none)", "1234"},
  };
  for (const auto &row : rows) {
    const JobSplit result = split(row.settings, row.defaults);
    EXPECT_EQ(valueIn(result.layout, row.option), row.laidOut) << row.settings << row.defaults;
    EXPECT_EQ(valueIn(result.printing.settings, row.option), row.printed)
        << row.settings << row.defaults;
    EXPECT_EQ(result.printing.defaults.optionCount(), 0);
  }
}

TEST(JobSplit, KeepsTheRequest) {
  const JobSplit result = split("media=A4");
  EXPECT_EQ(result.printing.printer, "office");
  EXPECT_EQ(result.printing.title, "report");
}

TEST(JobSplit, GivesSecretsToThePrintedJobAlone) {
  JobRequest job;
  job.settings = storeOf("HouseCode=1234 media=A4");
  job.secrets = {"HouseCode"};
  const JobSplit result = splitJob(job, nullptr, "");
  EXPECT_THAT(result.layout.get("HouseCode"), IsNull());
  EXPECT_THAT(result.printing.settings.get("HouseCode"), StrEq("1234"));
}

TEST(JobSplit, TurnsABookletAsTheFilterWouldTellThePrinter) {
  const struct {
    const char *section, *settings, *printed;
  } rows[] = {
      {"JCLSetup", "booklet Duplex=DuplexNoTumble", "DuplexTumble"},
      {"AnySetup", "booklet Duplex=DuplexNoTumble", "DuplexNoTumble"},
      {"JCLSetup", "booklet=shuffle-only Duplex=DuplexNoTumble", "DuplexNoTumble"},
      {"JCLSetup", "nobooklet Duplex=DuplexNoTumble", "DuplexNoTumble"},
  };
  for (const auto &row : rows) {
    std::vector<std::string> lines = test::TestPpd::option("Duplex", {"None", "DuplexTumble"});
    lines.insert(lines.end() - 1, "*OrderDependency: 10 " + std::string(row.section) + " *Duplex");
    const test::TestPpd ppd(lines);
    const JobSplit result = split(row.settings, "", ppd);
    EXPECT_EQ(valueIn(result.printing.settings, "Duplex"), row.printed)
        << row.section << " " << row.settings;
  }
}

TEST(ShiftNote, SaysMillimetres) {
  ShiftPlan plan;
  plan.front = {{25}, {-10}};
  plan.back = {{-3}, {0}};
  EXPECT_EQ(shiftNote(plan), "front 2.5 -1 back -0.3 0");
}

TEST(FilterOptions, AreReadBackByCups) {
  PrintSettingsStore options;
  options.set("media", "A4");
  options.set("title", "it's \"5 pages\" \\ long");
  options.set("part", "{Width=3 Colour=red}");
  options.set("page-label", "");
  const std::string text = filterOptions(options);
  cups_option_t *read = nullptr;
  const int count = cupsParseOptions(text.c_str(), 0, &read);
  EXPECT_THAT(cupsGetOption("media", count, read), StrEq("A4"));
  EXPECT_THAT(cupsGetOption("title", count, read), StrEq("it's \"5 pages\" \\ long"));
  EXPECT_THAT(cupsGetOption("page-label", count, read), StrEq(""));
  cupsFreeOptions(count, read);
}

} // namespace

} // namespace imageposition
