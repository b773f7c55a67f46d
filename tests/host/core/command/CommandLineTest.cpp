#include "CommandLine.hpp"

#include "ExitCode.hpp"

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

/// The message for a command line that must be wrong.
std::string mistake(const std::vector<std::string> &words) {
  try {
    readCommandLine(words);
  } catch (const Failure &failure) {
    EXPECT_EQ(failure.code(), ExitCode::Usage);
    return failure.what();
  }
  ADD_FAILURE() << "was accepted";
  return {};
}

TEST(CommandLine, APrinterIsNamedByItsPpdOrItsQueue) {
  EXPECT_EQ(read({"--ppd", "a.ppd"}).ppd, "a.ppd");
  EXPECT_EQ(read({"-d", "office/draft"}).queue, "office/draft");
  EXPECT_EQ(read({"--queue=office"}).queue, "office");
}

TEST(CommandLine, APpdAndAQueueAreMutuallyExclusive) {
  EXPECT_THAT(mistake({"--ppd", "a.ppd", "-d", "office"}), HasSubstr("--ppd FILE"));
  const Arguments none = read({"report.pdf"});
  EXPECT_EQ(none.ppd, "");
  EXPECT_EQ(none.queue, "");
}

TEST(CommandLine, LpsOptionsHaveTheSameMeaning) {
  const Arguments arguments =
      read({"-d", "office", "-h", "server:631", "-n", "3", "-P", "1-3,7", "-t", "Annual report",
            "-q", "70", "-o", "sides=one-sided", "report.pdf"});
  EXPECT_EQ(arguments.server, "server:631");
  EXPECT_EQ(arguments.title, "Annual report");
  EXPECT_THAT(arguments.options, ElementsAre("copies=3", "page-ranges=\"1-3,7\"", "job-priority=70",
                                             "sides=one-sided"));
  EXPECT_THAT(arguments.documents, ElementsAre("report.pdf"));
  EXPECT_FALSE(arguments.isDryRun);
}

TEST(CommandLine, AShortOptionsValueCanFollowWithoutABlank) {
  const Arguments arguments = read({"-doffice", "-n2", "-P4", "-"});
  EXPECT_EQ(arguments.queue, "office");
  EXPECT_THAT(arguments.options, ElementsAre("copies=2", "page-ranges=4"));
  EXPECT_THAT(arguments.documents, ElementsAre("-"));
}

TEST(CommandLine, FlagsCanBeCombinedAndPlacedBetweenDocuments) {
  const Arguments arguments = read({"a.pdf", "-scE", "-U", "mary", "b.ps", "-mn2", "c.txt"});
  EXPECT_TRUE(arguments.isSilent);
  EXPECT_TRUE(arguments.isEncrypted);
  EXPECT_TRUE(arguments.isMailWanted);
  EXPECT_EQ(arguments.user, "mary");
  EXPECT_THAT(arguments.options, ElementsAre("copies=2"));
  EXPECT_THAT(arguments.documents, ElementsAre("a.pdf", "b.ps", "c.txt"));
}

TEST(CommandLine, TheLastOfRepeatedOptionsWins) {
  const Arguments arguments = read(
      {"-d", "hall", "-t", "a", "-n", "2", "-o", "copies=4", "-n", "3", "-d", "office", "-t", "b"});
  EXPECT_EQ(arguments.queue, "office");
  EXPECT_EQ(arguments.title, "b");
  EXPECT_THAT(arguments.options, ElementsAre("copies=2", "copies=4", "copies=3"));
}

TEST(CommandLine, AValueCanBeginWithADash) {
  EXPECT_EQ(read({"-t", "-draft-", "a.pdf"}).title, "-draft-");
  EXPECT_EQ(read({"-t-draft-", "a.pdf"}).title, "-draft-");
}

TEST(CommandLine, AfterTwoDashesEverythingIsADocument) {
  EXPECT_THAT(read({"-s", "--", "-n", "--help", "a.pdf"}).documents,
              ElementsAre("-n", "--help", "a.pdf"));
}

TEST(CommandLine, StandardInputCanBeNamedOnlyOnce) {
  EXPECT_THAT(read({"a.pdf", "-", "b.pdf"}).documents, ElementsAre("a.pdf", "-", "b.pdf"));
  EXPECT_THAT(mistake({"-", "a.pdf", "-"}), HasSubstr("only once"));
}

