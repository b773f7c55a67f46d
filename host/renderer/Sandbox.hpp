/// Drops all rights that rendering does not need.
#ifndef IMAGEPOSITION_RENDERER_SANDBOX_HPP
#define IMAGEPOSITION_RENDERER_SANDBOX_HPP

#include <cstddef>
#include <string>
#include <vector>

namespace imageposition {

/// Limits memory, time and the size of files, and ends the process when the other end of the pipe
/// that is its standard input is closed. Memory is limited to `mapped` bytes and a constant.
void limitProcess(std::size_t largestFile, std::size_t mapped);

/// From now on, the process can read files in these folders and below, as far as the kernel can
/// restrict that (landlock); write to standard output and error and to `output`; and allocate
/// memory. Opening a file for writing fails. Any other system call ends the process: there are no
/// sockets, programs, threads or signals to others. This cannot be undone.
///
/// Call it while the process has one thread. Throws a `std::system_error` if that cannot be
/// enforced; except for landlock.
void enterSandbox(const std::vector<std::string> &folders, int output);

} // namespace imageposition

#endif
