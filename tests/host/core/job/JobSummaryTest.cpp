#include "JobSummary.hpp"

#include "OptionsPpd.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace imageposition;
using imageposition::test::optionsPrinter;
using testing::HasSubstr;

SummaryLine lineOf(const SummarySection &section, const std::string &title) {
  for (const SummaryLine &line : section.lines)
    if (line.title == title)
      return line;
  ADD_FAILURE() << title;
  return {};
}

TEST(JobSummary, ListsOtherSettingsOnce) {
  auto printer = optionsPrinter();
  JobRequest request;
  request.defaults.set("sides", "two-sided-long-edge");
  request.defaults.set("job-sheets", "none,none");
  request.settings.set("com.maker.panel", "True");
  request.settings.set("LeftRightMargin", "-3");
  request.settings.set("Duplex", "None");
  request.settings.set("media", "A5");
  request.settings.set("page-ranges", "7, 1-3");
  request.settings.set("page-set", "odd");
  request.settings.set("copies", "2");
  const SummarySection section = otherSection(request, printer, {"LeftRightMargin"});
  ASSERT_EQ(section.lines.size(), 1U);
  EXPECT_EQ(lineOf(section, "job-sheets").value, "none,none");
}

TEST(JobSummary, HidesPasswords) {
  auto printer = optionsPrinter();
  JobRequest request;
  request.defaults.set("auth-info", "mary,hunter2");
  request.settings.set("JOB-Password", "hunter2");
  request.settings.set("job-authorization-uri", "urn:hunter2");
  const SummarySection section = otherSection(request, printer, {});
  EXPECT_EQ(lineOf(section, "job-authorization-uri").value, "••••");
  EXPECT_EQ(lineOf(section, "auth-info").value, "••••");
  EXPECT_EQ(lineOf(section, "JOB-Password").value, "••••");
}

TEST(JobSummary, LeavesOutWhatIsOffByDefault) {
  auto printer = optionsPrinter();
  PrintSettingsStore job;
  const auto has = [&](const std::string &title) {
    const SummarySection section = optionSection(printer, job, {});
    return std::any_of(section.lines.begin(), section.lines.end(),
                       [&](const SummaryLine &line) { return line.title == title; });
  };
  EXPECT_FALSE(has("Two-Sided"));
  job.set("Duplex", "DuplexTumble");
  EXPECT_TRUE(has("Two-Sided"));
}

TEST(JobSummary, MarksOptionsThatDifferFromTheDefaultsOfThePrinter) {
  auto printer = optionsPrinter();
  PrintSettingsStore job;
  job.set("Stapler", "True");
  const SummarySection section = optionSection(printer, job, {"Fold"});
  EXPECT_TRUE(lineOf(section, "Staple").differs);
  EXPECT_THAT(lineOf(section, "Staple").value, HasSubstr("No")); // the default
  EXPECT_FALSE(lineOf(section, "Tray").differs);
  EXPECT_TRUE(std::none_of(section.lines.begin(), section.lines.end(),
                           [](const SummaryLine &line) { return line.title == "Fold"; }));
}

TEST(JobSummary, MarksCopiesAndPagesThatDifferFromTheDefaults) {
  PrintSettingsStore job;
  EXPECT_FALSE(lineOf(jobSection("office", {"a.pdf"}, job), "Copies").differs);
  EXPECT_FALSE(lineOf(jobSection("office", {"a.pdf"}, job), "Pages").differs);
  job.set("copies", "2");
  job.set("page-set", "even");
  EXPECT_TRUE(lineOf(jobSection("office", {}, job), "Copies").differs);
  EXPECT_TRUE(lineOf(jobSection("office", {}, job), "Pages").differs);
}

} // namespace
