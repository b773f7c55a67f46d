// Jobs that are set up before their document exists.
#include "DialogFixture.hpp"
#include "OfficeQueue.hpp"

namespace {

using namespace imageposition::test;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class Prepare : public WithOfficeQueue<DialogFixture> {
protected:
  ProcessResult prepare(const Words &words) const {
    Words all{"--batch", "--prepare", job};
    all.insert(all.end(), words.begin(), words.end());
    return dialog(all, cups->environment());
  }
  ProcessResult print(const Words &words) const {
    Words all{"--batch", "--prepared", job, sample("two-sided.pdf")};
    all.insert(all.end(), words.begin(), words.end());
    return dialog(all, cups->environment());
  }

  const std::string job = folder.path("job");
};

TEST_F(Prepare, TheDocumentIsPrintedWithTheSettings) {
  const auto prepared = prepare({"-d", "office", "-o", "number-up=2", "--set", "FrontLRM=-3"});
  ASSERT_EQ(prepared.status, kDone) << testing::PrintToString(prepared);
  EXPECT_EQ(folder.fileCount(), 1U);
  const auto shown = print({"--dry-run", "-n", "2"});
  EXPECT_THAT(shown.output,
              AllOf(HasSubstr("printers/office\n"), HasSubstr("number-up (integer) = 2"),
                    HasSubstr("LeftRightMargin (nameWithoutLanguage) = -3"),
                    HasSubstr("copies (integer) = 2")));
  const auto printed = print({});
  EXPECT_EQ(printed.status, kDone) << testing::PrintToString(printed);
  EXPECT_THAT(printed.output, HasSubstr("request id is office-"));
}

TEST_F(Prepare, ThePresetIsThatOfTheJob) {
  cups->run({"lpoptions", "-p", "office/single", "-o", "Duplex=None"});
  ASSERT_EQ(prepare({"-d", "office/single"}).status, kDone);
  EXPECT_THAT(print({"--dry-run"}).output, HasSubstr("Duplex (nameWithoutLanguage) = None"));
  cups->run({"lpoptions", "-x", "office/single"});
}

TEST_F(Prepare, SettingsThatThePrinterDoesNotAcceptAreLeftOut) {
  const auto prepared = prepare({"-d", "office", "-o", "InputSlot=Attic", "-o", "Unknown=x", "-o",
                                 "media=jpn_hagaki_100x148mm", "-o", "sides=two-sided-short-edge"});
  ASSERT_EQ(prepared.status, kDone) << testing::PrintToString(prepared);
  EXPECT_EQ(prepared.errors, "");
  EXPECT_THAT(contentOf(job),
              AllOf(Not(HasSubstr("Attic")), Not(HasSubstr("Unknown")), Not(HasSubstr("hagaki")),
                    HasSubstr("two-sided-short-edge"), HasSubstr("\"keyword\": \"A4\"")));
}

TEST_F(Prepare, ThePaperIsThatOfTheProposal) {
  for (const char *media : {"media=iso_a5_148x210mm", "media=A5", "PageSize=A5"}) {
    ASSERT_EQ(prepare({"-d", "office", "-o", media}).status, kDone);
    EXPECT_THAT(contentOf(job), HasSubstr("\"keyword\": \"A5\"")) << media;
  }
}

TEST_F(Prepare, AJobThatWasNotPreparedIsNamed) {
  const auto missing = print({});
  EXPECT_EQ(missing.status, kTicket);
  EXPECT_THAT(missing.errors, HasSubstr(job));
  folder.write("job", "{}");
  EXPECT_EQ(print({}).status, kTicket);
}

TEST_F(Prepare, NothingIsPrintedIfThePrinterHasGone) {
  ASSERT_EQ(prepare({"-d", "office"}).status, kDone);
  cups->run({"lpadmin", "-x", "office"});
  const auto result = print({});
  EXPECT_EQ(result.status, kPrinter);
  EXPECT_THAT(result.errors, HasSubstr("\"office\""));
}

} // namespace
