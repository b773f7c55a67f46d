#include "host/CommandLine.hpp"

#include "host/ExitCode.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using imageposition::Answer;
using imageposition::Arguments;
using imageposition::ExitCode;
using imageposition::Failure;
using imageposition::readCommandLine;
using testing::ElementsAre;
using testing::HasSubstr;

Arguments read(const std::vector<std::string> &words) {
  return std::get<Arguments>(readCommandLine(words));
}

/// What a mistake is answered with; it must be a mistake.
std::string mistake(const std::vector<std::string> &words) {
  try {
    readCommandLine(words);
  } catch (const Failure &failure) {
    EXPECT_EQ(failure.code(), ExitCode::Usage);
    return failure.what();
  }
  ADD_FAILURE() << "was understood";
  return {};
}

TEST(CommandLine, APrinterIsNamedByItsDescriptionOrItsQueue) {
  EXPECT_EQ(read({"--ppd", "a.ppd"}).ppd, "a.ppd");
  EXPECT_EQ(read({"-d", "office/draft"}).queue, "office/draft");
  EXPECT_EQ(read({"--queue=office"}).queue, "office");
}

TEST(CommandLine, APrinterIsNamedOnceAtMost) {
  EXPECT_THAT(mistake({"--ppd", "a.ppd", "-d", "office"}), HasSubstr("--ppd FILE"));
  const Arguments none = read({"report.pdf"});
  EXPECT_EQ(none.ppd, "");
  EXPECT_EQ(none.queue, "");
}

TEST(CommandLine, ALineForLpIsUnderstoodAlike) {
  const Arguments arguments =
      read({"-d", "office", "-h", "server:631", "-n", "3", "-P", "1-3,7", "-t", "Annual report",
            "-q", "70", "-o", "sides=one-sided", "report.pdf"});
  EXPECT_EQ(arguments.server, "server:631");
  EXPECT_EQ(arguments.copies, 3);
  EXPECT_EQ(arguments.pages, "1-3,7");
  EXPECT_EQ(arguments.title, "Annual report");
  EXPECT_EQ(arguments.priority, 70);
  EXPECT_THAT(arguments.options, ElementsAre("sides=one-sided"));
  EXPECT_EQ(arguments.document, "report.pdf");
  EXPECT_FALSE(arguments.isDryRun);
}

TEST(CommandLine, LpsShortFormWithoutABlankIsUnderstood) {
  const Arguments arguments = read({"-doffice", "-n2", "-P4", "-"});
  EXPECT_EQ(arguments.queue, "office");
  EXPECT_EQ(arguments.copies, 2);
  EXPECT_EQ(arguments.pages, "4");
  EXPECT_EQ(arguments.document, "-");
}

TEST(CommandLine, CopiesAndPriorityKeepToWhatCupsTakes) {
  for (const char *copies : {"0", "-1", "10000", "two"})
    mistake({"-n", copies});
  for (const char *priority : {"0", "101", "high"})
    mistake({"-q", priority});
}

TEST(CommandLine, ADryRunIsAskedByName) { EXPECT_TRUE(read({"--dry-run", "a.pdf"}).isDryRun); }

TEST(CommandLine, AnEmptyTextIsNotTakenForNothing) {
  for (const char *option : {"--ticket", "--back"})
    EXPECT_THAT(mistake({"--ppd", "a.ppd", "--batch", option, ""}), HasSubstr("empty text"));
  EXPECT_THAT(mistake({"--ppd", "a.ppd", ""}), HasSubstr("empty text"));
}

TEST(CommandLine, OptionsArePassedOnInTheirOrder) {
  EXPECT_THAT(read({"--ppd", "a", "-o", "Duplex=None", "-o", "x y=z"}).options,
              ElementsAre("Duplex=None", "x y=z"));
}

TEST(CommandLine, AnOptionTakesOneArgument) {
  const Arguments arguments = read({"--ppd", "a", "-o", "Duplex=None", "report.pdf"});
  EXPECT_THAT(arguments.options, ElementsAre("Duplex=None"));
  EXPECT_EQ(arguments.document, "report.pdf");
}

TEST(CommandLine, PluginsAndTicketAreTakenAsTheyAre) {
  const Arguments arguments =
      read({"--ppd", "a", "--plugin", "A.plugin", "--plugin", "B.plugin", "--ticket", "job.json"});
  EXPECT_THAT(arguments.plugins, ElementsAre("A.plugin", "B.plugin"));
  EXPECT_EQ(arguments.ticket, "job.json");
  EXPECT_FALSE(arguments.isBatch);
}

TEST(CommandLine, ABatchSaysWhatToDoOnThePanel) {
  const auto batch = read({"--batch", "--ppd", "a", "--set", "FrontLRM=-3", "--set", "FrontTBM=4",
                           "--back", "on", "--summary"})
                         .batch;
  ASSERT_EQ(batch.entries.size(), 2U);
  EXPECT_EQ(batch.entries[0].name, "FrontLRM");
  EXPECT_EQ(batch.entries[0].text, "-3");
  EXPECT_EQ(batch.entries[1].text, "4");
  EXPECT_EQ(batch.back, true);
  EXPECT_TRUE(batch.summary);
}

TEST(CommandLine, MistakesSayWhatIsRight) {
  EXPECT_THAT(mistake({"--batch", "--ppd", "a", "--set", "FrontLRM"}), HasSubstr("NAME=TEXT"));
  EXPECT_THAT(mistake({"--batch", "--ppd", "a", "--back", "yes"}), HasSubstr("\"on\" or \"off\""));
  EXPECT_THAT(mistake({"--ppd", "a", "--set", "FrontLRM=1"}), HasSubstr("--batch"));
  EXPECT_THAT(mistake({"--ppd", "a", "--summary"}), HasSubstr("--batch"));
  EXPECT_THAT(mistake({"--ppd", "a", "--ticket", "job.options"}), HasSubstr(".json"));
  EXPECT_THAT(mistake({"--ppd", "a", "--nonsense"}), HasSubstr("--help"));
  mistake({"--ppd"});
  mistake({"--ppd", "a", "one.pdf", "two.pdf"});
}

TEST(CommandLine, HelpNamesEveryOptionAndExitStatus) {
  const std::string help = std::get<Answer>(readCommandLine({"--help"})).text;
  for (const char *part : {"--ppd", "-d,", "-o,", "-h SERVER", "-n COPIES", "-P PAGES", "-t TITLE",
                           "-q PRIORITY", "--dry-run", "--plugin", "--ticket", "--batch", "--set",
                           "--back", "--summary", "--version", "Examples:", "Exit status:"})
    EXPECT_THAT(help, HasSubstr(part));
  for (int status = 0; status <= 8; status++)
    EXPECT_THAT(help, HasSubstr("\n  " + std::to_string(status) + "  "));
}

TEST(CommandLine, VersionIsOneLine) {
  const std::string text = std::get<Answer>(readCommandLine({"--version"})).text;
  EXPECT_THAT(text, testing::MatchesRegex("print-dialog [0-9.]+\n"));
}

TEST(CommandLine, PlatformDefaultsAreLeftToThePlatform) {
  EXPECT_THAT(imageposition::withoutPlatformDefaults(
                  {"-NSLanguages", "(ja)", "--ppd", "a", "-GSLogSyslog", "NO"}),
              ElementsAre("--ppd", "a"));
}

} // namespace
