#include "Phrases.hpp"

#include <gtest/gtest.h>

namespace imageposition::messages {

namespace {

TEST(Phrases, HaveOneFullStopWhateverALibrarySays) {
  const struct {
    const char *reason, *clause;
  } rows[] = {{"Not found.", "Not found"},
              {"Not found", "Not found"},
              {"見つかりません。", "見つかりません"},
              {"見つかりません。 ", "見つかりません"},
              {".", ""},
              {"", ""}};
  for (const auto &row : rows)
    EXPECT_EQ(withoutStop(row.reason), row.clause) << row.reason;
  EXPECT_EQ(because("Not found."), " (Not found)");
  EXPECT_EQ(because(""), "");
}

} // namespace

} // namespace imageposition::messages
