#include "PageRanges.hpp"

#include "ExitCode.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace imageposition;
using testing::HasSubstr;
using testing::StrEq;

std::string failureOf(const std::string &text) {
  try {
    PageRanges::parse(text);
  } catch (const Failure &failure) {
    EXPECT_EQ(failure.code(), ExitCode::Usage);
    return failure.what();
  }
  ADD_FAILURE() << "was understood: " << text;
  return {};
}

TEST(PageRanges, AreParsedAsUsersWriteThem) {
  const struct {
    const char *written;
    const char *shown;
    const char *value;
  } rows[] = {
      {"1", "1", "1"},
      {"1-3, 7", "1-3, 7", "1-3,7"},
      {" 1 - 3 ,7 ", "1-3, 7", "1-3,7"},
      {"7,1-3", "1-3, 7", "1-3,7"},
      {"5-", "5-", "5-"},
      {"5 -", "5-", "5-"},
      {"-4", "1-4", "1-4"},
      {"1,1,1", "1", "1"},
      {"1-5,3-8", "1-8", "1-8"},
      {"1-9,3", "1-9", "1-9"},
      {"1,2,3", "1-3", "1-3"},
      {"1-2,3-4,6", "1-4, 6", "1-4,6"},
      {"5-,7,9-12", "5-", "5-"},
      {"9-,2", "2, 9-", "2,9-"},
      {"1 3", "1, 3", "1,3"},
      {"1;3,,5,", "1, 3, 5", "1,3,5"},
      {"007", "7", "7"},
      {"4-4", "4", "4"},
      {"2147483646", "2147483646", "2147483646"},
      {"1\xE2\x80\x93"
       "3",
       "1-3", "1-3"},
      {"3\u301C6", "3-6", "3-6"},
      {"3\uFF5E6, 8~", "3-6, 8-", "3-6,8-"},
      {"\xEF\xBC\x91\xEF\xBC\x8D\xEF\xBC\x93\xE3\x80\x81\xEF\xBC\x97", "1-3, 7", "1-3,7"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.written);
    const PageRanges pages = PageRanges::parse(row.written);
    EXPECT_EQ(pages.text(), row.shown);
    EXPECT_EQ(pages.optionValue(), row.value);
    EXPECT_EQ(PageRanges::parse(pages.text()).ranges(), pages.ranges());
  }
}

TEST(PageRanges, AnErrorIsExplainedWithAnExample) {
  const struct {
    const char *written;
    const char *reason;
    const char *example;
  } rows[] = {
      {"", "page range is empty", "1-3, 7"},
      {" , ", "page range is empty", "1-3, 7"},
      {"all", "\"all\"", "1-3, 7"},
      {"1-3, x7", "\"x7\"", "1-3, 7"},
      {"3a", "\"3a\"", "1-3, 7"},
      {"1.5", "\"1.5\"", "1-3, 7"},
      {"+1", "\"+1\"", "1-3, 7"},
      {"-", "hyphen", "5-"},
      {"1, -, 2", "hyphen", "5-"},
      {"1-2-3", "\"-3\"", "1-3, 7"},
      {"0", "start at 1", "1-3"},
      {"0-3", "start at 1", "1-3"},
      {"7-3", "7-3 is in the wrong order", "Use 3-7"},
      {"2147483647", "is too large", "5-"},
      {"99999999999999999999", "99999999999999999999", "5-"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.written);
    const std::string failure = failureOf(row.written);
    EXPECT_THAT(failure, HasSubstr(row.reason));
    EXPECT_THAT(failure, HasSubstr(row.example));
  }
}

TEST(PageChoice, IsStoredInTheFormatOfCupsAndReadBack) {
  PrintSettingsStore job;
  storePageChoice({PageRanges::parse("9-, 1-3"), PageSet::Even}, job);
  EXPECT_THAT(job.get("page-ranges"), StrEq("1-3,9-"));
  EXPECT_THAT(job.get("page-set"), StrEq("even"));
  const PageChoice read = readPageChoice(job);
  ASSERT_TRUE(read.ranges);
  EXPECT_EQ(read.ranges->text(), "1-3, 9-");
  EXPECT_EQ(read.set, PageSet::Even);
}

TEST(PageChoice, AllPagesRemoveTheOptionsFromTheJob) {
  PrintSettingsStore job;
  job.set("page-ranges", "1");
  job.set("page-set", "odd");
  EXPECT_EQ(readPageChoice(job).set, PageSet::Odd);
  storePageChoice({}, job);
  EXPECT_EQ(job.optionCount(), 0);
  EXPECT_FALSE(readPageChoice(job).ranges);
}

TEST(PageChoice, TheLargestIntegerOfAFilterIsAnOpenEnd) {
  PrintSettingsStore job;
  job.set("page-ranges", "5-2147483647");
  ASSERT_TRUE(readPageChoice(job).ranges);
  EXPECT_EQ(readPageChoice(job).ranges->text(), "5-");
}

TEST(PageChoice, AnInvalidOptionCountsAsAllPages) {
  PrintSettingsStore job;
  job.set("page-ranges", "x");
  job.set("page-set", "x");
  EXPECT_FALSE(readPageChoice(job).ranges);
  EXPECT_EQ(readPageChoice(job).set, PageSet::All);
}

TEST(PageRanges, OfSidesTellThePagesOnThem) {
  const struct {
    const char *sides;
    int perSide;
    const char *pages;
  } rows[] = {{"3-6", 2, "5-10"}, {"2-3", 2, "3-6"},   {"1,5", 2, "1-2, 9-10"}, {"3-", 4, "9-10"},
              {"6", 2, ""},       {"1-99", 4, "1-10"}, {"2147483646", 16, ""}};
  for (const auto &row : rows)
    EXPECT_EQ(PageRanges::parse(row.sides).pagesOnSides(row.perSide, 10), row.pages) << row.sides;
}

TEST(PageRanges, AreComparedWithThePagesOfADocument) {
  const struct {
    const char *ranges;
    bool has, namesBeyond;
  } rows[] = {{"1-3", true, false},   {"12", true, false},   {"5-", true, false},
              {"-4", true, false},    {"1-13", true, true},  {"3, 40", true, true},
              {"12-", true, false},   {"13-", false, true},  {"13", false, true},
              {"20-30", false, true}, {"1, 13-", true, true}};
  for (const auto &row : rows) {
    const PageRanges pages = PageRanges::parse(row.ranges);
    EXPECT_EQ(pages.hasPagesUpTo(12), row.has) << row.ranges;
    EXPECT_EQ(pages.namesPagesBeyond(12), row.namesBeyond) << row.ranges;
  }
}

} // namespace
