#include "DestinationFile.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using imageposition::DestinationFile;
using testing::IsEmpty;
using testing::SizeIs;

TEST(DestinationFile, LinesAreReadLikeCupsDoes) {
  const struct {
    const char *line;
    const char *printer;
    const char *instance;
    const char *options;
    bool isDefault;
  } rows[] = {
      {"Dest office", "office", "", "", false},
      {"Dest office A=1 B=2", "office", "", "A=1 B=2", false},
      {"Dest office/draft A=1", "office", "draft", "A=1", false},
      {"default office/draft", "office", "draft", "", true},
      {"  DEST\toffice/draft \t A=1", "office", "draft", "A=1", false},
      {"Dest office/draft A=1 # B=2", "office", "draft", "A=1 ", false},
      {"Dest office/draft A=1\\#2", "office", "draft", "A=1#2", false},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.line);
    const auto entries = DestinationFile(row.line).entries();
    ASSERT_THAT(entries, SizeIs(1));
    EXPECT_EQ(entries[0].queue.printer, row.printer);
    EXPECT_EQ(entries[0].queue.instance, row.instance);
    EXPECT_EQ(entries[0].options, row.options);
    EXPECT_EQ(entries[0].isDefault, row.isDefault);
  }
  for (const char *line : {"", "\n\n", "# Dest office", "Dest", "Dest  ", "Printer office"})
    EXPECT_THAT(DestinationFile(line).entries(), IsEmpty()) << line;
}

TEST(DestinationFile, ChangingAPresetKeepsAllOtherLines) {
  DestinationFile file(
      "# mine\n\nDest  office\tA=1\nDest office/draft A=1\nnonsense\nDest attic/x Y");
  EXPECT_TRUE(file.set({"office", "Draft"}, "A=2"));
  EXPECT_EQ(file.text(),
            "# mine\n\nDest  office\tA=1\nDest office/Draft A=2\nnonsense\nDest attic/x Y\n");
  file.remove({"office", "draft"});
  EXPECT_EQ(file.text(), "# mine\n\nDest  office\tA=1\nnonsense\nDest attic/x Y\n");
  file.remove({"office", "draft"});
  EXPECT_TRUE(file.set({"office", "late"}, "B=1"));
  EXPECT_EQ(file.text(),
            "# mine\n\nDest  office\tA=1\nnonsense\nDest attic/x Y\nDest office/late B=1\n");
}

TEST(DestinationFile, SeveralLinesForOnePresetAreMerged) {
  DestinationFile file("Dest office/draft A=1\nDest attic\nDest office/draft B=1\n");
  EXPECT_TRUE(file.set({"office", "draft"}, "C=1"));
  EXPECT_EQ(file.text(), "Dest office/draft C=1\nDest attic\n");
}

TEST(DestinationFile, TheDefaultPrinterStaysTheDefault) {
  DestinationFile file("Default office/draft A=1\n");
  EXPECT_TRUE(file.set({"office", "draft"}, "A=2"));
  EXPECT_EQ(file.text(), "Default office/draft A=2\n");
  file.rename({"office", "draft"}, "fine");
  EXPECT_EQ(file.text(), "Default office/fine A=2\n");
  file.remove({"office", "fine"});
  EXPECT_EQ(file.text(), "Default office\n");
}

TEST(DestinationFile, RenamingKeepsTheRestOfTheLine) {
  DestinationFile file("Dest office/a  A=\"1 2\"   # why\nDest office/ab X=1\n");
  file.rename({"OFFICE", "A"}, "long name"); // the caller makes names usable
  EXPECT_EQ(file.text(), "Dest office/long name  A=\"1 2\"   # why\nDest office/ab X=1\n");
}

TEST(DestinationFile, ALineThatCupsWouldTruncateIsRefused) {
  DestinationFile file("Dest office/draft A=1\n");
  EXPECT_FALSE(file.set({"office", "draft"}, std::string(8192, 'x')));
  EXPECT_EQ(file.text(), "Dest office/draft A=1\n");
  EXPECT_TRUE(file.set({"office", "draft"}, std::string(8191 - 18, 'x')));
}

} // namespace
