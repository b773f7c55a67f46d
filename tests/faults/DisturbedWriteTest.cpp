// The program is killed, or its disk fails, at each step of writing a file.
#include "DialogFixture.hpp"

#include <chrono>
#include <csignal>
#include <functional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace imageposition::test;
using testing::AnyOf;
using testing::HasSubstr;

/// The system calls that change the disk, each kind separately, because strace counts them
/// separately. A slash begins a pattern that matches the variants of a call.
constexpr const char *kCalls[] = {"write",    "fsync", "fchmod",  "/^rename", "/^link",
                                  "/^unlink", "flock", "/^mkdir", "ftruncate"};

class DisturbedWrite : public DialogFixture {
protected:
  static bool becomesTrue(const std::function<bool()> &condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!condition() && std::chrono::steady_clock::now() < deadline)
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return condition();
  }

  /// The file's contents before and after.
  struct File {
    std::string path;
    std::string before;
    std::string after;
  };

  /// Runs the program once for each of its system calls and disturbs that call. Returns the number
  /// of runs.
  int disturbEach(const std::string &how, const Words &program, const Words &environment,
                  std::vector<File> files) {
    for (const File &file : files)
      writeFile(file.path, file.before);
    EXPECT_EQ(runProcess(program, environment).status, kDone);
    for (File &file : files)
      file.after = contentOf(file.path);
    int times = 0;
    for (const std::string call : kCalls)
      for (int count = 1; disturb(call, how, count, program, environment, files); count++)
        times++;
    return times;
  }

  /// Whether there was such a call.
  bool disturb(const std::string &call, const std::string &how, int count, const Words &program,
               const Words &environment, const std::vector<File> &files) {
    for (const File &file : files)
      writeFile(file.path, file.before);
    const auto result =
        runProcess(disturbed(call, how, std::to_string(count), program), environment);
    for (const File &file : files)
      EXPECT_THAT(contentOf(file.path), AnyOf(file.before, file.after))
          << call << " " << count << ": " << file.path;
    expectClear(result, count);
    return traceHas("INJECTED") || traceHas("killed by SIGKILL");
  }

  /// `when` is the number of the call, followed by "+" to include all later ones.
  Words disturbed(const std::string &call, const std::string &how, const std::string &when,
                  const Words &program) const {
    // LeakSanitizer, in a build that has it, does not work in a traced program.
    Words words{"strace", "-qq",
                "-E",     "LSAN_OPTIONS=detect_leaks=0",
                "-o",     trace,
                "-e",     "trace=" + call,
                "-e",     "inject=" + call + ":" + how + ":when=" + when};
    words.insert(words.end(), program.begin(), program.end());
    return words;
  }

  bool traceHas(const std::string &words) const {
    return contentOf(trace).find(words) != std::string::npos;
  }

  static void expectClear(const ProcessResult &result, int call) {
    if (result.status == 128 + SIGKILL)
      return;
    EXPECT_LT(result.status, 128) << call << ": " << testing::PrintToString(result);
  }

  static void writeFile(const std::string &path, const std::string &content) {
    std::ofstream(path, std::ios::binary) << content;
  }

  Words ticketWriter() const {
    return {PRINT_DIALOG, "--batch", "--ppd", sample("duplex-shift.ppd"),
            "--ticket",   ticket,    "--set", "FrontLRM=-3"};
  }
  std::vector<File> ticketFiles() const {
    return {{ticket, R"({"settings": {"LeftRightMargin": "9", "Foreign": "kept"}})", ""},
            {folder.path("job.options"), "Foreign=kept\n", ""}};
  }

  Words presetEnvironment() const {
    return {"HOME=" + folder.path("home"), "CUPS_SERVERROOT=" + folder.path("home/.cups")};
  }
  std::vector<File> presetFiles() {
    std::filesystem::create_directories(folder.path("home/.cups"));
    return {{folder.path("home/.cups/lpoptions"),
             "Default office Duplex=None\nDest office/mine Duplex=DuplexTumble\n# kept\n", ""}};
  }
  const Words presetWriter{PRESET_WRITER, "office", "other", "Duplex=DuplexNoTumble"};
  const std::string ticket = folder.path("job.json");
  const std::string trace = folder.path("trace");
};

TEST_F(DisturbedWrite, KillingTheProgramAtAnyMomentLeavesTicketsWhole) {
  const int times = disturbEach("signal=SIGKILL", ticketWriter(), {}, ticketFiles());
  EXPECT_GE(times, 10); // two files, each written, synced and renamed, then the folder synced
  RecordProperty("times", times);
}

TEST_F(DisturbedWrite, KillingTheProgramAtAnyMomentLosesNoPreset) {
  const int times = disturbEach("signal=SIGKILL", presetWriter, presetEnvironment(), presetFiles());
  EXPECT_GE(times, 7);
  EXPECT_THAT(contentOf(folder.path("home/.cups/lpoptions")),
              testing::AllOf(HasSubstr("Dest office/mine Duplex=DuplexTumble\n"),
                             HasSubstr("Dest office/other Duplex=DuplexNoTumble\n"),
                             HasSubstr("# kept\n")));
  RecordProperty("times", times);
}

