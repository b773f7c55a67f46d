/// Starts the programs that read documents for the dialog.
#ifndef IMAGEPOSITION_CORE_PROCESS_CHILDPROGRAM_HPP
#define IMAGEPOSITION_CORE_PROCESS_CHILDPROGRAM_HPP

#include "FileContent.hpp"

#include <chrono>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace imageposition {

/// A pipe whose ends are above all numbers that a program's descriptors get, and are closed in
/// programs that this process starts.
struct ProgramPipe {
  Descriptor reader;
  Descriptor writer;
};
/// Throws a `std::system_error`.
ProgramPipe newProgramPipe();

/// A program and all that it gets from this process.
struct ProgramStart {
  std::vector<std::string> words; ///< The first is the program's path.
  /// "NAME=value"; none for this process's environment.
  std::optional<std::vector<std::string>> environment;
  /// The program's descriptors 0, 1, 2 and so on; -1 for /dev/null. Borrowed.
  std::vector<int> descriptors;
  /// Whether the program has a separate process group, which Ctrl+C in the terminal does not reach.
  bool hasOwnGroup = false;
};

/// Starts the program, which blocks no signals even if this thread does. The caller waits for it.
/// Throws a `std::system_error`.
pid_t startProgram(const ProgramStart &start);

/// Waits until the program has ended, and kills it after `patience`. Returns whether it has
/// succeeded, with exit status 0.
bool waitForProgram(pid_t process, std::chrono::milliseconds patience);

} // namespace imageposition

#endif
