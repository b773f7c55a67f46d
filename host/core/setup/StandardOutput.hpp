/// Checking that standard output could be written.
#ifndef IMAGEPOSITION_CORE_SETUP_STANDARDOUTPUT_HPP
#define IMAGEPOSITION_CORE_SETUP_STANDARDOUTPUT_HPP

#include <string>

namespace imageposition {

/// Flushes standard output. Throws a `Failure` with `ExitCode::Ticket` if that or an earlier write
/// failed. `done`: a sentence that names files already written; may be empty.
void requireOutput(const std::string &done = {});

class PrintJob;

/// The same, except that a job that CUPS has accepted is a success: a script that saw a failure
/// would print the job again. Standard error then says what happened.
void requireOutputUnlessSent(const PrintJob &job);

} // namespace imageposition

#endif
