#import "OpenPrinter.h"

#include "CupsConnection.hpp"
#include "CupsTexts.hpp"
#include "PasswordQuestion.hpp"
#include "Phrases.hpp"
#import "Pool.h"
#include "PrinterFailure.hpp"
#import "PrinterPanel.h"
#include "QuestionTexts.hpp"

#include <exception>
#include <ostream>
#include <utility>

namespace imageposition {

namespace {

/// For a server that responds, but slowly: `SilenceLimit` is earlier if it does not.
constexpr std::chrono::seconds kTimeout{30};
constexpr std::chrono::seconds kListTimeout{3};

/// What a window says about the failure.
std::string problemOf(const Failure &failure, const DestinationList &printers) {
  if (!printers.reason.empty())
    return printers.reason; // why there are none
  const auto *const ofPrinter = dynamic_cast<const PrinterFailure *>(&failure);
  return ofPrinter != nullptr ? ofPrinter->problem() : failure.what();
}

} // namespace

struct PrinterOpening::Outcome {
  OpenedPrinter opened;
  std::exception_ptr failure; ///< Null if there is a printer.
  DestinationList printers;   ///< Read after a failure.
};

PrinterOpening::Outcome PrinterOpening::open(const std::string &queue, MissingShift shift,
                                             bool mayBeGone) {
  const PasswordQuestion noPassword;
  Outcome outcome;
  try {
    outcome.opened = openQueue(queue, shift);
  } catch (const Failure &) {
    outcome.failure = std::current_exception();
    outcome.printers = readDestinations(kListTimeout);
  }
  const bool isGone = !outcome.printers.destinations.empty() && !outcome.printers.find(queue);
  if (outcome.failure && mayBeGone && isGone)
    return open("", shift, false);
  return outcome;
}

PrinterOpening::PrinterOpening(const std::string &queue, MissingShift shift, bool mayBeGone)
    : call_([=] { return open(queue, shift, mayBeGone); }, kTimeout, panel_.signal()) {}

std::optional<OpenedPrinter> PrinterOpening::await(NSWindow *parent) {
  if (!panel_.await(call_, parent, messages::waitingForCups(cupsServerName()))) {
    if (call_.isTooLate())
      throw Failure(ExitCode::Printer, messages::noCups(cupsServerName(), messages::kNoAnswer));
    return std::nullopt;
  }
  Outcome outcome = call_.take();
  printers_ = std::move(outcome.printers);
  if (outcome.failure)
    std::rethrow_exception(outcome.failure);
  return std::move(outcome.opened);
}

std::variant<OpenedPrinter, ExitCode> awaitFirstPrinter(std::unique_ptr<PrinterOpening> opening,
                                                        const std::string &queue,
                                                        MissingShift shift, std::ostream &errors) {
  const Pool pool;
  for (std::string tried = queue;;) {
    try {
      if (auto opened = opening->await(nil))
        return std::move(*opened);
      errors << messages::kCancelled.view() << '\n';
      return ExitCode::Cancelled;
    } catch (const Failure &failure) {
      const DestinationList &printers = opening->printers();
      const bool hasNone = printers.reason == messages::kNoPrinters.str();
      errors << messages::kProgram << (hasNone ? printers.reason : failure.what()) << std::endl;
      const auto chosen = askForPrinter(problemOf(failure, printers), printers, tried);
      if (!chosen)
        return failure.code();
      tried = *chosen;
    }
    opening = std::make_unique<PrinterOpening>(tried, shift);
  }
}

} // namespace imageposition
