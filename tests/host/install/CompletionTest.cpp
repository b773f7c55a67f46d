// Completion in the real shells, by sending keys.
#include "CommandWords.hpp"
#include "PrivateCups.hpp"

#include <gmock/gmock.h>

namespace {

using namespace imageposition::test;
using testing::ElementsAre;
using testing::IsSupersetOf;

using Words = std::vector<std::string>;

struct Shell {
  const char *name;
  const char *file;
};
constexpr Shell kBash{"bash", IMAGEPOSITION_INSTALL "/completions/print-dialog.bash"};
constexpr Shell kZsh{"zsh", IMAGEPOSITION_INSTALL "/completions/_print-dialog"};

class Completion : public testing::TestWithParam<Shell> {
protected:
  static void SetUpTestSuite() {
    cups = std::make_unique<PrivateCups>();
    for (const char *queue : {"office", "hall"})
      cups->run({"lpadmin", "-p", queue, "-E", "-v", "file:///dev/null", "-P",
                 IMAGEPOSITION_SAMPLES "/duplex-shift.ppd"});
    cups->run({"lpoptions", "-p", "office/draft", "-o", "Duplex=None"});
  }
  static void TearDownTestSuite() { cups.reset(); }

  void SetUp() override {
    ASSERT_TRUE(cups->isRunning()) << cups->log();
    for (const char *name : {"job.json", "printer.ppd", "report.pdf"})
      folder.write(name, "");
    std::filesystem::create_directory(folder.path("Extra.plugin"));
  }

  /// The candidates for the last word of `line`, which follows "print-dialog ".
  Words all(const std::string &line, Words environment = cups->environment()) {
    return completed(line, "all", environment);
  }
  /// The last word after the Tab key.
  Words tab(const std::string &line) { return completed(line, "tab", cups->environment()); }

  Words completed(const std::string &line, const char *key, const Words &environment) {
    const std::string program =
        "cd " + folder.path() + " && exec \"$0\" \"$@\""; // where the files to complete are
    const auto result = runProcess({"sh", "-c", program, COMPLETE, GetParam().name, GetParam().file,
                                    "print-dialog " + line, key},
                                   environment);
    EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
    std::istringstream lines(result.output);
    Words words;
    for (std::string word; std::getline(lines, word);)
      words.push_back(word);
    const auto before = std::count(line.begin(), line.end(), ' ') + 1;
    if (words.size() < static_cast<std::size_t>(before))
      return {};
    return {words.begin() + before, words.end()};
  }

