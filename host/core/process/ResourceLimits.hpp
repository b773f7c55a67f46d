/// Limits of a process that reads documents, which may be damaged, or made to do harm.
#ifndef IMAGEPOSITION_CORE_PROCESS_RESOURCELIMITS_HPP
#define IMAGEPOSITION_CORE_PROCESS_RESOURCELIMITS_HPP

#include <sys/resource.h>

namespace imageposition {

/// Limits this process, and those that it starts, to `most` in the unit of the resource (see
/// setrlimit(2)), or to the limit that it has, if that is lower. It cannot raise the limit again.
void limitResource(__rlimit_resource_t resource, rlim_t most) noexcept;

} // namespace imageposition

#endif
