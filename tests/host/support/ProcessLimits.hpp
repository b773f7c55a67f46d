/// What the system lets a process have.
#ifndef IMAGEPOSITION_TESTS_HOST_PROCESSLIMITS_HPP
#define IMAGEPOSITION_TESTS_HOST_PROCESSLIMITS_HPP

namespace imageposition::test {

/// From now on this process can start neither a thread nor a process. It gives up root's rights, if
/// it has them, since no such limit holds for root: for a process that ends with its test.
void forbidThreads();

/// It can again.
void allowThreads();

} // namespace imageposition::test

#endif
