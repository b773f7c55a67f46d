#include "ResourceLimits.hpp"

#include <algorithm>

namespace imageposition {

void limitResource(__rlimit_resource_t resource, rlim_t most) noexcept {
  rlimit limits{};
  getrlimit(resource, &limits);
  limits.rlim_cur = limits.rlim_max = std::min(most, limits.rlim_max);
  setrlimit(resource, &limits);
}

} // namespace imageposition
