/// How print-dialog ends.
#ifndef IMAGEPOSITION_HOST_EXITCODE_HPP
#define IMAGEPOSITION_HOST_EXITCODE_HPP

#include <stdexcept>
#include <string>

namespace imageposition {

/// Part of the command's interface: a value keeps its meaning.
enum class ExitCode : int {
  Done = 0,
  Cancelled = 1, ///< By the person, or a panel refused the job.
  Usage = 2,     ///< The command line cannot be understood, or its document not be read.
  Printer = 3,   ///< No usable printer description.
  Plugin = 4,    ///< A plug-in or its panel cannot be used.
  NoPanel = 5,   ///< Batch: no plug-in has a panel for this printer.
  Ticket = 6,    ///< The ticket or the output cannot be read or written.
  Display = 7,   ///< There is no display, and none could be started.
  Value = 8,     ///< Batch: a value cannot be set on the panel.
  Job = 9,       ///< CUPS did not take the job.
  Fault = 10,    ///< Memory ran out, or there is a fault in the program.
};

/// Ends what was asked for; the message is a sentence for the person, with what to do.
class Failure : public std::runtime_error {
public:
  Failure(ExitCode code, const std::string &message) : std::runtime_error(message), code_(code) {}
  ExitCode code() const noexcept { return code_; }

private:
  ExitCode code_;
};

} // namespace imageposition

#endif
