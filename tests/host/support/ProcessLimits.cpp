#include "ProcessLimits.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>

namespace imageposition::test {

namespace {

/// Allows at most as many as the system administrator does.
void allow(rlim_t processes) {
  rlimit limit;
  if (getrlimit(RLIMIT_NPROC, &limit) == 0) {
    limit.rlim_cur = std::min(processes, limit.rlim_max);
    if (setrlimit(RLIMIT_NPROC, &limit) == 0)
      return;
  }
  std::perror("the number of processes cannot be limited");
  std::abort();
}

} // namespace

void forbidThreads() {
  constexpr uid_t kUserWithoutProcesses = 54321;
  if (geteuid() == 0 && setuid(kUserWithoutProcesses) != 0) {
    std::perror("root's rights cannot be given up");
    std::abort();
  }
  allow(0);
}

void allowThreads() { allow(RLIM_INFINITY); }

} // namespace imageposition::test
