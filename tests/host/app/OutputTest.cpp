// What print-dialog writes for users and for programs, and what happens if nobody can read it.
#include "WindowFixture.hpp"

#include <regex>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// Clears a terminal, returns to the start of the line, starts a control sequence with one
/// character, reverses the following text, and starts another line.
const std::string kHostile = "a\x1b[2J\rb\xC2\x9B"
                             "2Jc\xE2\x80\xAE"
                             "d\ne";

/// Whether a terminal shows the output unchanged, line by line.
bool isHarmless(const std::string &text) {
  return !std::regex_search(
      text, std::regex("[\\x01-\\x08\\x0B-\\x1F\\x7F]|\xC2[\x80-\x9F]|\xE2\x80[\xAA-\xAE]"));
}

class Output : public DialogFixture {
protected:
  static std::string replaced(std::string text, const std::string &what, const std::string &with) {
    text.replace(text.find(what), what.size(), with);
    return text;
  }
  /// A printer whose names are hostile; libcups accepts an option's only in hexadecimal digits.
  std::string hostilePpd() const {
    std::string ppd = contentOf(sample("duplex-shift.ppd"));
    ppd = replaced(ppd, "/Two-Sided", "/Two<1B5B324A0A0D9B>Sided");
    ppd = replaced(ppd, "*NickName: \"", "*NickName: \"\x1b[2J\x9B");
    return folder.write("hostile.ppd", ppd);
  }

  const std::string shift = sample("duplex-shift.ppd");
};

