#import "Entry.hpp"

#import "Application.h"
#import "BatchRun.h"
#import "Daemons.h"
#include "Destinations.hpp"
#import "DialogWindow.h"
#include "EntryTexts.hpp"
#include "ExitStatus.hpp"
#include "JobSubmission.hpp"
#include "Phrases.hpp"
#import "PlatformLanguage.h"
#import "PlatformProcess.h"
#import "Pool.h"
#import "PrintSession.h"
#include "PrivateDisplay.hpp"
#include "StandardOutput.hpp"
#include "Ticket.hpp"

#include <csignal>
#include <iostream>

using namespace imageposition;

namespace {

ExitCode runInBatch(PrintJob &job) {
  const Arguments &arguments = job.arguments();
  PrintSession session(job);
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
  job.requireNumbers(session.panels().optionKeys());
  const auto summary = runBatch(session.panels(), job.printer().ppd(), arguments.batch, std::cerr);
  if (const auto submission =
          job.print(job.isSubmitted() ? readDestinations() : DestinationList(), arguments.ticket))
    job.report(submission->result(), std::cout, std::cerr);
  if (arguments.batch.summary)
    std::cout << writeSummary(summary);
  return ExitCode::Done;
}

ExitCode runInWindow(PrintJob &job) {
  const Arguments &arguments = job.arguments();
  if (!arguments.ticket.empty())
    checkTicketPlace(arguments.ticket); // before the user enters settings that would be lost
  PrintSession session(job);
  startPasteboardOnDemand();
  startApplication();
  session.loadPanels();
  if (!runDialog(session, std::cerr)) {
    session.panels().revert();
    std::cerr << messages::kCancelled.view() << '\n';
    return ExitCode::Cancelled;
  }
  return ExitCode::Done;
}

/// A job that CUPS has accepted is a success even if standard output cannot be written: a script
/// that saw a failure would print the job again.
void requireOutputUnlessSent(const PrintJob &job) {
  if (job.sentName().empty())
    requireOutput(job.done());
  else if (!std::cout.flush())
    std::cerr << messages::kProgram << messages::jobSentWithoutOutput(job.sentName()) << '\n';
}

ExitCode run(const Arguments &arguments) {
  hideArgumentsFromPlatform();
  refuseUntrustedBundles();
  const Pool pool;
  agreeOnLanguage();
  PrintJob job(arguments);
  setPlatformDefaults();
  std::signal(SIGPIPE, SIG_IGN); // a closed pipe must not kill the program during a job
  const ExitCode code = arguments.isBatch ? runInBatch(job) : runInWindow(job);
  requireOutputUnlessSent(job);
  return code;
}

} // namespace

ExitCode printDialogRun(const Arguments &arguments) {
  return exitCodeOf([&] { return run(arguments); }, std::cerr);
}