  TemporaryFolder folder;
  static std::unique_ptr<PrivateCups> cups;
};

std::unique_ptr<PrivateCups> Completion::cups;

TEST_P(Completion, OffersTheOptionsOfTheHelpAndNoOthers) {
  const Words offered = all("-");
  EXPECT_EQ(std::set<std::string>(offered.begin(), offered.end()), optionsOfHelp());
}

TEST_P(Completion, CompletesALongOption) { EXPECT_THAT(tab("--su"), ElementsAre("--summary")); }

TEST_P(Completion, OffersQueuesWithTheirPresets) {
  EXPECT_THAT(all("-d "), testing::UnorderedElementsAre("hall", "office", "office/draft"));
  EXPECT_THAT(all("--queue ha"), ElementsAre("hall"));
}

TEST_P(Completion, OffersTheOptionsOfTheChosenPrinter) {
  EXPECT_THAT(all("-d office -o "), IsSupersetOf({"Duplex=", "MediaType="}));
  EXPECT_THAT(tab("-d office -o Dup"), ElementsAre("Duplex="));
}

TEST_P(Completion, OffersTheChoicesOfAnOption) {
  const Words choices = all("-d office -o Duplex=");
  std::string joined;
  for (const std::string &word : choices)
    joined += word + " ";
  for (const char *choice : {"None", "DuplexNoTumble", "DuplexTumble"})
    EXPECT_THAT(joined, testing::HasSubstr(choice));
  EXPECT_THAT(tab("-d office -o Duplex=N"), ElementsAre("Duplex=None"));
}

TEST_P(Completion, ReadsTheOptionsOfADescription) {
  const std::string printer = "--ppd " IMAGEPOSITION_SAMPLES "/duplex-shift.ppd ";
  EXPECT_THAT(all(printer + "-o "), IsSupersetOf({"Duplex=", "MediaType="}));
  EXPECT_THAT(tab(printer + "-o Duplex=N"), ElementsAre("Duplex=None"));
}

TEST_P(Completion, OffersFilesOfTheRightKind) {
  const auto kFolder = testing::StartsWith("Extra.plugin");
  // Folders may contain such files.
  EXPECT_THAT(all("--ppd "), testing::UnorderedElementsAre("printer.ppd", kFolder));
  EXPECT_THAT(all("--ticket "), testing::UnorderedElementsAre("job.json", kFolder));
  EXPECT_THAT(tab("--plugin "), ElementsAre(kFolder));
  EXPECT_THAT(tab("rep"), ElementsAre("report.pdf"));
}

TEST_P(Completion, OffersTheFixedValuesOfAnOption) {
  EXPECT_THAT(all("-H "), IsSupersetOf({"hold", "immediate", "night", "indefinite"}));
  EXPECT_THAT(all("--back o"), testing::UnorderedElementsAre("on", "off"));
  EXPECT_THAT(tab("--appearance d"), ElementsAre("dark"));
}

TEST_P(Completion, IsSilentWithoutCups) {
  const Words nowhere{"CUPS_SERVER=" + folder.path("none")};
  EXPECT_THAT(all("-d xyz", nowhere), ElementsAre("xyz"));
  EXPECT_THAT(all("-o xyz", nowhere), ElementsAre("xyz"));
}

/// Names that a server or the author of a PPD could choose. A shell that fails to quote them
/// creates a file "acted".
const Words kHostile{"$(touch${IFS}acted)", "`touch${IFS}acted`",
                     ";touch${IFS}acted",   "&touch${IFS}acted",
                     "|touch${IFS}acted",   "*",
                     "a${HOME}b",           "~"};

// The shell itself parses the completed line, as if the user pressed Return.
TEST_P(Completion, NeverExecutesTheNameOfAPrinterOrPreset) {
  for (const std::string &name : kHostile) {
    SCOPED_TRACE(name);
    const std::string queue = "evil" + name;
    const auto added = cups->run({"lpadmin", "-p", queue, "-E", "-v", "file:///dev/null"});
    ASSERT_EQ(added.status, 0) << testing::PrintToString(added);
    EXPECT_THAT(all("-d evil"), ElementsAre(queue));
    EXPECT_FALSE(std::filesystem::exists(folder.path("acted")));
    cups->run({"lpadmin", "-x", queue});
  }
  const std::string preset = "office/$(touch${IFS}acted)";
  ASSERT_EQ(cups->run({"lpoptions", "-p", preset, "-o", "Duplex=None"}).status, 0);
  EXPECT_THAT(all("-d office/"), testing::UnorderedElementsAre("office/draft", preset));
  EXPECT_FALSE(std::filesystem::exists(folder.path("acted")));
  cups->run({"lpoptions", "-x", preset});
}

TEST_P(Completion, NeverExecutesTheNamesOfOptionsAndChoices) {
  std::string ppd = "*PPD-Adobe: \"4.3\"\n*OpenUI *Evil: PickOne\n*DefaultEvil: x\n";
  for (const std::string &choice : kHostile)
    ppd += "*Evil " + choice + ": \"\"\n";
  ppd += "*Evil 'quoted: \"\"\n*Evil \"twice: \"\"\n*CloseUI: *Evil\n"
         "*OpenUI *Other$(touch${IFS}acted): PickOne\n*CloseUI: *Other\n";
  folder.write("evil.ppd", ppd);
  std::string joined;
  for (const std::string &word : all("--ppd evil.ppd -o Evil="))
    joined += word + "\n";
  for (const std::string &choice : kHostile)
    EXPECT_THAT(joined, testing::HasSubstr(choice + "\n"));
  EXPECT_THAT(joined, testing::HasSubstr("'quoted\n"));
  EXPECT_THAT(joined, testing::HasSubstr("\"twice\n"));
  EXPECT_THAT(joined, testing::Not(testing::HasSubstr("report.pdf")));
  EXPECT_THAT(all("--ppd evil.ppd -o Oth"), ElementsAre("Other$(touch${IFS}acted)="));
  EXPECT_FALSE(std::filesystem::exists(folder.path("acted")));
}

TEST_P(Completion, NeverExecutesTheNameOfAFile) {
  const std::string name = "$(touch acted) `touch acted`;touch acted\"'";
  folder.write("evil" + name + ".ppd", "");
  EXPECT_THAT(tab("--ppd evil"), ElementsAre("evil" + name + ".ppd"));
  folder.write("two\nlines$(touch acted).json", "");
  EXPECT_THAT(tab("--ticket li"), ElementsAre("li")); // matches only the second line of the name
  EXPECT_FALSE(std::filesystem::exists(folder.path("acted")));
}

INSTANTIATE_TEST_SUITE_P(Shells, Completion, testing::Values(kBash, kZsh),
                         [](const auto &shell) { return shell.param.name; });

} // namespace
