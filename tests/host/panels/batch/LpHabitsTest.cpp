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

TEST_F(LpHabits, APrinterWithoutAPanelPrints) {
  const auto result = print("plain", {"-n2", document});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, Not(HasSubstr("panel")));
  EXPECT_EQ(cups->jobAttribute(jobIn(result, "plain"), "copies"), "2");
}

TEST_F(LpHabits, APrinterWithoutAPanelIsRefusedIfAnOptionRequiresOne) {
  for (const Words &words : {Words{"--set", "FrontLRM=1"}, {"--back", "off"}, {"--summary"}})
    expectRefused(print("plain", {"--no-shift", words.front(), words.back(), document}), kNoPanel,
                  "panel");
}

TEST_F(LpHabits, OffsetsOfABackThatFollowsTheFrontAreMentioned) {
  const Words back{"--dry-run", "-o", "BackLeftRightMargin=-20", document};
  const auto ignored = print("plain", back);
  EXPECT_EQ(ignored.status, kDone);
  EXPECT_THAT(ignored.errors, HasSubstr("add --back on"));
  Words separate{"--back", "on"};
  separate.insert(separate.end(), back.begin(), back.end());
  EXPECT_THAT(print("plain", separate).errors, Not(HasSubstr("add --back on")));
}

TEST_F(LpHabits, ADryRunFailsForADocumentThatCannotBeMoved) {
  const std::string damaged = folder.write("damaged.pdf", "%PDF-1.4\n");
  expectRefused(print("plain", {"--dry-run", "-o", "LeftRightMargin=-20", damaged}), kJob,
                "damaged.pdf");
}

TEST_F(LpHabits, PagesThatTheDocumentLacksAreRefused) {
  for (const char *offset : {"LeftRightMargin=0", "LeftRightMargin=5"}) {
    expectRefused(print("plain", {"-o", offset, "-P", "20-30", document}), kUsage,
                  "The document has 2 pages.");
    expectRefused(print("plain", {"-o", offset, "-P", "2", "-o", "number-up=2", document}), kUsage,
                  "fills 1 side.");
  }
}

TEST_F(LpHabits, ADryRunTellsThatThePrinterWouldNotPrint) {
  cups->run({"cupsdisable", "-r", "Out for lunch", "plain"});
  const auto stopped = print("plain", {"--dry-run", document});
  EXPECT_EQ(stopped.status, kDone);
  EXPECT_THAT(stopped.errors, HasSubstr("would not print now: Paused \u00B7 Out for lunch"));
  const auto sent = print("plain", {document});
  EXPECT_THAT(sent.errors, HasSubstr("Its state: Paused \u00B7 Out for lunch"));
  cups->run({"cupsenable", "plain"});
  cups->run({"cupsreject", "plain"});
  EXPECT_THAT(print("plain", {"--dry-run", document}).errors, HasSubstr("Not accepting jobs"));
  cups->run({"cupsaccept", "plain"});
}

TEST_F(LpHabits, APdfFileDoesNotReplaceItsDocument) {
  const std::string own = folder.write("own.pdf", contentOf(document));
  expectRefused(print("plain", {"--pdf", own, own}), kUsage, "is the document itself");
  EXPECT_EQ(contentOf(own), contentOf(document));
}

TEST_F(LpHabits, StandardInputIsPrinted) {
  for (const char *command :
       {"cat \"$1\" | \"$0\" --batch -d office", "cat \"$1\" | \"$0\" --batch -d office -",
        "\"$0\" --batch -d office <\"$1\""}) {
    const auto result = shell(command, document);
    EXPECT_EQ(result.status, kDone) << command << testing::PrintToString(result);
    const int job = jobIn(result, "office");
    EXPECT_THAT(result.output, HasSubstr(" (0 file(s))\n"));
    const int theirs = jobIn(cups->run({"lp", "-d", "office", document}), "office");
    EXPECT_EQ(sizeOf(job), sizeOf(theirs)) << command;
  }
}

TEST_F(LpHabits, EmptyStandardInputIsRefused) {
  const std::string empty = folder.write("empty.pdf", "");
  for (const char *command :
       {": | \"$0\" --batch -d office", ": | \"$0\" --batch -d office -",
        "\"$0\" --batch -d office <\"$1\"", "\"$0\" --batch -d office - </dev/null"})
    expectRefused(shell(command, empty), kUsage, "Standard input is empty. Nothing was printed.");
}

