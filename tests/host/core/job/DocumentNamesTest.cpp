#include "DocumentNames.hpp"

#include <gtest/gtest.h>

namespace {

using imageposition::documentName;
using imageposition::documentsInWords;

TEST(DocumentNames, ADocumentHasTheNameOfItsFile) {
  EXPECT_EQ(documentName("report.pdf"), "report.pdf");
  EXPECT_EQ(documentName("/home/mary/report.pdf"), "report.pdf");
  EXPECT_EQ(documentName("-"), "(stdin)");
  EXPECT_EQ(documentName("/tmp/caf\xE9.pdf"), "caf\xEF\xBF\xBD.pdf");
}

TEST(DocumentNames, SeveralAreDescribedByTheFirstAndACount) {
  EXPECT_EQ(documentsInWords({}), "");
  EXPECT_EQ(documentsInWords({"a/report.pdf"}), "a/report.pdf");
  EXPECT_EQ(documentsInWords({"report.pdf", "-", "b.pdf"}), "report.pdf and 2 more");
  EXPECT_EQ(documentsInWords({"-", "b.pdf"}), "standard input and 1 more");
}

TEST(DocumentNames, AreShownOnOneLineWithoutDirectionOverrides) {
  EXPECT_EQ(documentsInWords({"a\n\xE2\x80\xAE"
                              "fdp.exe"}),
            "a\\n\\u202efdp.exe");
}

} // namespace
