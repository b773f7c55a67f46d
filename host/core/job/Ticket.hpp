/// A job's settings on disk.
#ifndef IMAGEPOSITION_HOST_TICKET_HPP
#define IMAGEPOSITION_HOST_TICKET_HPP

#include "FileReplacement.hpp"
#include "PrintSettingsStore.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// What Print writes and the next dialog reads again. As JSON:
///
///     { "printer": "...", "document": "...", "locked": ["name"], "settings": { "name": "value" } }
///
/// "settings" alone is required, and no name stands twice; several documents are a list,
/// "documents". Values are texts; a whole number is read as its text. "locked" names settings that
/// panels may not change.
struct Ticket {
  std::string printer;                ///< For the reader's information.
  std::vector<std::string> documents; ///< For the reader's information; may be empty.
  PrintSettingsStore settings;
};

/// Throws a `Failure` with `ExitCode::Ticket` that says what is wrong where; `source` is named
/// there.
Ticket readTicketText(const std::string &json, const std::string &source);
std::string writeTicketText(const Ticket &ticket);

/// None when there is no such file. Throws a `Failure`.
std::optional<Ticket> readTicket(const std::string &path);

/// Writes the JSON to `path` and the "name=value" form beside it, both or neither. Both texts are
/// on disk before the first file changes. The one beside it, which nobody named, only ever replaces
/// its own former form. Throws a `Failure`; it names a file that is written and cannot be taken
/// back.
void writeTicket(const Ticket &ticket, const std::string &path, Readers readers = Readers::Same);

/// Throws the `Failure` of `writeTicket` for a place where nothing can be written. Changes nothing.
void checkTicketPlace(const std::string &path);

/// Where the "name=value" form of a ticket stands: "job.options" for "job.json", and for a name
/// without ".json" the name with ".options" after it.
std::string optionTextPath(const std::string &ticketPath);

} // namespace imageposition

#endif
