// Printers of a private CUPS server.
#include "DialogFixture.hpp"
#include "OfficeQueue.hpp"

#include <chrono>
#include <ctime>
#include <filesystem>
#include <set>
#include <sstream>
#include <thread>

namespace {

using namespace imageposition::test;
using testing::Contains;
using testing::HasSubstr;
using testing::Pair;

class Queue : public WithOfficeQueue<DialogFixture> {
protected:
  ProcessResult print(const std::string &queue, const Words &words) {
    Words all{"--batch", "-d", queue};
    all.insert(all.end(), words.begin(), words.end());
    return dialog(all, cups->environment());
  }
};

TEST_F(Queue, ItsDescriptionComesFromCups) {
  const auto result =
      print("office", {"--set", "FrontLRM=-3", "--ticket", folder.path("job.json")});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_EQ(settingsIn(contentOf(folder.path("job.options"))),
            offsets("-3", "0", "0", "0", "False"));
  EXPECT_THAT(contentOf(folder.path("job.json")), HasSubstr("\"printer\": \"office\""));
}

TEST_F(Queue, TheJobsOptionsOverrideItsDefaults) {
  cups->run({"lpadmin", "-p", "office", "-o", "Duplex=None"});
  EXPECT_EQ(print("office", {"--set", "FrontLRM=-3"}).status, kValue);
  const auto result = print("office", {"-o", "Duplex=DuplexTumble", "--set", "FrontLRM=-3"});
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(settingsIn(result.output), Contains(Pair("Duplex", "DuplexTumble")));
}

TEST_F(Queue, AnInstanceHasSeparateDefaults) {
  cups->run({"lpoptions", "-p", "office/single", "-o", "Duplex=None"});
  EXPECT_EQ(print("office", {"--set", "FrontLRM=-3"}).status, kDone);
  EXPECT_EQ(print("office/single", {"--set", "FrontLRM=-3"}).status, kValue);
  cups->run({"lpoptions", "-x", "office/single"});
}

TEST_F(Queue, AnInstancesOffsetOutOfRangeIsLimitedAndReported) {
  cups->run({"lpoptions", "-p", "office/far", "-o", "LeftRightMargin=Custom.400", "-o",
             "TopBottomMargin=-7"});
  const auto result = print("office/far", {});
  EXPECT_EQ(settingsIn(result.output), offsets("100", "-7", "0", "0", "False"));
  EXPECT_THAT(result.errors, HasSubstr("to 100 instead of 400"));
  cups->run({"lpoptions", "-x", "office/far"});
}

TEST_F(Queue, LpAcceptsTheOptionsInTheTicket) {
  print("office", {"--set", "FrontLRM=-3", "--back", "on", "--ticket", folder.path("job.json")});
  const std::string options = contentOf(folder.path("job.options"));
  const auto sent = cups->run({"lp", "-d", "office", "-o", options, sample("two-sided.pdf")});
  EXPECT_EQ(sent.status, 0) << testing::PrintToString(sent);
  EXPECT_THAT(sent.output, HasSubstr("request id is office-"));
}

TEST_F(Queue, AnErrorNamesAMissingOneAndWhereToLook) {
  const auto result = print("attic", {});
  EXPECT_EQ(result.status, kPrinter);
  EXPECT_THAT(result.errors, HasSubstr("\"attic\""));
  EXPECT_THAT(result.errors, HasSubstr("lpstat -e"));
}

TEST_F(Queue, AnErrorNamesOneWithoutADescription) {
  cups->run({"lpadmin", "-p", "plain", "-E", "-v", "file:///dev/null", "-m", "raw"});
  EXPECT_EQ(print("plain", {}).status, kPrinter);
  cups->run({"lpadmin", "-x", "plain"});
}

TEST_F(Queue, LeavesNoCopyOfItsDescriptionBehind) {
  print("office", {});
  TemporaryFolder empty;
  const auto result =
      dialog({"--batch", "-d", "office"}, {cups->environment().front(), "TMPDIR=" + empty.path()});
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  for (const auto &entry : std::filesystem::directory_iterator(empty.path()))
    EXPECT_THAT(contentOf(entry.path().string()), testing::Not(HasSubstr("PPD-Adobe")));
}

/// The number behind "request id is office-".
int jobIn(const std::string &output) {
  const std::size_t dash = output.find("office-");
  return dash == std::string::npos ? 0 : std::atoi(output.c_str() + dash + 7);
}

TEST_F(Queue, ReportsTheJobAsLpDoes) {
  const std::string document = sample("two-sided.pdf");
  const Words lp{"lp", "-d", "office", "-H", "hold", "-t", "a", document, document};
  const auto theirs = cups->run(lp);
  const auto ours = print("office", {"-H", "hold", "-t", "a", document, document});
  ASSERT_EQ(ours.status, kDone) << testing::PrintToString(ours);
  EXPECT_EQ(ours.output,
            "request id is office-" + std::to_string(jobIn(ours.output)) + " (2 file(s))\n");
  EXPECT_EQ(theirs.output,
            "request id is office-" + std::to_string(jobIn(ours.output) - 1) + " (2 file(s))\n");
  cups->run({"cancel", "-a", "-x"});
}

/// A time of day at which no hold ends soon; a name such as "night" does not hold a job at night.
std::string halfADayFromNow() {
  const std::time_t then = std::time(nullptr) + 12 * 60 * 60;
  char text[sizeof "23:59"];
  std::strftime(text, sizeof text, "%H:%M", std::gmtime(&then));
  return text;
}

TEST_F(Queue, SendsCupsTheSameJobAsLp) {
  const std::string document = sample("two-sided.pdf");
  const std::vector<Words> lines = {
      {document},
      {"-H", "hold", document, document, document},
      {"-H", "indefinite", "-n", "2", "-q", "70", "-P", "1-2", "-U", "mary", document},
      {"-H", halfADayFromNow(), "-n", "2", "-o", "copies=4 sides=one-sided", "-t", "Annual report",
       document},
      {"-H", "immediate", "-o", "number-up=2", "-o", "nocollate", "--", document}};
  for (const Words &line : lines) {
    SCOPED_TRACE(testing::PrintToString(line));
    cups->run({"cupsdisable", "office"});
    Words lp{"lp", "-d", "office"};
    lp.insert(lp.end(), line.begin(), line.end());
    const int theirs = jobIn(cups->run(lp).output);
    const auto result = print("office", line);
    const int ours = jobIn(result.output);
    ASSERT_NE(theirs, 0);
    ASSERT_NE(ours, 0) << testing::PrintToString(result);
    for (const char *name :
         {"job-name", "number-of-documents", "job-hold-until", "job-priority", "copies", "sides",
          "page-ranges", "number-up", "job-originating-user-name", "job-state"})
      EXPECT_EQ(cups->jobAttribute(ours, name), cups->jobAttribute(theirs, name)) << name;
    cups->run({"cancel", "-a", "-x"});
  }
}

TEST_F(Queue, TheSettingJobNameIsTheJobsTitle) {
  const auto result = dialog({"--batch", "--dry-run", "-d", "office", "-t", "a", "-o", "job-name=b",
                              sample("two-sided.pdf")},
                             cups->environment());
  EXPECT_THAT(result.output, HasSubstr("job-name (nameWithoutLanguage) = b\n"));
  EXPECT_EQ(result.output.find("job-name"), result.output.rfind("job-name")) << result.output;
}

TEST_F(Queue, WritesNothingAboutTheJobWithSilenceOrMail) {
  const std::string document = sample("two-sided.pdf");
  for (const char *option : {"-s", "-m"}) {
    const auto result = print("office", {option, "-H", "hold", document});
    EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
    EXPECT_EQ(result.output + result.errors, "");
    EXPECT_THAT(cups->run({"lpstat", "-o"}).output, HasSubstr("office-"));
    cups->run({"cancel", "-a", "-x"});
  }
}

TEST_F(Queue, TheWholeProgramUsesTheNamedServer) {
  const auto result = dialog(
      {"--batch", "-h", cups->socket(), "-d", "office", "-H", "hold", sample("two-sided.pdf")},
      {"CUPS_SERVER=/nonexistent/cups.sock"});
  EXPECT_NE(jobIn(result.output), 0) << testing::PrintToString(result);
  cups->run({"cancel", "-a", "-x"});
}

/// The inode numbers of the sockets that a process has open.
std::set<std::string> socketsOf(const std::string &process) {
  std::set<std::string> numbers;
  std::error_code gone;
  for (const auto &entry : std::filesystem::directory_iterator("/proc/" + process + "/fd", gone)) {
    const std::string target = std::filesystem::read_symlink(entry.path(), gone).string();
    if (target.compare(0, 8, "socket:[") == 0)
      numbers.insert(target.substr(8, target.size() - 9));
  }
  return numbers;
}

/// The display of the X server that the process has started; empty while there is none.
std::string displayStartedBy(pid_t process) {
  const std::string id = std::to_string(process), folder = ".X11-unix/X";
  std::istringstream children(contentOf("/proc/" + id + "/task/" + id + "/children"));
  for (std::string child; children >> child;) {
    const auto sockets = socketsOf(child);
    std::istringstream all(contentOf("/proc/net/unix"));
    for (std::string line; std::getline(all, line);) {
      std::istringstream words(line);
      std::string number;
      for (int column = 0; column < 7; column++)
        words >> number;
      const std::size_t at = line.find(folder);
      if (at != std::string::npos && sockets.count(number) != 0)
        return ":" + line.substr(at + folder.size());
    }
  }
  return {};
}

TEST_F(Queue, APrivateDisplayRefusesOtherPrograms) {
  Words environment = cups->environment();
  environment.emplace_back("DISPLAY");
  // It waits for its document after creating the panel.
  Process waiting(
      {"/bin/bash", "-c", "exec \"$0\" --batch -d office - < <(exec sleep 60)", PRINT_DIALOG},
      environment);
  std::string display;
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while ((display = displayStartedBy(waiting.id())).empty() && !waiting.hasEnded() &&
         std::chrono::steady_clock::now() < deadline)
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  ASSERT_NE(display, "");
  const auto other = runProcess({"xdotool", "getmouselocation"},
                                {"DISPLAY=" + display, "XAUTHORITY", "HOME=" + folder.path()});
  EXPECT_NE(other.status, 0) << testing::PrintToString(other);
  EXPECT_FALSE(waiting.hasEnded()) << testing::PrintToString(waiting.wait());
}

} // namespace
