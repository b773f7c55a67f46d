#include "Copies.hpp"

#include <gtest/gtest.h>

namespace {

using namespace imageposition;

TEST(Copies, ANumberThatCupsAcceptsIsParsed) {
  EXPECT_EQ(readCopies("1"), 1);
  EXPECT_EQ(readCopies("12"), 12);
  EXPECT_EQ(readCopies("9999"), 9999);
}

TEST(Copies, AnyOtherStringIsRefused) {
  for (const char *text : {"", " ", "0", "-1", "10000", "2x", "1.5", "two", "4294967297",
                           "-4294967295", "18446744073709551617"})
    EXPECT_EQ(readCopies(text), std::nullopt) << text;
}

// Truncated to 32 bits, some of these numbers would be 1 and 5.
TEST(Copies, ANumberThatCupsRefusesIsClamped) {
  for (const char *text : {"10000", "2147483648", "4294967297", "4294967301", "9223372036854775808",
                           "18446744073709551617"})
    EXPECT_EQ(nearestCopies(text), 9999) << text;
  for (const char *text : {"", "two", "0", "-1", "-2147483649", "-4294967291"})
    EXPECT_EQ(nearestCopies(text), 1) << text;
  EXPECT_EQ(nearestCopies("12"), 12);
}

} // namespace