TEST_F(DisturbedWrite, ADiskThatIsFullOrFailsAtAnyStepLeavesTicketsWhole) {
  for (const char *error : {"ENOSPC", "EIO"}) {
    SCOPED_TRACE(error);
    EXPECT_GE(disturbEach(std::string("error=") + error, ticketWriter(), {}, ticketFiles()), 10);
  }
}

TEST_F(DisturbedWrite, ADiskThatIsFullOrFailsAtAnyStepLosesNoPreset) {
  for (const char *error : {"ENOSPC", "EIO", "EDQUOT", "EROFS"}) {
    SCOPED_TRACE(error);
    EXPECT_GE(disturbEach(std::string("error=") + error, presetWriter, presetEnvironment(),
                          presetFiles()),
              7);
  }
}

TEST_F(DisturbedWrite, WhenTheTicketCannotBeRenamedItsOptionsStayUnchanged) {
  for (const File &file : ticketFiles())
    writeFile(file.path, file.before);
  const auto result = runProcess(disturbed("/^rename", "error=EIO", "2", ticketWriter()));
  EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
  for (const File &file : ticketFiles())
    EXPECT_EQ(contentOf(file.path), file.before) << file.path;
  EXPECT_EQ(folder.fileCount(), 3U) << "there are more files than these and the trace";
}

TEST_F(DisturbedWrite, WhenANewTicketCannotBeRenamedNoOptionsAreLeft) {
  const auto result = runProcess(disturbed("/^rename", "error=EIO", "2", ticketWriter()));
  EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
  EXPECT_EQ(folder.fileCount(), 1U) << "there are more files than the trace";
}

TEST_F(DisturbedWrite, OptionsThatCannotBeRestoredAreNamed) {
  for (const File &file : ticketFiles())
    writeFile(file.path, file.before);
  const auto result = runProcess(disturbed("/^rename", "error=EIO", "2+", ticketWriter()));
  EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, HasSubstr(ticket));
  EXPECT_THAT(result.errors, HasSubstr(folder.path("job.options")));
}

/// The program that strace runs.
pid_t programUnder(const Process &strace) {
  const std::string id = std::to_string(strace.id());
  return std::stoi(contentOf("/proc/" + id + "/task/" + id + "/children"));
}

// lpoptions(1) may read and rewrite the file at any time.
TEST_F(DisturbedWrite, ChangesByAnotherProgramWhileAPresetIsSavedAreKept) {
  const File file = presetFiles().front();
  writeFile(file.path, file.before);
  Process saving(disturbed("fsync", "signal=SIGSTOP", "1", presetWriter), presetEnvironment());
  ASSERT_TRUE(becomesTrue([&] { return traceHas("stopped by SIGSTOP") || saving.hasEnded(); }));
  const std::string theirs = "Dest office/theirs Fold=Z\n";
  writeFile(file.path, file.before + theirs);
  kill(programUnder(saving), SIGCONT);
  EXPECT_EQ(saving.wait().status, kDone) << testing::PrintToString(saving.wait());
  EXPECT_EQ(contentOf(file.path),
            file.before + theirs + "Dest office/other Duplex=DuplexNoTumble\n");
}

/// Runs without root's permissions for all files.
class WithoutRights : public DisturbedWrite {
protected:
  static Words withoutRootsRights(Words program) {
    if (geteuid() == 0)
      program.insert(program.begin(), {"setpriv", "--bounding-set=-dac_override,-dac_read_search"});
    return program;
  }
};

TEST_F(WithoutRights, ATicketInAFolderThatCannotBeWrittenIsNamedAndStays) {
  const std::vector<File> files = ticketFiles();
  for (const File &file : files)
    writeFile(file.path, file.before);
  chmod(folder.path().c_str(), 0555);
  const auto result = runProcess(withoutRootsRights(ticketWriter()));
  chmod(folder.path().c_str(), 0755);
  EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, HasSubstr("job.json\""));
  EXPECT_THAT(result.errors, HasSubstr("Permission denied"));
  for (const File &file : files)
    EXPECT_EQ(contentOf(file.path), file.before);
  EXPECT_EQ(folder.fileCount(), 2u);
}

TEST_F(WithoutRights, ATicketThatCannotBeReadIsNamedAndStays) {
  const std::vector<File> files = ticketFiles();
  for (const File &file : files)
    writeFile(file.path, file.before);
  chmod(folder.path().c_str(), 0777);
  chmod(ticket.c_str(), 0000);
  const auto result = runProcess(withoutRootsRights(ticketWriter()));
  chmod(ticket.c_str(), 0600);
  EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, HasSubstr("job.json\""));
  EXPECT_EQ(contentOf(ticket), files.front().before);
}

TEST_F(WithoutRights, PresetsThatCannotBeWrittenAreNamedAndStay) {
  const File file = presetFiles().front();
  writeFile(file.path, file.before);
  chmod(folder.path("home/.cups").c_str(), 0555);
  const auto result = runProcess(withoutRootsRights(presetWriter), presetEnvironment());
  chmod(folder.path("home/.cups").c_str(), 0755);
  EXPECT_EQ(result.status, kPrinter) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, HasSubstr("lpoptions"));
  EXPECT_EQ(contentOf(file.path), file.before);
}

} // namespace
