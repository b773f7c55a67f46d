/// What is asked of CUPS for one job.
#ifndef IMAGEPOSITION_HOST_JOBREQUEST_HPP
#define IMAGEPOSITION_HOST_JOBREQUEST_HPP

#include "PrintSettingsStore.hpp"

#include <string>
#include <vector>

namespace imageposition {

struct JobRequest {
  std::string printer;         ///< The queue's name, without an instance.
  std::string printerUri;      ///< The destination's; for the text only, may be empty.
  std::string title;           ///< Shown in the printer's list of jobs.
  PrintSettingsStore defaults; ///< The destination's.
  PrintSettingsStore settings; ///< The job's own: PPD options, copies and pages, panels', -o.
  /// Beside `isSecretName`, options whose values no text may show.
  std::vector<std::string> secrets;
  /// Options of the PPD whose values can have parts, "{Width=3 Colour=red}". See `newJobRequest`.
  std::vector<std::string> compounds;
};

/// All options of the job: the destination's defaults, over them the job's settings. A setting also
/// displaces the default of the same thing under another name ("Duplex" that of "sides"). Page
/// ranges are put in ascending order. Options that are not named hold as the queue's PPD has them,
/// in which CUPS marks these. Throws a `Failure` with `ExitCode::Usage` for an option that no job
/// can have.
PrintSettingsStore optionsToSend(const JobRequest &request);

/// The request that creates the job, as cupsCreateDestJob makes it, but for the values of
/// `compounds`: libcups would encode "{...}" as a collection, which the scheduler leaves out of
/// what filters are given; as a name it reaches them, and they read it as they do on a command
/// line. The caller's, for `ippDelete` or `cupsDoRequest`. `options` are those of `optionsToSend`.
ipp_t *newJobRequest(const JobRequest &request, const PrintSettingsStore &options);

/// Whether an option has such a value, so that cupsCreateDestJob would lose it.
bool hasCompound(const JobRequest &request, const PrintSettingsStore &options);

/// Whether no text may show the option's value.
bool isSecret(const JobRequest &request, const char *name);

/// The attributes of that request: a line "group name (type) = value" for each, in the order of
/// sending. A boolean has a second line with the word that filters find among their options, its
/// bare name or "no" and its name. Secret values are hidden, also from who gave them:
/// such texts are kept and passed on. Throws as `optionsToSend`.
std::string writeRequestText(const JobRequest &request);

} // namespace imageposition

#endif