TEST_F(LpHabits, AnOffsetThatIsNoNumberIsRefused) {
  for (const std::string value : {"abc", "--3", "", "5-", "1a2b3", "+", " "})
    expectRefused(print("office", {"--set", "FrontLRM=" + value, document}), kValue,
                  "FrontLRM: \"" + value + "\" is not a number.");
  for (const std::string value : {"1.5", "1,5", "5.0"})
    expectRefused(print("office", {"--set", "FrontLRM=" + value, document}), kValue,
                  "FrontLRM must be a whole number. Enter -100 to 100.");
  expectRefused(print("office", {"-o", "LeftRightMargin=abc", document}), kValue,
                "LeftRightMargin: \"abc\" is not a number.");
  expectRefused(print("office", {"-o", "LeftRightMargin=Custom.1.5", document}), kValue,
                "LeftRightMargin must be a whole number. Enter -100 to 100.");
}

TEST_F(LpHabits, AnOffsetOutOfThePrintersRangeIsRefused) {
  cups->run({"lpadmin", "-p", "narrow", "-E", "-v", "file:///dev/null", "-P",
             sample("duplex-shift-narrow.ppd")});
  const std::string problem = " is out of range. Enter ";
  for (const char *value : {"101", "-101", "99999999999"}) {
    const std::string text = value;
    expectRefused(print("office", {"--set", "FrontLRM=" + text, document}), kValue,
                  "FrontLRM" + problem + "-100 to 100.");
    expectRefused(print("office", {"-o", "LeftRightMargin=" + text, document}), kValue,
                  "LeftRightMargin" + problem + "-100 to 100.");
  }
  expectRefused(print("narrow", {"--set", "FrontTBM=51", document}), kValue,
                "FrontTBM" + problem + "-50 to 50.");
  expectRefused(print("narrow", {"-o", "TopBottomMargin=-51", document}), kValue,
                "TopBottomMargin" + problem + "-50 to 50.");
  EXPECT_EQ(print("narrow", {"-o", "TopBottomMargin=-50", "--set", "FrontLRM=+50"}).status, kDone);
  cups->run({"lpadmin", "-x", "narrow"});
}

TEST_F(LpHabits, AnOffsetIsRefusedInADryRunAndForATicketToo) {
  expectRefused(print("office", {"--dry-run", "-o", "LeftRightMargin=999", document}), kValue,
                "LeftRightMargin");
  const std::string ticket = folder.path("job.json");
  expectRefused(print("office", {"--ticket", ticket, "--set", "FrontLRM=abc"}), kValue, "FrontLRM");
  EXPECT_FALSE(std::filesystem::exists(ticket));
}

TEST_F(LpHabits, AnEmptyFileIsRefusedInADryRunToo) {
  const std::string empty = folder.write("empty.pdf", "");
  for (const char *queue : {"office", "plain"}) {
    expectRefused(print(queue, {empty}), kUsage, "empty.pdf\" is empty.");
    expectRefused(print(queue, {"--dry-run", empty}), kUsage, "empty.pdf\" is empty.");
  }
}

TEST_F(LpHabits, APageRangeThatCupsWouldNotUnderstandIsRefused) {
  expectRefused(print("office", {"-P", "abc", document}), kUsage,
                "print-dialog: \"abc\" is not a page range. Use, for example, 1-3, 7.\n");
  expectRefused(print("office", {"-P", "", document}), kUsage,
                "print-dialog: The page range is empty. Use, for example, 1-3, 7.\n");
  expectRefused(print("office", {"-P", "3-1", document}), kUsage, "Use 1-3.");
  const auto result = print("office", {"-P1-3,7", document});
  EXPECT_EQ(cups->jobAttribute(jobIn(result, "office"), "page-ranges"), "1-3,7-7");
}

TEST_F(LpHabits, ANumberOfCopiesThatCupsDoesNotAcceptIsRefused) {
  for (const char *copies : {"0", "-1", "abc", "", "10000", "2x"})
    expectRefused(print("office", {"-n", copies, document}), kUsage,
                  "print-dialog: Enter a number of copies from 1 to 9999.\n");
}

/// As old archives and other systems leave them.
TEST_F(LpHabits, AFileWithALatin1NamePrints) {
  const std::string latin = folder.path("caf\xE9.pdf");
  std::filesystem::copy_file(document, latin);
  const auto result = print("office", {latin});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_EQ(cups->jobAttribute(jobIn(result, "office"), "job-name"), "caf\xEF\xBF\xBD.pdf");
  const auto missing = print("office", {folder.path("th\xE9.pdf")});
  EXPECT_EQ(missing.status, kUsage);
  EXPECT_THAT(missing.errors, HasSubstr("th\xEF\xBF\xBD.pdf"));
}

} // namespace
