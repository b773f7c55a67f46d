// Strings from printer descriptions, prepared for display.
#include "ForeignText.hpp"

#include <gtest/gtest.h>

namespace {

using imageposition::textOrKeyword;

TEST(ForeignText, IsTheKeywordIfTheDescriptionHasNoName) {
  EXPECT_EQ(textOrKeyword("Two-Sided", "Duplex"), "Two-Sided");
  EXPECT_EQ(textOrKeyword("", "Duplex"), "Duplex");
  EXPECT_EQ(textOrKeyword("Two\n\x1bSided", "Duplex"), "Two\\n\\x1bSided");
  EXPECT_EQ(textOrKeyword(nullptr, "Du\xFFplex"), "Du\uFFFDplex");
}

} // namespace
