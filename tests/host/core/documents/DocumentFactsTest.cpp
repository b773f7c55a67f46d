#include "DocumentFacts.hpp"

#include <gtest/gtest.h>

namespace imageposition {

namespace {

constexpr PaperSize kA4{{595.276}, {841.89}};

TEST(DocumentFacts, ArriveAsTheyWereWritten) {
  const auto whole = readFacts(writeFacts({12, kA4}));
  ASSERT_TRUE(whole && whole->paper);
  EXPECT_EQ(whole->pages, 12);
  EXPECT_EQ(whole->paper->width.count, 595.276);
  EXPECT_EQ(whole->paper->length.count, 841.89);
  const auto withoutPaper = readFacts(writeFacts({1, std::nullopt}));
  ASSERT_TRUE(withoutPaper);
  EXPECT_EQ(withoutPaper->pages, 1);
  EXPECT_FALSE(withoutPaper->paper);
}

TEST(DocumentFacts, AreNotReadFromAnythingElse) {
  for (const char *line : {"", "\n", "12", "x\n", "0\n", "-1\n", "99999999999\n", "12 595\n",
                           "12 595 x\n", "12 595 842 1\n", "12 0 842\n", "12 -5 842\n",
                           "12 595 1e9\n", "12 nan 842\n", "12 inf 842\n", "12 pages\n"})
    EXPECT_FALSE(readFacts(line)) << line;
}

TEST(DocumentDefect, ArrivesAsItWasWritten) {
  for (const auto defect :
       {DocumentDefect::Password, DocumentDefect::Forbidden, DocumentDefect::Damaged}) {
    EXPECT_EQ(readDefect(writeDefect(defect)), defect);
    EXPECT_FALSE(readFacts(writeDefect(defect)));
  }
  for (const char *line : {"", "\n", "password", "password\n\n", "12\n"})
    EXPECT_FALSE(readDefect(line)) << line;
}

TEST(PaperSize, IsTheSameOnItsSideAndWithinFivePoints) {
  EXPECT_TRUE(kA4.isSame(kA4));
  EXPECT_TRUE(kA4.isSame({{841.89}, {595.276}}));
  EXPECT_TRUE(kA4.isSame({{598}, {839}}));
  EXPECT_FALSE(kA4.isSame({{612}, {792}}));
  EXPECT_FALSE(kA4.isSame({{419.5}, {595.3}}));
}

} // namespace

} // namespace imageposition
