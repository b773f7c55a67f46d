/// The exit codes of print-dialog, and the exception that carries one.
#ifndef IMAGEPOSITION_CORE_BASE_EXITCODE_HPP
#define IMAGEPOSITION_CORE_BASE_EXITCODE_HPP

#include <stdexcept>
#include <string>

namespace imageposition {

/// Part of the command-line interface: a value never changes its meaning.
enum class ExitCode : int {
  Done = 0,
  Cancelled = 1, ///< By the user, or because a panel refused the job.
  Usage = 2,     ///< The command line is invalid, or its document cannot be read.
  Printer = 3,   ///< No usable printer description.
  Plugin = 4,    ///< A plug-in or its panel cannot be used.
  NoPanel = 5,   ///< Batch: an option requires a panel, and the printer has none.
  Ticket = 6,    ///< The ticket or the output cannot be read or written.
  Display = 7,   ///< There is no display, and none could be started.
  Value = 8,     ///< Batch: a value cannot be set on the panel.
  Job = 9,       ///< CUPS did not accept the job.
  Fault = 10,    ///< Out of memory, or a bug in the program.
};

/// Ends the current operation. The message is a sentence that tells the user what to do.
class Failure : public std::runtime_error {
public:
  Failure(ExitCode code, const std::string &message) : std::runtime_error(message), code_(code) {}
  ExitCode code() const noexcept { return code_; }

private:
  ExitCode code_;
};

} // namespace imageposition

#endif
