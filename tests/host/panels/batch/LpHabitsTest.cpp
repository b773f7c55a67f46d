// print-dialog in scripts, used as lp is, on a private CUPS server.
#include "DialogFixture.hpp"
#include "OfficeQueue.hpp"

#include <cstdlib>

namespace {

using namespace imageposition::test;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;

constexpr const char *kFlag = "com.morva.printsettings.19AImagePositionEnable";

/// "office" has the panel, "plain" has none. Jobs are held, so that each test can examine them.
class LpHabits : public WithOfficeQueue<DialogFixture> {
protected:
  static void SetUpTestSuite() {
    WithOfficeQueue::SetUpTestSuite();
    cups->run({"lpadmin", "-p", "plain", "-E", "-v", "file:///dev/null", "-P",
               sample("duplex-plain.ppd")});
  }
  void SetUp() override {
    WithOfficeQueue::SetUp();
    cups->run({"cupsdisable", "office", "plain"});
  }
  void TearDown() override {
    cups->run({"cancel", "-a", "-x"});
    WithOfficeQueue::TearDown();
  }

  ProcessResult print(const std::string &queue, const Words &words) const {
    Words all{"--batch", "-d", queue};
    all.insert(all.end(), words.begin(), words.end());
    return dialog(all, cups->environment());
  }
  /// `$0` is print-dialog, `$1` a document.
  ProcessResult shell(const std::string &command, const std::string &file) const {
    return runProcess({"/bin/bash", "-c", command, PRINT_DIALOG, file}, cups->environment());
  }

  /// The settings of a job for "office", without printing it.
  std::map<std::string, std::string> settingsOf(const std::string &queue,
                                                const Words &words) const {
    const auto result = print(queue, words);
    EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
    return settingsIn(result.output);
  }

  static std::string jobs() { return cups->run({"lpstat", "-o"}).output; }
  /// The number behind "request id is QUEUE-".
  static int jobIn(const ProcessResult &result, const std::string &queue) {
    const std::string start = "request id is " + queue + "-";
    const std::size_t at = result.output.find(start);
    EXPECT_NE(at, std::string::npos) << testing::PrintToString(result);
    return at == std::string::npos ? 0 : std::atoi(result.output.c_str() + at + start.size());
  }
  static std::string sizeOf(int job) { return cups->jobAttribute(job, "job-k-octets"); }

  /// Expects that nothing reached CUPS or standard output.
  void expectRefused(const ProcessResult &result, Status status,
                     const std::string &sentence) const {
    EXPECT_EQ(result.status, status) << testing::PrintToString(result);
    EXPECT_THAT(result.errors, HasSubstr(sentence));
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_THAT(jobs(), IsEmpty());
  }

  const std::string document = sample("two-sided.pdf");
};

TEST_F(LpHabits, TheFlagForTheBackIsABooleanInEverySpelling) {
  const std::string name = kFlag;
  const Words on{name,          name + "=true", name + "=True", name + "=TRUE", name + "=1",
                 name + "=yes", name + "=Yes",  name + "=on",   name + "=ON"};
  for (const std::string &option : on)
    EXPECT_THAT(settingsOf("office", {"-o", option}), Contains(Pair(kFlag, "True"))) << option;
  const Words off{"no" + name, "No" + name,  name + "=false", name + "=False",
                  name + "=0", name + "=no", name + "=NO",    name + "=off"};
  for (const std::string &option : off)
    EXPECT_THAT(settingsOf("office", {"-o", option}), Contains(Pair(kFlag, "False"))) << option;
}

TEST_F(LpHabits, TheFlagInAnOptionMakesTheBacksFieldsAvailable) {
  const auto result = print("office", {"-o", kFlag, "--set", "BackLRM=5", document});
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  const int job = jobIn(result, "office");
  EXPECT_EQ(cups->jobAttribute(job, kFlag), "true");
  EXPECT_EQ(cups->jobAttribute(job, "BackLeftRightMargin"), "5");
}

TEST_F(LpHabits, TheFlagInAPresetOfLpoptionsIsABooleanInEverySpelling) {
  const std::string name = kFlag;
  for (const std::string &option : {name, name + "=yes", name + "=1"}) {
    cups->run({"lpoptions", "-p", "office/shifted", "-o", option, "-o", "BackLeftRightMargin=4"});
    const auto settings = settingsOf("office/shifted", {});
    EXPECT_THAT(settings, Contains(Pair(kFlag, "True"))) << option;
    EXPECT_THAT(settings, Contains(Pair("BackLeftRightMargin", "4"))) << option;
    cups->run({"lpoptions", "-x", "office/shifted"});
  }
}

/// lpoptions writes "=true"; a person may edit the file.
TEST_F(LpHabits, TheFlagAloneInThePresetFileIsTrue) {
  const std::string place = cups->home() + "/.cups";
  std::filesystem::create_directories(place);
  std::ofstream(place + "/lpoptions") << "Dest office/bare " << kFlag << "\n";
  EXPECT_THAT(settingsOf("office/bare", {}), Contains(Pair(kFlag, "True")));
  std::filesystem::remove(place + "/lpoptions");
}

TEST_F(LpHabits, TheFlagInATicketIsABooleanInEverySpelling) {
  for (const char *value : {"true", "yes", "1", "on"}) {
    const std::string ticket = folder.write("job.json", std::string("{\"settings\": {\"") + kFlag +
                                                            "\": \"" + value + "\"}}");
    EXPECT_EQ(print("office", {"--ticket", ticket}).status, kDone);
    EXPECT_THAT(settingsIn(contentOf(folder.path("job.options"))), Contains(Pair(kFlag, "True")))
        << value;
  }
}

} // namespace
