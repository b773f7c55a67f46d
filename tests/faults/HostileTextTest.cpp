// The real program treats names that others choose as plain text, whatever they contain.
#include "WindowFixture.hpp"

#include <unistd.h>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;

namespace fs = std::filesystem;

/// Text that a shell would run, a format function would interpret, and a markup parser would parse.
const std::string kHostile = "$(touch acted)`touch acted`;touch acted|%s%n%@%1000000d<b>&amp;'\"";

/// The same without the quotes, which the program's list of attributes escapes.
const std::string kWithoutQuotes = kHostile.substr(0, kHostile.size() - 2);

class HostileText : public QueueWindow {
protected:
  void SetUp() override {
    QueueWindow::SetUp();
    before_ = fs::current_path();
    fs::current_path(folder.path());
  }
  void TearDown() override {
    EXPECT_FALSE(fs::exists("acted")) << "a command was run";
    fs::current_path(before_);
    QueueWindow::TearDown();
  }

  Words withCups(Words more = {}) const {
    const Words environment = cups->environment();
    more.insert(more.end(), environment.begin(), environment.end());
    return more;
  }

private:
  fs::path before_;
};

TEST_F(HostileText, TheNameOfADocumentIsTheTitleOfItsJob) {
  const std::string document = folder.write(kHostile, "%!PS\n");
  const auto result = dialog({"--batch", "--dry-run", "-d", "office", document}, withCups());
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(result.output, HasSubstr("job-name (nameWithoutLanguage) = " + kWithoutQuotes));
}

TEST_F(HostileText, TitlesAndOptionsAreSentUnchanged) {
  const std::string document = folder.write("plain.ps", "%!PS\n");
  const auto result = dialog({"--batch", "--dry-run", "-d", "office", "-t", kHostile, "-o",
                              "Strange='%s%n$(touch acted)'", document},
                             withCups());
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(result.output, HasSubstr("job-name (nameWithoutLanguage) = " + kWithoutQuotes));
  EXPECT_THAT(result.output, HasSubstr("Strange (nameWithoutLanguage) = %s%n$(touch acted)\n"));
}

TEST_F(HostileText, TicketsAreKeptUnchanged) {
  folder.write("job.json",
               R"x({"printer": "%n", "settings": {"Foreign%n": "%s$(touch acted)`x` 'y'"}})x");
  const auto result = batch(sample("duplex-shift.ppd"), {"--ticket", ticket});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(contentOf(ticket), HasSubstr(R"x("Foreign%n": "%s$(touch acted)`x` 'y'")x"));
  // As a user passes it to lp: the shell does not interpret the result of a substitution again.
  const auto echoed =
      runProcess({"sh", "-c", "printf %s \"$(cat job.options)\" && test ! -e acted"});
  EXPECT_EQ(echoed.status, 0);
  EXPECT_THAT(echoed.output, HasSubstr("Foreign%n="));
}

TEST_F(HostileText, RejectedArgumentsAreRepeatedUnchanged) {
  for (const Words &words : {Words{"--batch", "-d", kHostile}, Words{"--batch", "--ppd", kHostile},
                             Words{"--batch", "-d", "office", "--plugin", kHostile},
                             Words{"--batch", "-d", "office", "--set", kHostile + "=1"},
                             Words{"--batch", "-d", "office", kHostile}, Words{"-H", kHostile},
                             Words{"--appearance", kHostile}, Words{"--text-scale", kHostile}}) {
    SCOPED_TRACE(words[words.size() - 1]);
    const auto result = dialog(words, withCups());
    EXPECT_GT(result.status, 0);
    EXPECT_LT(result.status, 128);
    EXPECT_THAT(result.errors, HasSubstr("$(touch acted)"));
    EXPECT_THAT(result.errors, HasSubstr("%s%n%@"));
  }
}

TEST_F(HostileText, AServersPrinterNamesAreOnlyEverShown) {
  const std::string queue = "evil$(touch${IFS}acted)%n%s%@";
  const auto added = cups->run({"lpadmin", "-p", queue, "-E", "-v", "file:///dev/null", "-P",
                                sample("duplex-shift.ppd"), "-D", kHostile, "-L",
                                kHostile + "\xE2\x80\xAE"
                                           "\x1b[2J"});
  ASSERT_EQ(added.status, 0) << testing::PrintToString(added);
  EXPECT_EQ(
      cups->run({"lpoptions", "-p", queue + "/%n$(touch${IFS}acted)", "-o", "Duplex=None"}).status,
      0);
  const std::string document = folder.write(kHostile, "%!PS\n");
  start({"-d", queue, "-t", kHostile, document}, cups->environment());
  type("-3");
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
  const auto list = cups->run({"lpstat", "-W", "all", "-o"});
  EXPECT_THAT(list.output, HasSubstr("evil$(touch${IFS}acted)"));
  cups->run({"lpadmin", "-x", queue});
}

TEST_F(HostileText, APresetOfAnyNameIsKeptAndFound) {
  const std::string preset = "%n%s%@$(touch${IFS}acted)`x`";
  ASSERT_EQ(cups->run({"lpoptions", "-p", "office/" + preset, "-o", "LeftRightMargin=7"}).status,
            0);
  const std::string document = folder.write("plain.ps", "%!PS\n");
  const auto result =
      dialog({"--batch", "--dry-run", "-d", "office/" + preset, "--summary", document}, withCups());
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(result.output, HasSubstr("LeftRightMargin (nameWithoutLanguage) = 7\n"));
}

TEST_F(HostileText, TextsInAPpdAreOnlyEverShown) {
  const std::string ppd =
      contentOf(sample("duplex-shift.ppd")) +
      "*OpenUI *Evil%n/%s%n%@$(touch acted)<b>: PickOne\n*DefaultEvil%n: %s\n"
      "*Evil%n %s/%n%@`touch acted`: \"\"\n*Evil%n $(touch${IFS}acted)/x: \"\"\n"
      "*CloseUI: *Evil%n\n";
  start({"--ppd", folder.write("evil.ppd", ppd), "--ticket", ticket}, {});
  goTo(kPanes);
  press({"space", "Down", "Return"});             // the printer's options
  press({"shift+Tab", "space", "End", "Return"}); // the summary
  press({"Return"});
  EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
}

} // namespace
