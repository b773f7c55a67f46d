/// Measuring from the command line, and the file of measurements.
#ifndef IMAGEPOSITION_APP_ALIGNMENTCOMMANDS_HPP
#define IMAGEPOSITION_APP_ALIGNMENTCOMMANDS_HPP

#include "CommandLine.hpp"
#include "ExitCode.hpp"

namespace imageposition {

/// For --align: prints or writes the sheets, or takes their readings. Throws a `Failure`.
ExitCode align(const Arguments &arguments);

/// Lists, exports, imports and deletes, in this order. Throws a `Failure`.
ExitCode manageAlignments(const AlignmentFile &request);

} // namespace imageposition

#endif
