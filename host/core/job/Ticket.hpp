/// Reads and writes tickets, which store a job's settings.
#ifndef IMAGEPOSITION_CORE_JOB_TICKET_HPP
#define IMAGEPOSITION_CORE_JOB_TICKET_HPP

#include "FileReplacement.hpp"
#include "PrintSettingsStore.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// What Print writes and the next dialog reads, as JSON:
///
///     { "printer": "...", "document": "...", "locked": ["name"], "settings": { "name": "value" } }
///
/// Only "settings" is required, and no name may appear twice. Several documents are a list,
/// "documents". Values are strings; whole numbers are converted to strings. "locked" names settings
/// that panels must not change.
struct Ticket {
  std::string printer;                ///< For information only.
  std::vector<std::string> documents; ///< For information only; may be empty.
  PrintSettingsStore settings;
};

/// Throws a `Failure` with `ExitCode::Ticket` that describes the error and names `source`.
Ticket readTicketText(const std::string &json, const std::string &source);
std::string writeTicketText(const Ticket &ticket);

/// Returns nullopt if there is no such file. Throws a `Failure`.
std::optional<Ticket> readTicket(const std::string &path);

/// Writes the JSON to `path` and the "name=value" form beside it: both files or neither. Both are
/// on disk before the first file is replaced. The file beside `path`, which the user did not name,
/// only replaces one that this program wrote. Throws a `Failure`, which names a file that was
/// written and could not be restored.
void writeTicket(const Ticket &ticket, const std::string &path, Readers readers = Readers::Same);

/// Throws the same `Failure` as `writeTicket` if the ticket cannot be written there. Changes
/// nothing.
void checkTicketPlace(const std::string &path);

/// The path of a ticket's "name=value" form: "job.options" for "job.json". Appends ".options" to a
/// name without ".json".
std::string optionTextPath(const std::string &ticketPath);

} // namespace imageposition

#endif
