/// The request that creates a job.
#ifndef IMAGEPOSITION_CORE_JOB_JOBREQUEST_HPP
#define IMAGEPOSITION_CORE_JOB_JOBREQUEST_HPP

#include "PrintSettingsStore.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace imageposition {

struct JobRequest {
  std::string printer;         ///< The queue's name, without an instance.
  std::string printerUri;      ///< The destination's; may be empty.
  std::string title;           ///< Shown in lists of jobs.
  PrintSettingsStore defaults; ///< The destination's.
  PrintSettingsStore settings; ///< The job's: PPD options, copies, pages, panels' settings, -o.
  /// Options whose values must not be shown, besides those of `isSecretName`.
  std::vector<std::string> secrets;
  /// PPD options whose values can have several parts, "{Width=3 Colour=red}". See `newJobRequest`.
  std::vector<std::string> compounds;
  /// What CUPS and messages call the documents, in their order; empty to name them by their paths.
  std::vector<std::string> documentNames;
};

/// Returns all options of the job: the destination's defaults, overridden by the job's settings. A
/// setting also overrides the default of a synonymous option ("Duplex" overrides "sides"). Sorts
/// page ranges in ascending order. For all other options CUPS uses the defaults of the queue's PPD.
/// Throws a `Failure` with `ExitCode::Usage` for an option that a job cannot have.
PrintSettingsStore optionsToSend(const JobRequest &request);

/// Builds the request that creates the job, as cupsCreateDestJob does, except for `compounds`:
/// libcups would encode "{...}" as a collection, which the scheduler does not pass to filters. A
/// name reaches the filters, which parse it as on a command line. `options` are those of
/// `optionsToSend`. The caller owns the request, and passes it to `ippDelete` or `cupsDoRequest`.
ipp_t *newJobRequest(const JobRequest &request, const PrintSettingsStore &options);

/// Whether an option has a value in several parts, which cupsCreateDestJob would lose.
bool hasCompound(const JobRequest &request, const PrintSettingsStore &options);

/// Whether CUPS sends the documents of a job with these options to the printer as they are.
bool isRaw(const PrintSettingsStore &options);

/// Whether the option's value must not be shown.
bool isSecret(const JobRequest &request, const char *name);

/// Lists the attributes of the request in the order of sending, one line "group name (type) =
/// value" for each. A boolean has a second line with the word that filters receive among their
/// options: its name, or "no" followed by its name. Hides secret values even from the user who
/// entered them, because such lists are saved and passed on. A line for each of the documents,
/// given their paths, follows. Throws like `optionsToSend`.
std::string writeRequestText(const JobRequest &request,
                             const std::vector<std::string> &documents = {});

/// What CUPS calls the document with this index and path.
std::string nameToSend(const JobRequest &request, std::size_t index, const std::string &path);

} // namespace imageposition

#endif
