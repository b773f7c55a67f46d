#include "Summary.hpp"

#include <gtest/gtest.h>

namespace {

using imageposition::writeSummary;

TEST(Summary, ListsEachPanelUnderItsName) {
  EXPECT_EQ(writeSummary({{"One", {{"Left", "-3"}, {"Top", "4"}}}, {"Two", {{"A", "B"}}}}),
            "One\n  Left: -3\n  Top: 4\nTwo\n  A: B\n");
}

TEST(Summary, SaysThatAPanelHasNothingToShow) {
  EXPECT_EQ(writeSummary({{"One", {}}}), "One\n  Not available with the current settings.\n");
}

TEST(Summary, IsEmptyWithoutPanels) { EXPECT_EQ(writeSummary({}), ""); }

} // namespace
