#include "OpenedPrinter.hpp"

#include "Destinations.hpp"
#include "PreparedJob.hpp"
#include "PrinterConnection.hpp"
#include "PrinterFailure.hpp"
#include "PrinterTexts.hpp"
#include "QueueName.hpp"

#include <cups/cups.h>

#include <cstdlib>
#include <cstring>

namespace imageposition {

namespace {

/// Null if the environment names no printer. libcups ignores the name "lp" in PRINTER.
const char *printerOfEnvironment() {
  const char *const first = std::getenv("LPDEST");
  const char *const second = std::getenv("PRINTER");
  return first != nullptr || second == nullptr || std::strcmp(second, "lp") == 0 ? first : second;
}

/// The user's default, or the server's if the user has none.
std::string defaultQueue() {
  SilenceLimit silence;
  const auto connection = connectForPrinter(silence);
  const CupsDestination destination(cupsGetNamedDest(connection->http(), nullptr, nullptr));
  if (!destination) {
    const char *const named = printerOfEnvironment();
    throw PrinterFailure(named != nullptr ? messages::noPrinterOfEnvironment(named)
                                          : messages::kNoDefaultPrinter.str(),
                         messages::kNamePrinter);
  }
  return QueueName{destination->name, destination->instance != nullptr ? destination->instance : ""}
      .text();
}

} // namespace

OpenedPrinter openPrinter(const Arguments &arguments) {
  if (!arguments.ppd.empty())
    return {{}, std::make_unique<PrinterDescription>(PrinterDescription::fromFile(arguments.ppd))};
  return openQueue(namedQueue(arguments), missingShift(arguments));
}

std::string namedQueue(const Arguments &arguments) {
  return arguments.prepared.empty() ? arguments.queue : readPrepared(arguments.prepared).printer;
}

MissingShift missingShift(const Arguments &arguments) {
  return arguments.isUnshifted ? MissingShift::Leave : MissingShift::Add;
}

OpenedPrinter openQueue(const std::string &wanted, MissingShift shift) {
  const std::string queue = wanted.empty() ? defaultQueue() : wanted;
  return {queue, std::make_unique<PrinterDescription>(PrinterDescription::ofQueue(queue, shift))};
}

std::string rememberedQueue(const Arguments &arguments, const History &history) {
  const bool isNamed = !arguments.queue.empty() || !arguments.ppd.empty() ||
                       !arguments.prepared.empty() || printerOfEnvironment() != nullptr;
  return isNamed ? "" : history.printer();
}

} // namespace imageposition
