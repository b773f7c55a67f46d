/// Smart pointers to libcups objects.
#ifndef IMAGEPOSITION_CORE_CUPS_CUPSHANDLES_HPP
#define IMAGEPOSITION_CORE_CUPS_CUPSHANDLES_HPP

#include <cups/cups.h>
#include <cups/file.h>
#include <cups/ppd.h>

#include <memory>

namespace imageposition {

struct CupsDeleter {
  void operator()(cups_dest_t *destination) const noexcept { cupsFreeDests(1, destination); }
  void operator()(cups_dinfo_t *info) const noexcept { cupsFreeDestInfo(info); }
  void operator()(cups_file_t *file) const noexcept { cupsFileClose(file); }
  void operator()(http_t *connection) const noexcept { httpClose(connection); }
  void operator()(ipp_t *message) const noexcept { ippDelete(message); }
  void operator()(ppd_file_t *ppd) const noexcept { ppdClose(ppd); }
};

using CupsDestination = std::unique_ptr<cups_dest_t, CupsDeleter>; ///< One, not an array.
using CupsDestinationInfo = std::unique_ptr<cups_dinfo_t, CupsDeleter>;
using CupsFile = std::unique_ptr<cups_file_t, CupsDeleter>;
using HttpConnection = std::unique_ptr<http_t, CupsDeleter>;
using IppMessage = std::unique_ptr<ipp_t, CupsDeleter>;
using PpdFile = std::unique_ptr<ppd_file_t, CupsDeleter>;

} // namespace imageposition

#endif
