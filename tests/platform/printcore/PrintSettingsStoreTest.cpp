#include "PrintSettingsStore.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <malloc.h>

#include <string>

namespace {

using imageposition::PrintSettingsStore;
using Outcome = PrintSettingsStore::Outcome;
using testing::IsNull;
using testing::StrEq;

TEST(PrintSettingsStore, StartsEmpty) {
  PrintSettingsStore store;
  EXPECT_EQ(store.optionCount(), 0);
  EXPECT_THAT(store.get("Duplex"), IsNull());
}

TEST(PrintSettingsStore, ReturnsTheValueStoredLast) {
  PrintSettingsStore store;
  EXPECT_EQ(store.set("LeftRightMargin", "-3"), Outcome::Stored);
  EXPECT_THAT(store.get("LeftRightMargin"), StrEq("-3"));
  EXPECT_EQ(store.set("LeftRightMargin", "4"), Outcome::Stored);
  EXPECT_THAT(store.get("LeftRightMargin"), StrEq("4"));
  EXPECT_EQ(store.optionCount(), 1);
}

TEST(PrintSettingsStore, NamesMatchWithoutRegardToCaseAsInCups) {
  PrintSettingsStore store;
  store.set("LeftRightMargin", "1");
  store.set("leftrightmargin", "2");
  EXPECT_EQ(store.optionCount(), 1);
  EXPECT_THAT(store.get("LEFTRIGHTMARGIN"), StrEq("2"));
}

TEST(PrintSettingsStore, ProvidesAnOptionListForCups) {
  PrintSettingsStore store;
  store.set("Duplex", "None");
  store.set("BackLeftRightMargin", "7");
  ASSERT_EQ(store.optionCount(), 2);
  EXPECT_THAT(
      cupsGetOption("Duplex", store.optionCount(), const_cast<cups_option_t *>(store.options())),
      StrEq("None"));
  EXPECT_THAT(store.options()[0].name, StrEq("BackLeftRightMargin"));
}

TEST(PrintSettingsStore, AnEmptyValueIsAValue) {
  PrintSettingsStore store;
  EXPECT_EQ(store.set("job-name", ""), Outcome::Stored);
  EXPECT_THAT(store.get("job-name"), StrEq(""));
}

TEST(PrintSettingsStore, ALockedEntryKeepsItsValue) {
  PrintSettingsStore store;
  EXPECT_EQ(store.set("Duplex", "None", true), Outcome::Stored);
  EXPECT_EQ(store.set("Duplex", "DuplexTumble"), Outcome::Locked);
  EXPECT_EQ(store.set("duplex", "DuplexTumble", true), Outcome::Locked);
  EXPECT_FALSE(store.remove("DUPLEX"));
  EXPECT_THAT(store.get("Duplex"), StrEq("None"));
  EXPECT_TRUE(store.isLocked("duplex"));
  EXPECT_FALSE(store.isLocked("MediaType"));
}

TEST(PrintSettingsStore, AnEntryCanBeLockedLater) {
  PrintSettingsStore store;
  store.set("Duplex", "None");
  EXPECT_EQ(store.set("Duplex", "DuplexTumble", true), Outcome::Stored);
  EXPECT_EQ(store.set("Duplex", "None"), Outcome::Locked);
  EXPECT_THAT(store.get("Duplex"), StrEq("DuplexTumble"));
}

// Adding one of the two quality options makes CUPS remove the other.
TEST(PrintSettingsStore, ALockedEntryIsNotDisplacedByItsSynonym) {
  PrintSettingsStore store;
  store.set("cupsPrintQuality", "High", true);
  EXPECT_EQ(store.set("print-quality", "3"), Outcome::Locked);
  EXPECT_THAT(store.get("cupsPrintQuality"), StrEq("High"));
}

TEST(PrintSettingsStore, RemovesAnEntryOnce) {
  PrintSettingsStore store;
  store.set("Duplex", "None");
  store.set("MediaType", "Plain");
  store.set("PageSize", "A4");
  EXPECT_TRUE(store.remove("MediaType"));
  EXPECT_FALSE(store.remove("MediaType"));
  EXPECT_THAT(store.get("Duplex"), StrEq("None"));
  EXPECT_THAT(store.get("PageSize"), StrEq("A4"));
  EXPECT_EQ(store.optionCount(), 2);
}

TEST(PrintSettingsStore, EmptyingItRepeatedlyLeaksNothing) {
  const auto emptyOften = [] {
    for (int i = 0; i < 10000; ++i) {
      PrintSettingsStore store;
      store.set("copies", "2");
      store.remove("copies");
      store.set("print-quality", "5");
      store.set("cupsPrintQuality", "High"); // replaces the other
    }
  };
  emptyOften();
  const std::size_t before = mallinfo2().uordblks;
  emptyOften();
  EXPECT_LT(mallinfo2().uordblks, before + 10000);
}

TEST(PrintSettingsStore, ACopyIsIndependentAndKeepsTheLocks) {
  PrintSettingsStore store;
  store.set("Duplex", "None", true);
  store.set("PageSize", "A4");
  PrintSettingsStore copy(store);
  copy.set("PageSize", "A5");
  EXPECT_THAT(store.get("PageSize"), StrEq("A4"));
  EXPECT_EQ(copy.set("Duplex", "DuplexTumble"), Outcome::Locked);
  store = copy;
  EXPECT_THAT(store.get("PageSize"), StrEq("A5"));
}

TEST(PrintSettingsStore, AssigningAStoreToItselfKeepsIt) {
  PrintSettingsStore store;
  store.set("PageSize", "A4");
  const PrintSettingsStore &same = store;
  store = same;
  EXPECT_THAT(store.get("PageSize"), StrEq("A4"));
}

struct HostileText {
  const char *what;
  std::string text;
};

TEST(PrintSettingsStore, UnusableNamesAreRejected) {
  const HostileText rows[] = {
      {"empty", ""},
      {"with an equals sign", "a=b"},
      {"with a blank", "a b"},
      {"with a line break", "a\nb"},
      {"with NUL", std::string("a\0b", 3)},
      {"with a quote", "a\"b"},
      {"with an apostrophe", "a'b"},
      {"with a brace", "{a"},
      {"with a backslash", "a\\b"},
      {"with a comma", "a,b"},
      {"with a semicolon", "a;b"},
      {"with a dollar sign", "a$b"},
      {"with a grave accent", "a`b"},
      {"with a parenthesis", "a(b"},
      {"with a bar", "a|b"},
      {"with an ampersand", "a&b"},
      {"with a less-than sign", "a<b"},
      {"with a greater-than sign", "a>b"},
      {"with a slash", "a/b"},
      {"with a number sign", "a#b"},
      {"with an asterisk", "*a"},
      {"not ASCII", "\xC3\xA4"},
      {"with DEL", "a\x7F"},
      {"too long", std::string(PrintSettingsStore::kLongestName + 1, 'n')},
  };
  for (const HostileText &row : rows) {
    SCOPED_TRACE(row.what);
    PrintSettingsStore store;
    store.set("Duplex", "None");
    EXPECT_EQ(store.set(row.text, "1"), Outcome::BadName);
    EXPECT_THAT(store.get(row.text), IsNull());
    EXPECT_FALSE(store.remove(row.text));
    EXPECT_EQ(store.optionCount(), 1);
  }
}

TEST(PrintSettingsStore, NamesOfCupsIppAndPpdOptionsAreAccepted) {
  for (const char *name :
       {"com.morva.printsettings.19AImagePositionEnable", "notify-recipient-uri", "N-up", "copies",
        "HPOption_Duplexer", "com.apple.print.PrintSettings.PMColorSpaceModel..n.", "Foreign%n",
        "A+B", "x:y@z"}) {
    PrintSettingsStore store;
    EXPECT_EQ(store.set(name, "1"), Outcome::Stored) << name;
  }
}

TEST(PrintSettingsStore, TheLongestNameAndValueAreStoredWhole) {
  PrintSettingsStore store;
  const std::string name(PrintSettingsStore::kLongestName, 'n');
  const std::string value(PrintSettingsStore::kLongestValue, 'v');
  EXPECT_EQ(store.set(name, value), Outcome::Stored);
  EXPECT_EQ(store.get(name), value);
}

TEST(PrintSettingsStore, ValuesThatCupsWouldCutOrCouldNotSendAreRejected) {
  const HostileText rows[] = {
      {"with NUL", std::string("1\0002", 3)},
      {"too long", std::string(PrintSettingsStore::kLongestValue + 1, 'v')},
      {"a lone continuation byte", "\x80"},
      {"a sequence that ends too early", "\xE2\x82"},
      {"an overlong sequence", "\xC0\xAF"},
      {"an overlong sequence of three", "\xE0\x9F\xBF"},
      {"a surrogate", "\xED\xA0\x80"},
      {"beyond U+10FFFF", "\xF4\x90\x80\x80"},
  };
  for (const HostileText &row : rows) {
    SCOPED_TRACE(row.what);
    PrintSettingsStore store;
    store.set("Duplex", "None");
    EXPECT_EQ(store.set("Duplex", row.text), Outcome::BadValue);
    EXPECT_THAT(store.get("Duplex"), StrEq("None"));
  }
}

TEST(PrintSettingsStore, ValuesInAnyScriptAndWithAnyPunctuationAreStored) {
  for (const char *value : {"a=b", "a b, c", "{x}", "\"quoted\"", "back\\slash", "l1\nl2",
                            "\xE5\xB7\xA6\xE5\x8F\xB3", "\xF0\x9F\x96\xA8"}) {
    SCOPED_TRACE(value);
    PrintSettingsStore store;
    EXPECT_EQ(store.set("job-name", value), Outcome::Stored);
    EXPECT_THAT(store.get("job-name"), StrEq(value));
  }
}

} // namespace
