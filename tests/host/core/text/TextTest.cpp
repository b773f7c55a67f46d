#include "Text.hpp"

#include "Language.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <clocale>
#include <cstdlib>

using namespace imageposition;

namespace {

TEST(Text, PutsEachValueInPlaceOfItsPlaceholder) {
  EXPECT_EQ(fill("{2} of {1}", {"a", "b"}), "b of a");
  EXPECT_EQ(fill("{1}{1}", {"x"}), "xx");
  EXPECT_EQ(fill("no mark", {"x"}), "no mark");
}

TEST(Text, LeavesInvalidPlaceholdersUnchanged) {
  const std::vector<std::string> values{"one", "two"};
  for (const char *hostile : {"{3}", "{9}", "{0}", "{10}", "{-1}", "{a}", "{", "}", "{1", "{}",
                              "%s%n%d%9999999d", "{ 1}", "{{", "\xff{", ""})
    EXPECT_EQ(fill(hostile, values), hostile);
  EXPECT_EQ(fill("{{1}}", values), "{one}");
  EXPECT_EQ(fill("{1", values), "{1");
  EXPECT_EQ(fill("%s {1} %n", values), "%s one %n");
}

TEST(Text, DoesNotExpandPlaceholdersInValues) {
  EXPECT_EQ(fill("{1} {2}", {"{2}", "{1}"}), "{2} {1}");
}

TEST(Text, EscapesNewlinesAndTerminalControlsInValues) {
  EXPECT_EQ(fill("the file \"{1}\"\n", {"a\n\x1b[2J"}), "the file \"a\\n\\x1b[2J\"\n");
}

struct SpokenText : testing::Test {
  ~SpokenText() override { speak("en", IMAGEPOSITION_CATALOGUES); }
};

constexpr Text kCancel = text("Cancel"); // created before a language is selected

TEST_F(SpokenText, IsTranslatedWhenItIsUsed) {
  speak("de", IMAGEPOSITION_CATALOGUES);
  EXPECT_EQ(kCancel.str(), "Abbrechen");
  speak("en", IMAGEPOSITION_CATALOGUES);
  EXPECT_EQ(kCancel.str(), "Cancel");
}

TEST_F(SpokenText, IsEnglishIfThereIsNoTranslation) {
  speak("de", IMAGEPOSITION_CATALOGUES);
  EXPECT_EQ(text("Nobody has translated this").str(), "Nobody has translated this");
  EXPECT_EQ(textIn("nowhere", "Cancel").str(), "Cancel");
  EXPECT_EQ(text("").str(), "");
  speak("xx", IMAGEPOSITION_CATALOGUES);
  EXPECT_EQ(kCancel.str(), "Cancel");
  speak("de", "/nowhere");
  EXPECT_EQ(kCancel.str(), "Cancel");
}

TEST_F(SpokenText, HasThePluralFormForANumber) {
  EXPECT_EQ(counted(1, "{1} leaf", "{1} leaves"), "1 leaf");
  EXPECT_EQ(counted(0, "{1} leaf", "{1} leaves"), "0 leaves");
  EXPECT_EQ(counted(-2, "{1} leaf", "{1} leaves"), "-2 leaves");
  EXPECT_EQ(counted(2, "{1} leaf of {2}", "{1} leaves of {2}", {"a tree"}), "2 leaves of a tree");
}

TEST_F(SpokenText, DoesNotChangeTheFormatOfNumbersInFiles) {
  speak("de", IMAGEPOSITION_CATALOGUES);
  kCancel.str();
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  EXPECT_STREQ(std::setlocale(LC_MESSAGES, nullptr), "C");
}

TEST_F(SpokenText, IncludesTheErrorMessagesOfTheSystem) {
  EXPECT_EQ(systemReason(ENOENT), "No such file or directory");
}

} // namespace
