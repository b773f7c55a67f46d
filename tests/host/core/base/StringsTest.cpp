#include "Strings.hpp"

#include <gtest/gtest.h>

namespace {

using namespace imageposition;

TEST(Strings, StartAndEndAreComparedExactly) {
  EXPECT_TRUE(startsWith("office", "off"));
  EXPECT_TRUE(startsWith("office", ""));
  EXPECT_FALSE(startsWith("office", "Off"));
  EXPECT_FALSE(startsWith("of", "off"));
  EXPECT_TRUE(endsWith("job.json", ".json"));
  EXPECT_TRUE(endsWith("job", ""));
  EXPECT_FALSE(endsWith("job.JSON", ".json"));
  EXPECT_FALSE(endsWith("json", ".json"));
}

TEST(Strings, BlanksAreTrimmedFromBothEnds) {
  for (const char *string : {"a b", " a b", "a b\t", "\t a b \t"})
    EXPECT_EQ(trimmed(string, " \t"), "a b") << string;
  EXPECT_EQ(trimmed("\na", " \t"), "\na");
  EXPECT_EQ(trimmed(" \t", " \t"), "");
  EXPECT_EQ(trimmed("", " \t"), "");
}

TEST(Strings, AreQuotedForAShellWhereItWouldActOnThem) {
  for (const char *plain : {"office", "office/Two-sided", "a_b.pdf", "B\xC3\xBCro", "a=b,c"})
    EXPECT_EQ(shellWord(plain), plain);
  EXPECT_EQ(shellWord("my job.json"), "'my job.json'");
  EXPECT_EQ(shellWord("a$(b)"), "'a$(b)'");
  EXPECT_EQ(shellWord("it's"), "'it'\\''s'");
  EXPECT_EQ(shellWord(""), "''");
  EXPECT_EQ(shellWord("~x"), "'~x'");
}

TEST(Strings, NamesAreTheSameInAnyCase) {
  EXPECT_TRUE(isSame("PageSize", "pagesize"));
  EXPECT_TRUE(isSame("", ""));
  EXPECT_FALSE(isSame("PageSize", "PageSizes"));
  EXPECT_FALSE(isSame("PageSizes", "PageSize"));
  EXPECT_FALSE(isSame("\xC3\x84", "\xC3\xA4")) << "of ASCII letters alone";
  EXPECT_TRUE(contains({"Duplex", "PageSize"}, "PAGESIZE"));
  EXPECT_FALSE(contains({"Duplex", "PageSize"}, "Page"));
  EXPECT_FALSE(contains({}, ""));
}

TEST(Strings, OfASettingSwitchItOnInAnyCase) {
  for (const char *on : {"true", "True", "yes", "ON"})
    EXPECT_TRUE(isTrue(on)) << on;
  for (const char *other : {"false", "no", "off", "1", "", "tru", "truest"})
    EXPECT_FALSE(isTrue(other)) << other;
}

TEST(Strings, TheOrderOfNamesIgnoresCase) {
  const IgnoringCase isBefore;
  EXPECT_TRUE(isBefore("a", "B"));
  EXPECT_TRUE(isBefore("B", "c"));
  EXPECT_TRUE(isBefore("Page", "pages"));
  EXPECT_FALSE(isBefore("pages", "Page"));
  EXPECT_FALSE(isBefore("Page", "page"));
}

} // namespace
