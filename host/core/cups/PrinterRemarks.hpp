/// What CUPS says about its printers besides their state.
#ifndef IMAGEPOSITION_CORE_CUPS_PRINTERREMARKS_HPP
#define IMAGEPOSITION_CORE_CUPS_PRINTERREMARKS_HPP

#include <cups/cups.h>

#include <map>
#include <string>
#include <vector>

namespace imageposition {

struct PrinterRemarks {
  /// What the people at the printer should know: why an administrator has paused it, in the
  /// administrator's words, how many jobs wait for it, and which supplies are nearly used up. May
  /// be empty.
  std::string text;
  std::vector<std::string> coverPages; ///< The values for "job-sheets".
};

/// By the names of queues. `http` is a connection to the server. Returns an empty map on failure.
std::map<std::string, PrinterRemarks> printerRemarks(http_t *http);

} // namespace imageposition

#endif
