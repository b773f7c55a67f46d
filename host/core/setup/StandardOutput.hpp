/// Whether what was written to standard output went there.
#ifndef IMAGEPOSITION_CORE_SETUP_STANDARDOUTPUT_HPP
#define IMAGEPOSITION_CORE_SETUP_STANDARDOUTPUT_HPP

#include <string>

namespace imageposition {

/// Flushes standard output; throws a `Failure` with `ExitCode::Ticket` if that, or any write
/// before, failed. `done`: a sentence that names what has been written elsewhere; may be empty.
void requireOutput(const std::string &done = {});

} // namespace imageposition

#endif
