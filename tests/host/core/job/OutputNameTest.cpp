#include "OutputName.hpp"

#include <gtest/gtest.h>

namespace {

using imageposition::kPdfEnding;
using imageposition::kTicketEnding;
using imageposition::outputPath;
using imageposition::suggestedOutput;

TEST(OutputName, IsThatOfTheFirstDocument) {
  EXPECT_EQ(suggestedOutput({"/home/ann/report.pdf", "b.pdf"}, kTicketEnding), "report.json");
  EXPECT_EQ(suggestedOutput({"two.parts.pdf"}, kTicketEnding), "two.parts.json");
  EXPECT_EQ(suggestedOutput({"-"}, kTicketEnding), "job.json");
  EXPECT_EQ(suggestedOutput({}, kTicketEnding), "job.json");
}

TEST(OutputName, OfAPdfFileIsNotThatOfThePdfDocument) {
  EXPECT_EQ(suggestedOutput({"/home/ann/report.pdf"}, kPdfEnding), "report-print.pdf");
}

TEST(OutputName, IsCompletedAsTheUserMeansIt) {
  const char *const rows[][2] = {{"job.json", "job.json"},
                                 {"  out/job  ", "out/job.json"},
                                 {"~/job", "/home/ann/job.json"},
                                 {"~job", "~job.json"},
                                 {"job.txt", "job.txt"},
                                 {"/var/", "/var/"},
                                 {"   ", ""},
                                 {"", ""}};
  for (const auto &[typed, path] : rows)
    EXPECT_EQ(outputPath(typed, "/home/ann", kTicketEnding), path) << typed;
  EXPECT_EQ(outputPath("flyer", "/home/ann", kPdfEnding), "flyer.pdf");
}

} // namespace
