#include "PrinterConnection.hpp"

#include "CupsTexts.hpp"
#include "Phrases.hpp"
#include "PrinterFailure.hpp"
#include "PrinterTexts.hpp"

#include <functional>

namespace imageposition {

std::unique_ptr<CupsConnection> connectForPrinter(SilenceLimit &silence) {
  auto connection = CupsConnection::open(SilenceLimit::kLimit, std::ref(silence));
  if (!connection)
    throw PrinterFailure(messages::noCups(cupsServerName(), ""), messages::kOtherServer);
  connection->probe();
  if (silence.isExceeded())
    failForSilence();
  return connection;
}

void failForSilence() {
  throw PrinterFailure(messages::noCups(cupsServerName(), messages::kNoAnswer),
                       messages::kOtherServer);
}

} // namespace imageposition