TEST_F(Output, ShowsControlCharactersOfNamesAsEscapes) {
  const std::string ppd = hostilePpd();
  const std::string foreign = folder.write(
      "foreign.ppd", replaced(contentOf(ppd), "*AdjustDuplexPositionSupport: \"true\"", "*%"));
  const std::string ticket =
      folder.write("job.json", R"({"settings": {"a\u001b[2J\n\u009bb\u202ec": 1.5}})");
  const Words rows[] = {{"--ppd", ppd, "--list-options"},
                        {"--ppd", foreign, "--batch", "--summary"},
                        {"--ppd", kHostile, "--batch"},
                        {"--ppd", shift, "--batch", kHostile},
                        {"--ppd", shift, "--batch", "--plugin", kHostile},
                        {"--ppd", shift, "--batch", "--ticket", ticket},
                        {"--ppd", shift, "--batch", "--ticket", "/nonexistent/" + kHostile},
                        {"--ppd", shift, "--batch", "--set", kHostile + "=1"},
                        {"--ppd", shift, "--batch", "--set", "FrontLRM=" + kHostile},
                        {"--ppd", shift, "--batch", "--back", kHostile},
                        {"--ppd", shift, "--batch", "-o", kHostile + "=1"},
                        {"-i", kHostile},
                        {"-q", kHostile},
                        {"--" + kHostile}};
  for (const Words &words : rows) {
    const auto result = dialog(words);
    EXPECT_TRUE(isHarmless(result.output)) << testing::PrintToString(result);
    EXPECT_TRUE(isHarmless(result.errors)) << testing::PrintToString(result);
    EXPECT_THAT(result.output + result.errors, HasSubstr("\\x1b[2J"))
        << testing::PrintToString(words);
    EXPECT_THAT(result.output + result.errors, Not(HasSubstr("\ne")))
        << testing::PrintToString(words);
  }
}

TEST_F(Output, OfSettingsIsExactForAProgramAndHarmlessOnATerminal) {
  const std::string note = "Note=a\x1b[2Jb";
  const auto exact = batch(shift, {"-o", note});
  EXPECT_THAT(exact.output, HasSubstr("Note=\"a\x1b[2Jb\"\n"));
  const auto shown = runProcess(
      {"script", "-qec", PRINT_DIALOG " --batch --ppd " + shift + " -o \"$NOTE\"", "/dev/null"},
      {"NOTE=" + note});
  EXPECT_EQ(shown.status, kDone) << testing::PrintToString(shown);
  EXPECT_THAT(shown.output, HasSubstr("Note=\"a\\x1b[2Jb\""));
  EXPECT_THAT(shown.output, Not(HasSubstr("\x1b[2J")));
}

TEST_F(Output, OfSettingsFailsIfItsDescriptorIsClosed) {
  const auto result =
      runProcess({"/bin/sh", "-c", "exec \"$0\" --batch --ppd \"$1\" >&-", PRINT_DIALOG, shift});
  EXPECT_EQ(result.status, kTicket);
  EXPECT_THAT(result.errors, HasSubstr("--ticket"));
}

/// If the standard descriptors were closed, other files such as the connection to the display would
/// take their numbers and receive the program's messages.
TEST_F(Window, DoesNotReuseClosedStandardDescriptors) {
  const std::string closed[] = {"<&-", ">&-", "2>&-", "<&- 2>&-", "<&- >&- 2>&-"};
  for (const std::string &redirections : closed) {
    SCOPED_TRACE(redirections);
    dialogProcess = std::make_unique<Process>(
        Words{"/bin/sh", "-c", "exec \"$0\" \"$@\" " + redirections, PRINT_DIALOG, "--ppd",
              sample("duplex-shift.ppd"), "--ticket", ticket});
    ASSERT_TRUE(becomesTrue([&] { return hasKeyboard() || dialogProcess->hasEnded(); }));
    for (const char *name : {"0", "1", "2"}) {
      const auto place = std::filesystem::read_symlink(
          "/proc/" + std::to_string(dialogProcess->id()) + "/fd/" + name);
      EXPECT_THAT(place.string(), Not(HasSubstr("socket"))) << name;
    }
    goTo(kCopies);
    type("x"); // which the window reports on standard error, too
    press({"Return", "ctrl+a"});
    type("2");
    press({"Return"});
    EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
    EXPECT_THAT(printed(), testing::Contains(testing::Pair("copies", "2")));
    std::filesystem::remove(ticket);
  }
}

class OutputOfAJob : public WithOfficeQueue<Output> {
protected:
  /// Runs the program in a shell with `redirection`, its words and the document.
  ProcessResult printTo(const std::string &redirection, const std::string &words = "") const {
    return runProcess({"/bin/bash", "-c",
                       "exec {gone}> >(exit); wait $!; exec \"$0\" --batch -d office -H hold " +
                           words + " \"$1\" " + redirection,
                       PRINT_DIALOG, sample("two-sided.pdf")},
                      cups->environment());
  }
  std::string jobs() const { return cups->run({"lpstat", "-o"}).output; }
};

/// A script that saw a failure would print the job again.
TEST_F(OutputOfAJob, DoesNotFailTheJobIfItCannotBeWritten) {
  for (const char *redirection : {">/dev/full", ">&-", ">&$gone"})
    for (const char *words : {"", "--summary"}) {
      SCOPED_TRACE(std::string(redirection) + words);
      const auto result = printTo(redirection, words);
      EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
      const std::string job = jobs().substr(0, jobs().find(' '));
      EXPECT_THAT(job, testing::StartsWith("office-"));
      EXPECT_THAT(result.errors, HasSubstr(job + " "));
      EXPECT_THAT(result.errors, HasSubstr("standard output"));
      cups->run({"cancel", "-a", "-x"});
    }
}

TEST_F(OutputOfAJob, DoesNotFailTheJobIfErrorsCannotBeWrittenEither) {
  for (const char *redirection : {">&$gone 2>&$gone", ">/dev/full 2>/dev/full", ">&- 2>&-"}) {
    SCOPED_TRACE(redirection);
    EXPECT_EQ(printTo(redirection, "--set FrontLRM=+9").status, kDone);
    EXPECT_THAT(jobs(), HasSubstr("office-"));
    cups->run({"cancel", "-a", "-x"});
  }
}

TEST_F(OutputOfAJob, ReportsThatItCannotBeWritten) {
  const auto result = printTo(">/dev/full", "-s");
  EXPECT_EQ(result.status, kDone);
  EXPECT_THAT(result.errors, IsEmpty());
  cups->run({"cancel", "-a", "-x"});
}

TEST_F(OutputOfAJob, ShowsControlCharactersOfItsValuesInADryRun) {
  const auto result = dialog({"--batch", "-d", "office", "--dry-run", "-t", kHostile, "-o",
                              "Note=\"x\x1b[2J\ny\"", sample("two-sided.pdf")},
                             cups->environment());
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_TRUE(isHarmless(result.output)) << result.output;
  EXPECT_THAT(result.output,
              HasSubstr("job-name (nameWithoutLanguage) = a\\x1b\\[2J\\rb\\x9b2Jc\\u202ed\\ne\n"));
  EXPECT_THAT(result.output, HasSubstr("= x\\x1b\\[2J\\ny\n"));
}

} // namespace
