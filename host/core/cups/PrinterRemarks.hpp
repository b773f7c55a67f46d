/// What the people at a printer should know about it.
#ifndef IMAGEPOSITION_CORE_CUPS_PRINTERREMARKS_HPP
#define IMAGEPOSITION_CORE_CUPS_PRINTERREMARKS_HPP

#include <cups/cups.h>

#include <map>
#include <string>

namespace imageposition {

/// By the names of queues, those that are not empty: why an administrator has paused the printer,
/// in the administrator's words, how many jobs wait for it, and which supplies are nearly used up.
/// `http` is a connection to the server. Returns an empty map on failure.
std::map<std::string, std::string> printerRemarks(http_t *http);

} // namespace imageposition

#endif
