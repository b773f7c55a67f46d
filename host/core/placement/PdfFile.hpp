/// Writes what a printer would print to a PDF file.
#ifndef IMAGEPOSITION_CORE_PLACEMENT_PDFFILE_HPP
#define IMAGEPOSITION_CORE_PLACEMENT_PDFFILE_HPP

#include "ShiftedJob.hpp"
#include "SubmitJob.hpp"

#include <string>

namespace imageposition {

/// Lays out and moves the job's document and writes the result to `path`, which it replaces. One
/// copy, in reading order. Throws a `Failure`; a `SubmissionFailure` if `progress` has cancelled.
/// The file is then as it was.
void writePdf(const ShiftedJob &job, const std::string &document, const std::string &path,
              const ProgressCallback &progress);

} // namespace imageposition

#endif
