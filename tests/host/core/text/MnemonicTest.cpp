#include "Mnemonic.hpp"

#include <gtest/gtest.h>

namespace {

using imageposition::MnemonicText;
using imageposition::readMnemonic;
using imageposition::withKey;
using imageposition::withoutKey;

struct Row {
  const char *marked, *text, *key;
  std::size_t keyAt;
};

void expectRead(const Row &row) {
  SCOPED_TRACE(row.marked);
  const MnemonicText mnemonic = readMnemonic(row.marked);
  EXPECT_EQ(mnemonic.text, row.text);
  EXPECT_EQ(mnemonic.key, row.key);
  EXPECT_EQ(mnemonic.keyAt, row.keyAt);
}

TEST(Mnemonic, TheMarkerPrecedesItsLetterAndIsNotShown) {
  const Row rows[] = {
      {"&Printer:", "Printer:", "P", 0},
      {"Pre&set:", "Preset:", "s", 3},
      {"Copies", "Copies", "", 0},
      {"", "", "", 0},
      {"Page &2", "Page 2", "2", 5},
      {"プリンタ(&P):", "プリンタ(P):", "P", 13},
      {"Qualit\xC3\xA9 &\xC3\xA9lev\xC3\xA9"
       "e",
       "Qualit\xC3\xA9 \xC3\xA9lev\xC3\xA9"
       "e",
       "\xC3\xA9", 9},
      {"&Пресет", "Пресет", "П", 0},
  };
  for (const Row &row : rows)
    expectRead(row);
}

TEST(Mnemonic, ALiteralAmpersandIsDoubledOrHasNoLetterAfterIt) {
  const Row rows[] = {
      {"Cut && fold", "Cut & fold", "", 0},
      {"Cut & fold", "Cut & fold", "", 0},
      {"Cut && &fold", "Cut & fold", "f", 6},
      {"at the end &", "at the end &", "", 0},
      {"&&", "&", "", 0},
      {"&&&A", "&A", "A", 1},
      {"&:", "&:", "", 0},
      {"&\xC3", "&\xC3", "", 0},
      {"&\xE3\x83&A",
       "&\xE3\x83"
       "A",
       "A", 3},
      {"&\xF5\x80\x80\x80", "&\xF5\x80\x80\x80", "", 0},
  };
  for (const Row &row : rows)
    expectRead(row);
}

TEST(Mnemonic, AThirdPartyLabelGetsItsFirstUnusedLetter) {
  std::string used = "U";
  EXPECT_EQ(withKey("User:", used), "U&ser:");
  EXPECT_EQ(withKey("Surname:", used), "Su&rname:") << "s and u are used, in either case";
  EXPECT_EQ(withKey("12 holes:", used), "&12 holes:");
  EXPECT_EQ(withKey("Größe:", used), "&Größe:");
  EXPECT_EQ(used, "Usr1G");
}

TEST(Mnemonic, ALabelWithoutAnUnusedLetterGetsAnUnusedDigit) {
  std::string used = "1us";
  EXPECT_EQ(withKey("文字:", used), "文字:(&2)");
  EXPECT_EQ(withKey("Us", used), "Us(&3)");
  for (char digit = '4'; digit <= '9'; digit++)
    EXPECT_EQ(readMnemonic(withKey("ß", used)).key, std::string(1, digit));
  EXPECT_EQ(withKey("ß", used), "ß");
}

TEST(Mnemonic, AnEscapedThirdPartyLabelIsShownUnchanged) {
  for (const char *text : {"Cut & fold", "A&B", "&", "&&", "", "&Größe&"}) {
    EXPECT_EQ(readMnemonic(withoutKey(text)).text, text);
    EXPECT_EQ(readMnemonic(withoutKey(text)).key, "") << text;
  }
  std::string used;
  const MnemonicText marked = readMnemonic(withKey("& fold & cut", used));
  EXPECT_EQ(marked.text, "& fold & cut");
  EXPECT_EQ(marked.key, "f");
}

TEST(Mnemonic, OnlyTheFirstMarkerCountsAndNoneIsShown) {
  const MnemonicText mnemonic = readMnemonic("&Save &as");
  EXPECT_EQ(mnemonic.text, "Save as");
  EXPECT_EQ(mnemonic.key, "S");
}

} // namespace
