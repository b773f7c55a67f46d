#import "Entry.hpp"

#import "Application.h"
#import "BatchRun.h"
#import "Daemons.h"
#include "Destinations.hpp"
#import "DialogWindow.h"
#include "EntryTexts.hpp"
#include "FailureReport.hpp"
#include "GivenSettings.hpp"
#include "JobSubmission.hpp"
#import "OpenPrinter.h"
#include "OptionConflicts.hpp"
#include "Phrases.hpp"
#import "PlatformLanguage.h"
#import "PlatformProcess.h"
#import "Pool.h"
#import "PrintSession.h"
#include "PrivateDisplay.hpp"
#include "StandardOutput.hpp"
#include "Ticket.hpp"
#include "UnknownValues.hpp"

#include <csignal>
#include <iostream>
#include <memory>
#include <optional>
#include <utility>
#include <variant>

using namespace imageposition;

namespace {

constexpr std::size_t kMostConflicts = 5;

ExitCode runInBatch(const Arguments &arguments, DocumentExaminer &examiner) {
  PrintJob job(arguments, openPrinter(arguments));
  PrintSession session(job, examiner);
  if (!isDisplayNamed())
    startPrivateDisplay();
  leaveOutPasteboardDaemon();
  startApplication();
  session.loadPanels();
  for (const std::string &trouble : session.panels().troubles())
    std::cerr << messages::kProgram << trouble << '\n';
  if (!session.panels().troubles().empty())
    return ExitCode::Plugin;
  if (session.panels().panels().empty() && arguments.batch.needsPanel())
    throw Failure(ExitCode::NoPanel, messages::noPanel(job.printer().name(), session.plugins()));
  requireNumbers(arguments, job.printer().ppd(), session.panels().optionKeys());
  for (const std::string &sentence :
       unknownValues(job.printer(), job.settings(), session.panels().optionKeys()))
    std::cerr << messages::kProgram << sentence << '\n';
  for (const std::string &conflict :
       OptionConflicts(job.printer(), job.settings()).sentences(kMostConflicts))
    std::cerr << messages::kProgram << conflict << '\n';
  const auto summary = runBatch(session.panels(), job.printer().ppd(), arguments.batch, std::cerr);
  const DestinationList destinations = job.target() == JobTarget::Ticket || job.queue().empty()
                                           ? DestinationList()
                                           : readDestinations();
  const bool isPdf = job.target() == JobTarget::PdfFile;
  if (const auto submission = job.print(destinations, isPdf ? arguments.pdf : arguments.ticket))
    job.report(submission->result(), std::cout, std::cerr);
  if (arguments.batch.summary)
    std::cout << writeSummary(summary);
  requireOutputUnlessSent(job);
  return ExitCode::Done;
}

ExitCode showDialog(const Arguments &arguments, OpenedPrinter printer, DocumentExaminer &examiner,
                    const History &history) {
  PrintJob job(arguments, std::move(printer), history);
  PrintSession session(job, examiner);
  session.loadPanels();
  std::optional<WindowSize> window = history.window();
  if (!runDialog(session, std::cerr, window)) {
    session.panels().revert();
    std::cerr << messages::kCancelled.view() << '\n';
    return ExitCode::Cancelled;
  }
  if (!job.sentName().empty() || job.isPreparing())
    job.remember(window);
  requireOutputUnlessSent(job);
  return ExitCode::Done;
}

/// The printer is being opened while the application starts.
ExitCode runInWindow(const Arguments &arguments, DocumentExaminer &examiner) {
  if (!arguments.ticket.empty())
    checkTicketPlace(arguments.ticket); // before the user enters settings that would be lost
  const History history = History::read(std::cerr);
  const std::string remembered = rememberedQueue(arguments, history);
  const std::string queue = remembered.empty() ? namedQueue(arguments) : remembered;
  const bool mayBeGone = !remembered.empty() || !arguments.prepare.empty();
  std::unique_ptr<PrinterOpening> opening;
  if (arguments.ppd.empty())
    opening = std::make_unique<PrinterOpening>(queue, missingShift(arguments), mayBeGone);
  startPasteboardOnDemand();
  startApplication();
  if (!opening)
    return showDialog(arguments, openPrinter(arguments), examiner, history);
  auto first = awaitFirstPrinter(std::move(opening), queue, missingShift(arguments), std::cerr);
  if (const auto *code = std::get_if<ExitCode>(&first))
    return *code;
  return showDialog(arguments, std::get<OpenedPrinter>(std::move(first)), examiner, history);
}

ExitCode run(const Arguments &arguments, DocumentExaminer &examiner) {
  hideArgumentsFromPlatform();
  refuseUntrustedBundles();
  const Pool pool;
  agreeOnLanguage();
  setPlatformDefaults();
  std::signal(SIGPIPE, SIG_IGN); // a closed pipe must not kill the program during a job
  return arguments.isBatch ? runInBatch(arguments, examiner) : runInWindow(arguments, examiner);
}

} // namespace

ExitCode printDialogRun(const Arguments &arguments, DocumentExaminer &examiner) {
  const ExitCode code = exitCodeOf([&] { return run(arguments, examiner); }, std::cerr);
  endSubmissions();
  endIfCallsAreRunning(code);
  return code;
}
