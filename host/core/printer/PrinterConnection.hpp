/// Connections on which printers are opened.
#ifndef IMAGEPOSITION_CORE_PRINTER_PRINTERCONNECTION_HPP
#define IMAGEPOSITION_CORE_PRINTER_PRINTERCONNECTION_HPP

#include "CupsConnection.hpp"

#include <memory>

namespace imageposition {

/// Connects to CUPS, and makes sure that it responds. `silence` is borrowed for the connection's
/// lifetime. Throws a `PrinterFailure`.
std::unique_ptr<CupsConnection> connectForPrinter(SilenceLimit &silence);

/// Throws the `PrinterFailure` for a server that does not respond.
[[noreturn]] void failForSilence();

} // namespace imageposition

#endif
