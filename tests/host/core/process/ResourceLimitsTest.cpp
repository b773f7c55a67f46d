#include "ResourceLimits.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

namespace imageposition {

namespace {

/// Ends the process, with status 0 if its limit of open files is `expected`.
[[noreturn]] void compareOpenFiles(rlim_t expected) {
  rlimit limits{};
  getrlimit(RLIMIT_NOFILE, &limits);
  _exit(limits.rlim_cur == expected && limits.rlim_max == expected ? 0 : 1);
}

TEST(ResourceLimit, HoldsForTheProcessAndCannotBeRaised) {
  const auto lower = [] {
    limitResource(RLIMIT_NOFILE, 20);
    compareOpenFiles(20);
  };
  EXPECT_EXIT(lower(), testing::ExitedWithCode(0), "");
}

TEST(ResourceLimit, IsTheLowerOfTwo) {
  const auto raise = [] {
    limitResource(RLIMIT_NOFILE, 20);
    limitResource(RLIMIT_NOFILE, 30);
    compareOpenFiles(20);
  };
  EXPECT_EXIT(raise(), testing::ExitedWithCode(0), "");
}

} // namespace

} // namespace imageposition
