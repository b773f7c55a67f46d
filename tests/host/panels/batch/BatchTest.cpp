// print-dialog without a window, on the sample printers, through the real panel.
#include "DialogFixture.hpp"
#include "PlatformDefaults.hpp"

#include <sys/stat.h>

namespace {

using namespace imageposition::test;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

class Batch : public DialogFixture {
protected:
  const std::string shift = sample("duplex-shift.ppd");
};

TEST_F(Batch, EntriesReachTheJobsSettings) {
  const auto result = batch(shift, {"--set", "FrontLRM=-3", "--back", "on", "--summary"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_EQ(settingsIn(result.output), offsets("-3", "0", "0", "0", "True"));
  EXPECT_THAT(result.errors, IsEmpty());
}

/// For example with lp, before the panel was installed.
TEST_F(Batch, ACustomValueOfThePrintersOptionReachesThePanel) {
  const auto result = batch(shift, {"-o", "LeftRightMargin=Custom.7", "--summary"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(settingsIn(result.output), Contains(Pair("LeftRightMargin", "7")));
  EXPECT_THAT(result.output, HasSubstr("Left-right offset (\xC3\x97 0.1 mm): 7\n"));
}

TEST_F(Batch, TheSummaryListsThePanelsValuesInItsOrder) {
  const auto result =
      batch(shift, {"--set", "FrontLRM=-3", "--set", "BackTBM=7", "--back", "on", "--summary"});
  EXPECT_THAT(result.output, HasSubstr("Image Position\n"
                                       "  Use separate offsets for the back side: On\n"
                                       "  Front left-right offset (\xC3\x97 0.1 mm): -3\n"
                                       "  Front top-bottom offset (\xC3\x97 0.1 mm): 0\n"
                                       "  Back left-right offset (\xC3\x97 0.1 mm): 0\n"
                                       "  Back top-bottom offset (\xC3\x97 0.1 mm): 7\n"))
      << testing::PrintToString(result);
}

TEST_F(Batch, TheSummaryLeavesOutWhatIsOff) {
  const auto result = batch(shift, {"--set", "FrontLRM=-3", "--summary"});
  EXPECT_THAT(result.output, HasSubstr("Image Position\n"
                                       "  Left-right offset (\xC3\x97 0.1 mm): -3\n"
                                       "  Top-bottom offset (\xC3\x97 0.1 mm): 0\n"))
      << testing::PrintToString(result);
  EXPECT_THAT(result.output, testing::Not(HasSubstr("back")));
  EXPECT_THAT(result.output, testing::Not(HasSubstr("Back left-right")));
}

TEST_F(Batch, EveryCombinationOfSideSignAndRangeEndReachesTheJob) {
  for (const char *back : {"on", "off"}) {
    for (const char *value : {"-100", "-1", "0", "1", "100"}) {
      SCOPED_TRACE(std::string(back) + " " + value);
      Words words{"--back", back};
      for (const char *name : {"FrontLRM=", "FrontTBM="})
        words.insert(words.end(), {"--set", name + std::string(value)});
      const bool on = back == std::string("on");
      if (on)
        for (const char *name : {"BackLRM=", "BackTBM="})
          words.insert(words.end(), {"--set", name + std::string(value)});
      const auto result = batch(shift, words);
      ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
      EXPECT_EQ(settingsIn(result.output), on ? offsets(value, value, value, value, "True")
                                              : offsets(value, value, "0", "0", "False"));
    }
  }
}

TEST_F(Batch, ANumberInAnotherFormIsReadAndReported) {
  const struct {
    const char *typed;
    const char *becomes;
  } rows[] = {{"+5", "5"}, {"007", "7"}, {" 8", "8"}, {"-0", "0"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.typed);
    const auto result = batch(shift, {"--set", std::string("FrontLRM=") + row.typed});
    ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
    EXPECT_THAT(settingsIn(result.output), Contains(Pair("LeftRightMargin", row.becomes)));
    EXPECT_THAT(result.errors, HasSubstr("\"" + std::string(row.becomes) + "\""));
  }
}

TEST_F(Batch, TheDefaultsOfAPrinterWithAWideRangeAreUsed) {
  const auto result = batch(sample("duplex-shift-wide.ppd"), {"--set", "FrontLRM=200"});
  const auto settings = settingsIn(result.output);
  EXPECT_THAT(settings, Contains(Pair("LeftRightMargin", "200")));
  EXPECT_THAT(settings, Contains(Pair("BackLeftRightMargin", "5")));
  EXPECT_THAT(settings, Contains(Pair("BackTopBottomMargin", "-10")));
}

TEST_F(Batch, APrinterThatCannotShiftHasNoPanelAndNothingIsWritten) {
  const auto result =
      batch(sample("duplex-plain.ppd"), {"--summary", "--ticket", folder.path("job.json")});
  EXPECT_EQ(result.status, kNoPanel);
  EXPECT_THAT(result.errors, HasSubstr("No plug-in has a panel for \"Sample Duplex, two-sided\""));
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_EQ(folder.fileCount(), 0U);
}

TEST_F(Batch, WithTwoSidedPrintingOffTheFieldsAreDisabled) {
  const struct {
    const char *off;
    const char *reason;
  } rows[] = {{"Duplex=None", "settings. Two-sided printing is off. Turn it on"},
              {"MVBannerPagePrint=True", "settings. Banner pages are on. Turn them off"}};
  for (const auto &[off, reason] : rows) {
    SCOPED_TRACE(off);
    auto result = batch(shift, {"-o", off, "--set", "FrontLRM=1"});
    EXPECT_EQ(result.status, kValue);
    EXPECT_THAT(result.errors, HasSubstr(reason));
    EXPECT_THAT(result.output, IsEmpty());
    result = batch(shift, {"-o", off, "--back", "on"});
    EXPECT_EQ(result.status, kValue);
    EXPECT_THAT(result.errors, HasSubstr(reason));
    result = batch(shift, {"-o", off, "--summary"});
    EXPECT_EQ(result.status, kDone);
    EXPECT_THAT(result.output, HasSubstr("Not available with the current settings."));
  }
}

TEST_F(Batch, TheBackSidesFieldsNeedTheCheckbox) {
  const auto result = batch(shift, {"--set", "BackLRM=1"});
  EXPECT_EQ(result.status, kValue);
  EXPECT_THAT(result.errors, HasSubstr("settings. For an offset of the back"));
  EXPECT_EQ(batch(shift, {"--set", "BackLRM=1", "--back", "on"}).status, kDone);
}

TEST_F(Batch, TheErrorForAnUnknownFieldListsTheKnownOnes) {
  const auto result = batch(shift, {"--set", "Nothing=1"});
  EXPECT_EQ(result.status, kValue);
  EXPECT_THAT(result.errors, HasSubstr("FrontLRMText, FrontTBMText, BackLRMText, BackTBMText"));
}

TEST_F(Batch, AnAmbiguousFieldNameIsRefused) {
  const auto result = batch(shift, {"--set", "Front=1"});
  EXPECT_EQ(result.status, kValue);
  EXPECT_THAT(result.errors, HasSubstr("FrontLRMText, FrontTBMText"));
}

TEST_F(Batch, OptionsReachTheJobAndThePanel) {
  const auto result = batch(shift, {"-o", "LeftRightMargin=-7 MediaType=Heavy"});
  const auto settings = settingsIn(result.output);
  EXPECT_THAT(settings, Contains(Pair("LeftRightMargin", "-7")));
  EXPECT_THAT(settings, Contains(Pair("MediaType", "Heavy")));
}

TEST_F(Batch, UnknownValuesAreReportedAndKept) {
  const auto result = batch(sample("duplex-shift.ppd"),
                            {"-o", "Duplex=Bogus number-up=99", "-o", "print-scaling=bogus"});
  EXPECT_EQ(result.status, kDone);
  EXPECT_THAT(result.errors,
              AllOf(HasSubstr("print-dialog: \"Bogus\" is not a value of \"Duplex\"."),
                    HasSubstr("Valid values include: None, DuplexNoTumble, "),
                    HasSubstr("1, 2, 4, 6, 9, 16."), HasSubstr("\"bogus\"")));
  EXPECT_EQ(settingsIn(result.output).at("number-up"), "99");
  EXPECT_EQ(settingsIn(result.output).at("Duplex"), "Bogus");
  EXPECT_EQ(batch(sample("duplex-shift.ppd"), {"-o", "number-up=4 Duplex=None"}).errors, "");
}

TEST_F(Batch, ATicketIsWrittenInBothFormsAndReadAgain) {
  const std::string ticket = folder.path("job.json");
  auto result = batch(shift, {"--ticket", ticket, "--set", "FrontLRM=-3", "--back", "on"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_EQ(settingsIn(contentOf(folder.path("job.options"))),
            offsets("-3", "0", "0", "0", "True"));
  // A stored enable flag survives a job that does not change the checkbox.
  result = batch(shift, {"--ticket", ticket, "--set", "BackTBM=4"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_EQ(settingsIn(contentOf(folder.path("job.options"))),
            offsets("-3", "0", "0", "4", "True"));
}

TEST_F(Batch, ALockedSettingKeepsItsValueAndThePanelShowsIt) {
  const std::string ticket = folder.write(
      "job.json", R"({"settings": {"LeftRightMargin": 7}, "locked": ["LeftRightMargin"]})");
  const auto result = batch(shift, {"--ticket", ticket, "--set", "FrontLRM=1", "--summary"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(contentOf(ticket), HasSubstr("\"LeftRightMargin\": \"7\""));
  EXPECT_THAT(result.errors, HasSubstr("from \"1\" to \"7\""));
}

TEST_F(Batch, StoredValuesThatAreNotNumbersAreRead) {
  const struct {
    const char *stored;
    const char *becomes;
  } rows[] = {{"abc", "0"}, {"12abc", "12"}, {"3000000000", "100"}, {"-3000000000", "-100"},
              {"", "0"},    {" 8", "8"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.stored);
    const std::string ticket = folder.write("job.json", R"({"settings": {"LeftRightMargin": ")" +
                                                            std::string(row.stored) + "\"}}");
    EXPECT_EQ(batch(shift, {"--ticket", ticket}).status, kDone);
    EXPECT_THAT(settingsIn(contentOf(folder.path("job.options"))),
                Contains(Pair("LeftRightMargin", row.becomes)));
  }
}

TEST_F(Batch, ADocumentIsNamedInTheTicket) {
  const auto result = batch(shift, {"--ticket", folder.path("job.json"), sample("two-sided.pdf")});
  EXPECT_EQ(result.status, kDone);
  EXPECT_THAT(contentOf(folder.path("job.json")), HasSubstr("two-sided.pdf"));
  EXPECT_EQ(batch(shift, {folder.path("missing.pdf")}).status, kUsage);
}

TEST_F(Batch, SeveralDocumentsAreCheckedAndNamedInTheTicket) {
  const std::string first = sample("two-sided.pdf"), second = folder.write("a.txt", "text");
  const auto result = batch(shift, {"-s", "--ticket", folder.path("job.json"), first, second});
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, IsEmpty());
  EXPECT_THAT(contentOf(folder.path("job.json")), HasSubstr("\"" + first + "\",\n    \"" + second));
  EXPECT_EQ(batch(shift, {first, folder.path("missing.pdf")}).status, kUsage);
}

// The file is sparse.
TEST_F(Batch, ADocumentOfFiveGigabytesIsAccepted) {
  const std::string large = folder.write("large.pdf", "%PDF");
  std::filesystem::resize_file(large, 0x140000000);
  const auto result = batch(shift, {"--ticket", folder.path("job.json"), large});
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(contentOf(folder.path("job.json")), HasSubstr("large.pdf"));
}

TEST_F(Batch, EachKindOfErrorHasAnExitStatus) {
  EXPECT_EQ(dialog({"--nonsense"}).status, kUsage);
  EXPECT_EQ(batch(sample("two-sided.pdf"), {}).status, kPrinter);
  EXPECT_EQ(batch(shift, {"--plugin", folder.path("none.plugin")}).status, kPlugin);
  EXPECT_EQ(batch(shift, {"--ticket", folder.path("none/job.json")}).status, kTicket);
  EXPECT_EQ(batch(shift, {"--ticket", folder.write("bad.json", "{")}).status, kTicket);
}

TEST_F(Batch, AnArgumentThatIsNotUtf8IsReported) {
  const auto result = batch(shift, {"--ticket", folder.path("job\xFF.json")});
  EXPECT_EQ(result.status, kUsage);
  EXPECT_THAT(result.errors, HasSubstr("job\xEF\xBF\xBD.json\" is not valid UTF-8"));
}

TEST_F(Batch, AVariableThatIsNotUtf8IsHarmless) {
  const auto result = batch(shift, {"--set", "FrontLRM=-3"}, {"OLDPWD=/tmp/caf\xE9"});
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(settingsIn(result.output), Contains(Pair("LeftRightMargin", "-3")));
}

TEST_F(Batch, AFolderIsRefusedAsADocument) {
  const auto result = batch(shift, {folder.path()});
  EXPECT_EQ(result.status, kUsage);
  EXPECT_THAT(result.errors, HasSubstr("directory"));
}

TEST_F(Batch, UnwritableSettingsAreAFailure) {
  const auto result = runProcess(
      {"/bin/sh", "-c", "exec \"$0\" --batch --ppd \"$1\" >/dev/full", PRINT_DIALOG, shift});
  EXPECT_EQ(result.status, kTicket);
  EXPECT_THAT(result.errors, HasSubstr("--ticket"));
}

TEST_F(Batch, WithoutADisplayAPrivateOneIsStartedAndStopped) {
  const auto result = batch(shift, {"--set", "FrontLRM=-3"}, {"DISPLAY"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(settingsIn(result.output), Contains(Pair("LeftRightMargin", "-3")));
  EXPECT_THAT(result.errors, IsEmpty());
}

/// A fake Xvfb that creates a file and never starts a display.
class FakeXvfb : public Batch {
protected:
  FakeXvfb() {
    const std::string file =
        folder.write("Xvfb", "#!/bin/sh\ntouch \"${0%/*}/trace\"\necho '(EE) no keymap' >&2\n");
    chmod(file.c_str(), 0755);
  }

  ProcessResult batchWithPath(const std::string &path) const {
    return runProcess(
        {"/usr/bin/env", "-C", folder.path(), PRINT_DIALOG, "--batch", "--ppd", shift},
        {"DISPLAY", "PATH=" + path});
  }
  bool hasRun() const { return std::filesystem::exists(folder.path("trace")); }
};

TEST_F(FakeXvfb, InTheCurrentFolderIsNotRun) {
  for (const char *path : {".:/usr/bin:/bin", ":/usr/bin:/bin", "../tmp/.:./.:/usr/bin"}) {
    const auto result = batchWithPath(path);
    EXPECT_EQ(result.status, kDone) << path << testing::PrintToString(result);
    EXPECT_FALSE(hasRun()) << path;
  }
}

TEST_F(FakeXvfb, InAFolderThatOthersCanWriteToIsNotRun) {
  chmod(folder.path().c_str(), 0777);
  const auto result = batchWithPath(folder.path() + ":/usr/bin:/bin");
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_FALSE(hasRun());
}

TEST_F(FakeXvfb, IsQuotedWhenItFails) {
  const auto result = batchWithPath(folder.path() + ":/usr/bin:/bin");
  EXPECT_EQ(result.status, kDisplay) << testing::PrintToString(result);
  EXPECT_TRUE(hasRun());
  EXPECT_THAT(result.errors, HasSubstr("(EE) no keymap"));
}

TEST_F(Batch, NoDaemonOutlivesTheProgram) {
  const std::string listCompanions =
      "for folder in /proc/[0-9]*; do grep -qzxF"
      " \"IMAGEPOSITION_PRIVATE_USER=$IMAGEPOSITION_PRIVATE_USER\" $folder/environ && "
      "cat $folder/comm; done 2>/dev/null";
  const auto result = runProcess(
      {WITH_PRIVATE_USER, "bash", "-c",
       PRINT_DIALOG " --batch --ppd " + shift + " --set FrontLRM=-3; " + listCompanions});
  EXPECT_THAT(settingsIn(result.output), Contains(Pair("LeftRightMargin", "-3")));
  EXPECT_THAT(result.output, HasSubstr("bash\n"));
  EXPECT_THAT(result.output, testing::Not(HasSubstr("gdnc")));
  EXPECT_THAT(result.output, testing::Not(HasSubstr("gpbs")));
}

TEST_F(Batch, AMissingDisplayIsReportedWithAdvice) {
  auto result = batch(shift, {}, {"DISPLAY", "PATH=/nonexistent"});
  EXPECT_EQ(result.status, kDisplay);
  EXPECT_THAT(result.errors, HasSubstr("install Xvfb"));
  result = dialog({"--ppd", shift}, {"DISPLAY"});
  EXPECT_EQ(result.status, kDisplay);
  EXPECT_THAT(result.errors, HasSubstr("--batch"));
  result = batch(shift, {}, {"DISPLAY=:4711"});
  EXPECT_EQ(result.status, kDisplay);
  EXPECT_THAT(result.errors, HasSubstr(":4711"));
}

TEST_F(Batch, ThePanelIsInTheUsersLanguage) {
  const PlatformDefaults defaults("NSLanguages = (de);");
  const auto result = batch(shift, {"--summary"});
  EXPECT_EQ(result.status, kDone);
  EXPECT_THAT(result.output, testing::Not(HasSubstr("Image Position")));
}

} // namespace
