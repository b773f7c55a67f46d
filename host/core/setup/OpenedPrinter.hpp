/// Opens the printer of a job.
#ifndef IMAGEPOSITION_CORE_SETUP_OPENEDPRINTER_HPP
#define IMAGEPOSITION_CORE_SETUP_OPENEDPRINTER_HPP

#include "CommandLine.hpp"
#include "History.hpp"
#include "PrinterDescription.hpp"

#include <memory>
#include <string>

namespace imageposition {

struct OpenedPrinter {
  std::string queue; ///< "queue" or "queue/instance"; empty for a description file.
  std::unique_ptr<PrinterDescription> printer; ///< Not null.
};

/// Opens the printer that the command line names, or the default. Takes up to ten seconds if CUPS
/// does not respond, and longer if its responses are slow. Throws a `Failure`. Can be called on any
/// thread.
OpenedPrinter openPrinter(const Arguments &arguments);
/// The queue that the command line or its prepared job names; empty for the default. Throws a
/// `Failure` if the prepared job cannot be read.
std::string namedQueue(const Arguments &arguments);
/// Whether the dialog moves the image where the printer's driver does not.
MissingShift missingShift(const Arguments &arguments);
/// The same for the printer of a queue; if the name is empty, of the default queue.
OpenedPrinter openQueue(const std::string &queue, MissingShift shift);

/// The queue of the last job, with which the window begins; empty if there is none, or if the
/// command line or the environment names a printer.
std::string rememberedQueue(const Arguments &arguments, const History &history);

} // namespace imageposition

#endif
