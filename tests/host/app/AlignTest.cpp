// Measuring from the command line, and jobs that start with measured offsets.
#include "DialogFixture.hpp"
#include "OfficeQueue.hpp"

namespace {

using namespace imageposition::test;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;
using testing::Pair;

const std::vector<std::string> kTwoSided{"-d", "office", "-o", "Duplex=DuplexNoTumble"};

constexpr const char *kFlag = "com.morva.printsettings.19AImagePositionEnable=True";

class Align : public WithOfficeQueue<DialogFixture> {
protected:
  ProcessResult run(const Words &words, const Words &more = kTwoSided) {
    Words all = words;
    all.insert(all.end(), more.begin(), more.end());
    Words environment = cups->environment();
    environment.push_back("XDG_CONFIG_HOME=" + folder.path("config"));
    return dialog(all, environment);
  }
  std::map<std::string, std::string> settingsOfNextJob(const Words &more = kTwoSided) {
    return settingsIn(run({"--batch"}, more).output);
  }
  std::string alignments() { return contentOf(folder.path("config/print-dialog/alignments.json")); }
};

TEST_F(Align, PrintsThreeSheetsAsOneJob) {
  const auto result = run({"--align"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(result.output, HasSubstr("request id is office-"));
  EXPECT_THAT(result.errors, AllOf(HasSubstr("3 sheets"),
                                   HasSubstr("--align -d office -o Duplex=DuplexNoTumble "
                                             "--reading AX,AY,BX,BY --reading AX,AY,BX,BY "
                                             "--reading AX,AY,BX,BY\n"),
                                   HasSubstr("add --crease X,Y")));
}

TEST_F(Align, PrintsTheSheetsWithoutTheJobsLayout) {
  const auto result =
      run({"--align", "--dry-run", "-n", "7", "-o", "number-up=4", "-o", "fit-to-page", "-P", "2"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(result.output, AllOf(HasSubstr("number-up (integer) = 1"),
                                   HasSubstr("print-scaling (keyword) = none"),
                                   Not(HasSubstr("page-ranges")), Not(HasSubstr("fit-to-page"))))
      << result.output;
  EXPECT_EQ(alignments(), "");
}

TEST_F(Align, WritesTheSheetsToAFile) {
  const auto result = run({"--align", "--sheet", folder.path("sheet.pdf")});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  const auto facts = runProcess({"pdfinfo", folder.path("sheet.pdf")});
  EXPECT_THAT(facts.output, HasSubstr("Pages:           6"));
  const auto words = runProcess({"pdftotext", folder.path("sheet.pdf"), "-"});
  EXPECT_THAT(words.output, AllOf(HasSubstr("Printer: office"), HasSubstr("Sheet 3 of 3"),
                                  HasSubstr("long edge")));
}

TEST_F(Align, GivesTheNextJobTheOffsetsThatWereRead) {
  const auto result = run({"--align", "--reading", "1.7,-0.3,1.7,-0.3", "--reading",
                           "1.9,-0.3,1.9,-0.3", "--reading", "1.6,-0.4,1.6,-0.4"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(result.output, AllOf(HasSubstr("1.7 mm to the right and 0.3 mm up"),
                                   HasSubstr("differ by up to 0.3 mm across and 0.1 mm down")));
  const auto expected = offsets("0", "0", "-17", "3", "True");
  EXPECT_THAT(settingsOfNextJob(), IsSupersetOf(expected));
  EXPECT_THAT(settingsOfNextJob({"-d", "office", "-o", "Duplex=DuplexTumble"}),
              IsSupersetOf(offsets("0", "0", "17", "-3", "True")));
}

TEST_F(Align, GivesOtherJobsNothing) {
  ASSERT_EQ(run({"--align", "--reading", "1.7,-0.3,1.7,-0.3"}).status, kDone);
  EXPECT_THAT(
      settingsOfNextJob({"-d", "office", "-o", "Duplex=DuplexNoTumble", "-o", "PageSize=A5"}),
      Contains(Pair("BackLeftRightMargin", "0")));
  EXPECT_THAT(settingsOfNextJob({"-d", "office", "-o", "Duplex=None"}),
              Contains(Pair("BackLeftRightMargin", "0")));
  EXPECT_THAT(settingsOfNextJob({"--no-alignment", "-d", "office", "-o", "Duplex=DuplexNoTumble"}),
              Contains(Pair("BackLeftRightMargin", "0")));
  EXPECT_THAT(settingsOfNextJob(
                  {"-o", "BackLeftRightMargin=4", "-d", "office", "-o", "Duplex=DuplexNoTumble"}),
              Contains(Pair("BackLeftRightMargin", "4")));
}

TEST_F(Align, AddsReadingsToTheOffsetsOfThePrintedSheets) {
  ASSERT_EQ(run({"--align"}).status, kDone);
  ASSERT_EQ(run({"--align", "--reading", "1,2,1,2"}).status, kDone);
  ASSERT_EQ(run({"--align", "--reading", "1,2,1,2"}).status, kDone); // once more
  EXPECT_THAT(settingsOfNextJob(), IsSupersetOf(offsets("0", "0", "-10", "-20", "True")));
  ASSERT_EQ(run({"--align"}).status, kDone); // with these offsets
  ASSERT_EQ(run({"--align", "--reading", "0.1,0,0.1,0"}).status, kDone);
  EXPECT_THAT(settingsOfNextJob(), IsSupersetOf(offsets("0", "0", "-11", "-20", "True")));
}

TEST_F(Align, MovesBothSidesByTheCrease) {
  ASSERT_EQ(run({"--align", "--reading", "0,0,0,0", "--crease", "1,-0.5"}).status, kDone);
  EXPECT_THAT(settingsOfNextJob(), IsSupersetOf(offsets("10", "-5", "-10", "-5", "True")));
}

TEST_F(Align, WarnsOfWhatOffsetsCannotCorrect) {
  const auto turned = run({"--align", "--reading", "1,1,-1,1"});
  EXPECT_EQ(turned.status, kDone);
  EXPECT_THAT(turned.output, HasSubstr("The corners disagree"));
  const auto far =
      run({"--align", "-o", "BackLeftRightMargin=-60", "-o", kFlag, "--reading", "9,0,9,0"});
  EXPECT_THAT(far.output, HasSubstr("limited to 10 mm"));
}

TEST_F(Align, KeepsWhatWasMeasuredIfASheetIsFarOff) {
  ASSERT_EQ(run({"--align", "--reading", "1,2,1,2"}).status, kDone);
  const auto slip = run({"--align", "--reading", "1.7,-0.3,1.6,-0.2", "--reading",
                         "-1.6,0.3,1.6,-0.2", "--reading", "1.7,-0.2,1.6,-0.3"});
  EXPECT_EQ(slip.status, kValue);
  EXPECT_THAT(slip.errors, HasSubstr("Sheet 2"));
  EXPECT_THAT(settingsOfNextJob(), IsSupersetOf(offsets("0", "0", "-10", "-20", "True")));
}

TEST_F(Align, LimitsOffsetsToThePrinters) {
  ASSERT_EQ(
      cups->run({"lpadmin", "-p", "office", "-P", IMAGEPOSITION_SAMPLES "/duplex-shift-narrow.ppd"})
          .status,
      0);
  EXPECT_THAT(run({"--align", "--reading", "9,0,9,0"}).output, HasSubstr("limited to 5 mm"));
  EXPECT_THAT(settingsOfNextJob(), IsSupersetOf(offsets("0", "0", "-50", "0", "True")));
}

TEST_F(Align, AsksForADecimalPoint) {
  for (const Words &words : {Words{"--align", "--reading", "1,7,-0,3,1,6,-0,2"},
                             Words{"--align", "--reading", "0,0,0,0", "--crease", "1,7;0,2"}}) {
    const auto refused = run(words);
    EXPECT_EQ(refused.status, kUsage);
    EXPECT_THAT(refused.errors, HasSubstr("Use a decimal point."));
  }
}

TEST_F(Align, ListsWhatWasMeasuredQueueByQueue) {
  std::string entries;
  for (const char *const key :
       {R"("queue": "office", "paper": "A4")", R"("queue": "home", "paper": "A4")",
        R"("queue": "Office", "paper": "A5")"})
    entries += (entries.empty() ? "{" : ", {") + std::string(key) +
               R"(, "turning": "long-edge", "tray": "", "front": [0, 0], "back": [1, 0], )"
               R"("date": "2026-11-22"})";
  folder.write("config/print-dialog/alignments.json", R"({"alignments": [)" + entries + "]}");
  const std::string list = run({"--list-alignments"}, {}).output;
  EXPECT_THAT(list, testing::MatchesRegex("office: A4[^\n]*\nOffice: A5[^\n]*\nhome: A4[^\n]*\n"));
}

TEST_F(Align, RefusesWhatItCannotMeasure) {
  EXPECT_EQ(run({"--align"}, {"-d", "office", "-o", "Duplex=None"}).status, kValue);
  EXPECT_EQ(run({"--align", "--reading", "1,2,3"}).status, kUsage);
  EXPECT_EQ(run({"--align", "--crease", "1,2"}).status, kUsage);
  EXPECT_EQ(run({"--reading", "1,2,3,4"}).status, kUsage);
  EXPECT_EQ(run({"--align", sample("two-sided.pdf")}).status, kUsage);
}

TEST_F(Align, ListsExportsImportsAndDeletes) {
  ASSERT_EQ(run({"--align", "--reading", "1.7,-0.3,1.7,-0.3"}).status, kDone);
  EXPECT_THAT(run({"--list-alignments"}, {}).output, HasSubstr("office: A4"));
  const std::string file = folder.path("kept.json");
  ASSERT_EQ(run({"--export-alignments", file}, {}).status, kDone);
  const auto deleted = run({"--delete-alignments", "office"}, {});
  EXPECT_THAT(deleted.errors, HasSubstr("1 measurement of \"office\" was deleted"));
  EXPECT_EQ(run({"--list-alignments"}, {}).output, "");
  ASSERT_EQ(run({"--import-alignments", file}, {}).status, kDone);
  EXPECT_THAT(run({"--list-alignments"}, {}).output, HasSubstr("office: A4"));
  EXPECT_EQ(run({"--import-alignments", folder.write("other", "x")}, {}).status, kTicket);
}

} // namespace
