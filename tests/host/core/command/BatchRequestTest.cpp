#include "BatchRequest.hpp"

#include <gtest/gtest.h>

namespace {

using imageposition::readEntry;
using imageposition::readSwitch;

TEST(BatchRequest, AnEntryIsSplitAtItsFirstEqualsSign) {
  const auto entry = readEntry("FrontLRM=-3=4");
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->name, "FrontLRM");
  EXPECT_EQ(entry->text, "-3=4");
}

TEST(BatchRequest, AnEntryCanHaveAnEmptyValue) {
  const auto entry = readEntry("FrontLRM=");
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->text, "");
}

TEST(BatchRequest, AnEntryNeedsANameAndAnEqualsSign) {
  EXPECT_FALSE(readEntry(""));
  EXPECT_FALSE(readEntry("FrontLRM"));
  EXPECT_FALSE(readEntry("=3"));
}

TEST(BatchRequest, ASwitchIsOnOrOff) {
  EXPECT_EQ(readSwitch("on"), true);
  EXPECT_EQ(readSwitch("off"), false);
  for (const char *other : {"", "On", "yes", "1", "on "})
    EXPECT_FALSE(readSwitch(other)) << other;
}

} // namespace