TEST(CommandLine, HoldTimesAreThoseOfLp) {
  const struct {
    const char *when;
    std::vector<std::string> options;
  } rows[] = {{"hold", {"job-hold-until=indefinite"}},
              {"indefinite", {"job-hold-until=indefinite"}},
              {"immediate", {"job-hold-until=no-hold", "job-priority=100"}},
              {"resume", {"job-hold-until=no-hold"}},
              {"release", {"job-hold-until=no-hold"}},
              {"18:30", {"job-hold-until=18:30"}},
              {"7:05:59", {"job-hold-until=7:05:59"}},
              {"night", {"job-hold-until=night"}}};
  for (const auto &row : rows)
    EXPECT_EQ(read({"-H", row.when, "a.pdf"}).options, row.options) << row.when;
}

TEST(CommandLine, AnInvalidHoldTimeIsRefused) {
  for (const char *when :
       {"", "24:00", "12:60", "12", "12:", ":30", "123:00", "1:2:3:4", "12:30x", "noon", "-1:00"})
    EXPECT_THAT(mistake({"-H", when}), HasSubstr("18:30")) << when;
}

TEST(CommandLine, ChangingAndRestartingJobsIsRefused) {
  EXPECT_THAT(mistake({"-i", "office-12", "-n", "2"}), HasSubstr("lp -i office-12"));
  EXPECT_THAT(mistake({"-ioffice-12"}), HasSubstr("lp -i office-12"));
  EXPECT_THAT(mistake({"-H", "restart"}), HasSubstr("lp -i JOB -H restart"));
}

TEST(CommandLine, AppearanceAndTextScaleAreChecked) {
  const Arguments arguments = read({"--appearance", "dark", "--text-scale", "1.25"});
  EXPECT_EQ(arguments.appearance, "dark");
  EXPECT_EQ(arguments.textScale, "1.25");
  EXPECT_THAT(mistake({"--appearance", "blue"}), HasSubstr("\"dark\""));
  for (const char *scale : {"0", "-1", "large", "1.25x", "nan"})
    EXPECT_THAT(mistake({"--text-scale", scale}), HasSubstr("1.25")) << scale;
}

TEST(CommandLine, PagesAreWrittenAsCupsReadsThem) {
  EXPECT_THAT(read({"-P", "7; 1 - 3", "a.pdf"}).options, ElementsAre("page-ranges=\"1-3,7\""));
  for (const char *pages : {"", "abc", "3-1", "0", "-"})
    mistake({"-P", pages});
}

TEST(CommandLine, CopiesAndPriorityMustBeInTheRangesOfCups) {
  EXPECT_THAT(read({"-n2", "a.pdf"}).options, ElementsAre("copies=2"));
  for (const char *copies : {"0", "-1", "10000", "two"})
    mistake({"-n", copies});
  for (const char *priority : {"0", "101", "high"})
    mistake({"-q", priority});
}

TEST(CommandLine, ADryRunIsRead) { EXPECT_TRUE(read({"--dry-run", "a.pdf"}).isDryRun); }

TEST(CommandLine, APreparedJobIsSetUpWithoutADocument) {
  const Arguments arguments = read({"--prepare", "job", "-d", "office", "-o", "copies=2"});
  EXPECT_EQ(arguments.prepare, "job");
  EXPECT_THAT(mistake({"--prepare", "job", "report.pdf"}), HasSubstr("does not exist yet"));
  for (const char *option : {"--ticket", "--pdf", "--ppd", "--prepared"})
    EXPECT_THAT(mistake({"--prepare", "job", option, "file"}), HasSubstr("--prepare")) << option;
  mistake({"--prepare", "job", "--dry-run"});
}

TEST(CommandLine, APreparedJobHasItsOwnPrinter) {
  EXPECT_EQ(read({"--batch", "--prepared", "job", "-n", "2", "-"}).prepared, "job");
  for (const char *option : {"-d", "--ppd", "--ticket", "--pdf"})
    EXPECT_THAT(mistake({"--prepared", "job", option, "file"}), HasSubstr("--prepared")) << option;
}

