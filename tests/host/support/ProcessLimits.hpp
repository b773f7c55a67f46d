/// Limits of a process.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_PROCESSLIMITS_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_PROCESSLIMITS_HPP

namespace imageposition::test {

/// From now on this process can start neither threads nor processes. Drops root privileges, because
/// root is exempt from the limit; use it only in a process that ends with its test.
void forbidThreads();

/// Lifts the limit.
void allowThreads();

} // namespace imageposition::test

#endif
