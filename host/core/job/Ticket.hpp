/// Reads and writes tickets, which store a job's settings.
#ifndef IMAGEPOSITION_CORE_JOB_TICKET_HPP
#define IMAGEPOSITION_CORE_JOB_TICKET_HPP

#include "FileReplacement.hpp"
#include "PrintSettingsStore.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// The paper that a job's settings choose, as the printer's description has it; in points, with the
/// sheet upright.
struct TicketPaper {
  std::string keyword; ///< "A4".
  std::string text;    ///< The name to show.
  double width = 0;
  double length = 0;
  double left = 0; ///< The margins, on which the printer does not print.
  double bottom = 0;
  double right = 0;
  double top = 0;
};

/// What Print writes and the next dialog reads, as JSON:
///
///     { "printer": "...", "document": "...", "locked": ["name"], "settings": { "name": "value" } }
///
/// Only "settings" is required, and no name may appear twice. Several documents are a list,
/// "documents". Values are strings; whole numbers are converted to strings. "locked" names settings
/// that panels must not change. A prepared job also has
///
///     "paper": { "keyword": "A4", "text": "A4", "points": [width, length, left, bottom, right,
///     top] }
struct Ticket {
  std::string printer; ///< The queue of a prepared job; otherwise for information only.
  std::vector<std::string> documents; ///< For information only; may be empty.
  PrintSettingsStore settings;
  std::optional<TicketPaper> paper = {}; ///< Only a prepared job has one.
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

/// Writes the JSON alone, readable only by its owner. Throws a `Failure`; the file is then
/// unchanged.
void writePreparedTicket(const Ticket &ticket, const std::string &path);

/// Throws the same `Failure` as `writeTicket` if the ticket cannot be written there. Changes
/// nothing.
void checkTicketPlace(const std::string &path);

/// The path of a ticket's "name=value" form: "job.options" for "job.json". Appends ".options" to a
/// name without ".json".
std::string optionTextPath(const std::string &ticketPath);

} // namespace imageposition

#endif
