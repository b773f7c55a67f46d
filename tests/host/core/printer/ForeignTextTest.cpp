// Texts of printers and of CUPS, made fit to be shown.
#include "ForeignText.hpp"

#include <gtest/gtest.h>

namespace {

using imageposition::textOrKeyword;

TEST(ForeignText, OfADescriptionIsTheKeywordWhereItHasNone) {
  EXPECT_EQ(textOrKeyword("Two-Sided", "Duplex"), "Two-Sided");
  EXPECT_EQ(textOrKeyword("", "Duplex"), "Duplex");
  EXPECT_EQ(textOrKeyword("Two\n\x1bSided", "Duplex"), "Two\\n\\x1bSided");
  EXPECT_EQ(textOrKeyword(nullptr, "Du\xFFplex"), "Du\uFFFDplex");
}

} // namespace
