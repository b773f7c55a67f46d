// Texts of printers and of CUPS, made fit to be shown.
#include "host/ForeignText.hpp"

#include <gtest/gtest.h>

namespace {

using imageposition::onOneLine;
using imageposition::textOrKeyword;

TEST(ForeignText, IsOneLineOfUtf8WithoutWhatATerminalObeys) {
  const struct {
    const char *text, *line;
  } rows[] = {
      {"", ""},
      {"Größe 紙 😀", "Größe 紙 😀"},
      {"two\r\nlines\tand a tab", "two  lines and a tab"},
      {"\x1B[31mred\x7F", " [31mred "},
      {"\xC2\x9B[31m\xC2\x85", " [31m "},
      {"a\xE2\x80\xA8"
       "b\xE2\x80\xA9",
       "a b "},
      {"\xFF\xC3(\xE7\xB4", "\uFFFD\uFFFD(\uFFFD\uFFFD"},
      {"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
  };
  for (const auto &row : rows)
    EXPECT_EQ(onOneLine(row.text), row.line) << row.text;
}

TEST(ForeignText, OfADescriptionIsTheKeywordWhereItHasNone) {
  EXPECT_EQ(textOrKeyword("Two-Sided", "Duplex"), "Two-Sided");
  EXPECT_EQ(textOrKeyword("", "Duplex"), "Duplex");
  EXPECT_EQ(textOrKeyword(nullptr, "Du\xFFplex"), "Du\uFFFDplex");
}

} // namespace
