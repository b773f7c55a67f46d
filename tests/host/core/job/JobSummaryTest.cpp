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

/// The number of job attributes in the output of a dry run.
int jobAttributesIn(const std::string &text) {
  int count = 0;
  for (std::size_t at = 0; at != std::string::npos; at = text.find('\n', at + 1))
    count += text.compare(at == 0 ? 0 : at + 1, 4, "job ") == 0 ? 1 : 0;
  return count;
}

TEST(JobSummary, ListsTheSameOptionsAsADryRun) {
  JobRequest request;
  request.printer = "office";
  request.title = "report";
  request.defaults.set("sides", "two-sided-long-edge");
  request.defaults.set("job-sheets", "none,none");
  request.settings.set("LeftRightMargin", "-3");
  request.settings.set("Duplex", "None"); // overrides the default of "sides"
  request.settings.set("page-ranges", "7, 1-3");
  request.settings.set("page-set", "odd");
  request.settings.set("copies", "2");
  const SummarySection section = sentSection(request);
  const std::string text = writeRequestText(request);
  EXPECT_EQ(static_cast<int>(section.lines.size()), jobAttributesIn(text)) << text;
  for (const SummaryLine &line : section.lines) {
    const std::size_t at = text.find("job " + line.title + " (");
    ASSERT_NE(at, std::string::npos) << line.title << "\n" << text;
    const std::string sent = text.substr(at, text.find('\n', at) - at);
    EXPECT_THAT(sent, HasSubstr("= " + line.value)) << text;
  }
  EXPECT_EQ(lineOf(section, "page-ranges").value, "1-3,7");
}

TEST(JobSummary, HidesPasswords) {
  JobRequest request;
  request.defaults.set("auth-info", "mary,hunter2");
  request.settings.set("JOB-Password", "hunter2");
  request.settings.set("job-authorization-uri", "urn:hunter2");
  const SummarySection section = sentSection(request);
  EXPECT_EQ(lineOf(section, "job-authorization-uri").value, "••••");
  EXPECT_EQ(lineOf(section, "auth-info").value, "••••");
  EXPECT_EQ(lineOf(section, "JOB-Password").value, "••••");
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
