/// Jobs that are set up before their document exists.
#ifndef IMAGEPOSITION_CORE_SETUP_PREPAREDJOB_HPP
#define IMAGEPOSITION_CORE_SETUP_PREPAREDJOB_HPP

#include "PrintSettingsStore.hpp"
#include "PrinterDescription.hpp"
#include "Ticket.hpp"

#include <cups/ppd.h>

#include <optional>
#include <string>

namespace imageposition {

/// Reads the file that --prepare has written. Throws a `Failure` if there is none, or if it cannot
/// be read.
Ticket readPrepared(const std::string &path);

/// The paper of the settings' choices, which it marks; none if the printer has no paper sizes.
std::optional<TicketPaper> paperOf(PrinterDescription &printer, PrintSettingsStore &settings);

/// What of an application's proposals the printer accepts, without complaint: the user did not
/// enter them.
PrintSettingsStore acceptable(const PrintSettingsStore &proposed, ppd_file_t *ppd);

} // namespace imageposition

#endif
