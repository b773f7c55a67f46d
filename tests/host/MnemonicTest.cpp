// The letters that reach controls.
#include "host/Mnemonic.hpp"

#include <gtest/gtest.h>

namespace {

using imageposition::MnemonicText;
using imageposition::readMnemonic;

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

TEST(Mnemonic, TheMarkerStandsBeforeItsLetterAndIsNotShown) {
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

TEST(Mnemonic, AnAmpersandIsWrittenTwiceOrWithNoLetterBehindIt) {
  const Row rows[] = {
      {"Cut && fold", "Cut & fold", "", 0},
      {"Cut & fold", "Cut & fold", "", 0},
      {"Cut && &fold", "Cut & fold", "f", 6},
      {"at the end &", "at the end &", "", 0},
      {"&&", "&", "", 0},
      {"&&&A", "&A", "A", 1},
      {"&:", "&:", "", 0},
      {"&\xC3", "&\xC3", "", 0},
  };
  for (const Row &row : rows)
    expectRead(row);
}

TEST(Mnemonic, TheFirstOfSeveralMarkersCountsAndNoneIsShown) {
  const MnemonicText mnemonic = readMnemonic("&Save &as");
  EXPECT_EQ(mnemonic.text, "Save as");
  EXPECT_EQ(mnemonic.key, "S");
}

} // namespace
