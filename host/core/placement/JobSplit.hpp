/// Splits a job's options between laying its documents out here and printing what was laid out.
#ifndef IMAGEPOSITION_CORE_PLACEMENT_JOBSPLIT_HPP
#define IMAGEPOSITION_CORE_PLACEMENT_JOBSPLIT_HPP

#include "JobRequest.hpp"
#include "PageShift.hpp"
#include "PrintSettingsStore.hpp"

#include <cups/ppd.h>

#include <string>
#include <vector>

namespace imageposition {

/// The option that tells other programs, and readers of the job's attributes, what was applied.
constexpr const char *kShiftNote = "print-dialog-image-shift";

/// A job whose documents are laid out and moved before they are sent.
struct JobSplit {
  /// For the filters that lay the documents out: everything but copies, the order of output, the
  /// offsets and secrets.
  PrintSettingsStore layout;
  /// For CUPS: everything but the layout, which is neutral, and without offsets, which nothing must
  /// apply again; those that are defaults are 0. It has no defaults: they are among the settings.
  JobRequest printing;
};

/// `ppd` is the printer's, with the job's choices marked. `note` is the value of `kShiftNote`.
/// Throws what `optionsToSend` throws.
JobSplit splitJob(const JobRequest &job, ppd_file_t *ppd, const std::string &note);

/// Replaces the options that lay pages out by neutral ones, also where the defaults have them.
void neutralizeLayout(PrintSettingsStore &options, const PrintSettingsStore &defaults);

/// The names of the four offsets and of their flag.
const std::vector<std::string> &offsetOptions();

/// Removes the offsets from the job's settings and defaults, so that nothing moves its image. Where
/// CUPS would add a default to the job, the job gets an offset of 0.
void removeOffsets(JobRequest &job);

/// The value of `kShiftNote`: "front 2.5 -1 back 0 0", in millimetres to the right and downwards.
std::string shiftNote(const ShiftPlan &plan);

/// The options of a filter's command line, as the scheduler writes them: "name=value name=value",
/// with blanks, quotes and backslashes escaped. `cupsParseOptions` reads them back.
std::string filterOptions(const PrintSettingsStore &options);

} // namespace imageposition

#endif