TEST(CommandLine, AParentIsAWindowOfX11OrWayland) {
  for (const char *window : {"x11:1", "x11:4A00007", "x11:ffffffff", "wayland:token"})
    EXPECT_EQ(read({"--parent", window}).parent, window);
  for (const char *window :
       {"4a00007", "x11:", "x11:0", "x11:0x4a", "x11:-1", "x11:100000000", "x11:4a ", "wayland:"})
    EXPECT_THAT(mistake({"--parent", window}), HasSubstr("x11:")) << window;
}

TEST(CommandLine, AnEmptyValueIsRefused) {
  for (const char *option : {"--ticket", "--prepared", "--parent", "--back", "-d", "-h", "-U"})
    EXPECT_THAT(mistake({"--ppd", "a.ppd", "--batch", option, ""}), HasSubstr("empty value"));
  EXPECT_THAT(mistake({"--ppd", "a.ppd", ""}), HasSubstr("empty value"));
}

TEST(CommandLine, JobOptionsKeepTheirOrder) {
  EXPECT_THAT(read({"--ppd", "a", "-o", "Duplex=None", "-o", "x y=z"}).options,
              ElementsAre("Duplex=None", "x y=z"));
}

TEST(CommandLine, AnOptionAcceptsOneArgument) {
  const Arguments arguments = read({"--ppd", "a", "-o", "Duplex=None", "report.pdf"});
  EXPECT_THAT(arguments.options, ElementsAre("Duplex=None"));
  EXPECT_THAT(arguments.documents, ElementsAre("report.pdf"));
}

TEST(CommandLine, PluginsAndTicketAreUnchanged) {
  const Arguments arguments =
      read({"--ppd", "a", "--plugin", "A.plugin", "--plugin", "B.plugin", "--ticket", "job.json"});
  EXPECT_THAT(arguments.plugins, ElementsAre("A.plugin", "B.plugin"));
  EXPECT_EQ(arguments.ticket, "job.json");
  EXPECT_FALSE(arguments.isBatch);
}

TEST(CommandLine, BatchOptionsAreRead) {
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

TEST(CommandLine, ErrorMessagesNameTheCorrectForm) {
  EXPECT_THAT(mistake({"--batch", "--ppd", "a", "--set", "FrontLRM"}), HasSubstr("NAME=VALUE"));
  EXPECT_THAT(mistake({"--batch", "--ppd", "a", "--back", "yes"}), HasSubstr("\"on\" or \"off\""));
  EXPECT_THAT(mistake({"--ppd", "a", "--set", "FrontLRM=1"}), HasSubstr("--batch"));
  EXPECT_THAT(mistake({"--ppd", "a", "--summary"}), HasSubstr("--batch"));
  EXPECT_THAT(mistake({"--ppd", "a", "--ticket", "job.options"}), HasSubstr(".json"));
  EXPECT_THAT(mistake({"--ppd", "a", "--nonsense"}), HasSubstr("--help"));
  mistake({"--ppd"});
}

TEST(CommandLine, HelpNamesEveryOptionAndExitStatus) {
  const std::string help = std::get<Answer>(readCommandLine({"--help"})).text;
  for (const char *part :
       {"--ppd",        "-d,",     "-o,",       "-h SERVER", "-n COPIES", "-P PAGES",    "-t TITLE",
        "-q PRIORITY ", "-H WHEN", "-U USER",   "--dry-run", "--plugin",  "--ticket",    "--batch",
        "--set",        "--back",  "--summary", "--version", "Examples:", "Exit status:"})
    EXPECT_THAT(help, HasSubstr(part));
  EXPECT_THAT(help, testing::Not(HasSubstr("VALUE ..."))); // it accepts one
  for (int status = 0; status <= 9; status++)
    EXPECT_THAT(help, HasSubstr("\n  " + std::to_string(status) + "  "));
}

TEST(CommandLine, VersionNamesTheProgramAndItsLibraries) {
  const std::string text = std::get<Answer>(readCommandLine({"--version"})).text;
  EXPECT_THAT(text,
              testing::MatchesRegex("print-dialog [0-9.]+\nBuilt with CUPS [0-9.]+, .+\\.\n"));
}

} // namespace
