#include "PrinterDescription.hpp"

#include "ExitCode.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace imageposition;
using imageposition::test::TemporaryFolder;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kSamples = IMAGEPOSITION_SAMPLES;

std::string failureOf(const std::string &path) {
  try {
    PrinterDescription::fromFile(path);
  } catch (const Failure &failure) {
    EXPECT_EQ(failure.code(), ExitCode::Printer);
    return failure.what();
  }
  ADD_FAILURE() << "was opened: " << path;
  return {};
}

std::string marked(const PrinterDescription &printer, const char *option) {
  const ppd_choice_t *const choice = ppdFindMarkedChoice(printer.ppd(), option);
  return choice != nullptr ? choice->choice : "(none)";
}

TEST(PrinterDescription, HasTheNameFromThePpd) {
  const auto printer = PrinterDescription::fromFile(kSamples + "/duplex-plain.ppd");
  EXPECT_EQ(printer.name(), "Sample Duplex, two-sided");
}

TEST(PrinterDescription, HasANameOnOneLineOfUtf8) {
  const TemporaryFolder folder;
  const auto printer = PrinterDescription::fromFile(
      folder.write("a.ppd", "*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n*NickName: \"Sample\n"
                            "\xFF\x1B[2J\"\n"));
  EXPECT_EQ(printer.name(), "Sample\\n\uFFFD\\x1b[2J");
}

TEST(PrinterDescription, ThePrintersDefaultsAreMarked) {
  const auto printer = PrinterDescription::fromFile(kSamples + "/duplex-shift.ppd");
  EXPECT_EQ(marked(printer, "Duplex"), "DuplexNoTumble");
  EXPECT_EQ(marked(printer, "MVBannerPagePrint"), "False");
  EXPECT_EQ(marked(printer, "Unknown"), "(none)");
}

TEST(PrinterDescription, TheJobsOptionsOverrideTheDefaults) {
  auto printer = PrinterDescription::fromFile(kSamples + "/duplex-shift.ppd");
  PrintSettingsStore job;
  job.set("Duplex", "None");
  job.set("Unknown", "1");
  printer.mark(job);
  EXPECT_EQ(marked(printer, "Duplex"), "None");
  printer.mark(PrintSettingsStore());
  EXPECT_EQ(marked(printer, "Duplex"), "DuplexNoTumble");
}

TEST(PrinterDescription, AttributesAreListedInTheFilesOrder) {
  TemporaryFolder folder;
  std::string text = imageposition::test::contentOf(kSamples + "/duplex-shift.ppd");
  text += "*APDialogExtension: \"/second.plugin\"\n*APDialogExtension: \"\"\n";
  const auto printer = PrinterDescription::fromFile(folder.write("two.ppd", text));
  EXPECT_THAT(
      printer.attributeValues("APDialogExtension"),
      ElementsAre("/Library/Printers/Morva/PDEs/MorvaADPImagePosition.plugin", "/second.plugin"));
  EXPECT_THAT(printer.attributeValues("Unknown"), IsEmpty());
}

TEST(PrinterDescription, AMissingFileIsReportedWithTheReason) {
  const std::string failure = failureOf("/nonexistent/x.ppd");
  EXPECT_THAT(failure, HasSubstr("/nonexistent/x.ppd"));
  EXPECT_THAT(failure, HasSubstr("No such file"));
}

TEST(PrinterDescription, AFolderIsRefused) {
  EXPECT_THAT(failureOf(kSamples), HasSubstr("directory"));
}

TEST(PrinterDescription, AFileThatIsNotAPpdIsReportedWithTheLine) {
  TemporaryFolder folder;
  const std::string text = failureOf(folder.write("notes.txt", "Dear diary\n"));
  EXPECT_THAT(text, HasSubstr("notes.txt"));
  EXPECT_THAT(text, HasSubstr("line 1"));
  EXPECT_THAT(failureOf(folder.write("headless.ppd", "*Manufacturer: \"M\"\n")),
              HasSubstr("PPD-Adobe"));
  failureOf(folder.write("empty.ppd", ""));
  failureOf(folder.write("zero.ppd", std::string(4096, '\0')));
  EXPECT_THAT(failureOf(IMAGEPOSITION_SAMPLES "/two-sided.pdf"), HasSubstr("line 1"));
}

TEST(PrinterDescription, AnUnreachableCupsIsReportedWithAdvice) {
  setenv("CUPS_SERVER", "/nonexistent/cups.sock", 1);
  cupsSetServer(nullptr); // libcups may have cached it
  try {
    PrinterDescription::ofQueue("no-such-queue/draft");
    FAIL() << "was opened";
  } catch (const Failure &failure) {
    EXPECT_EQ(failure.code(), ExitCode::Printer);
    EXPECT_THAT(failure.what(), HasSubstr("CUPS is not responding at /nonexistent/cups.sock"));
    EXPECT_THAT(failure.what(), HasSubstr("CUPS_SERVER"));
  }
}

} // namespace
