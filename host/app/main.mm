#import "Application.h"
#import "BatchRun.h"
#include "CommandLine.hpp"
#import "Daemons.h"
#include "Destinations.hpp"
#import "DialogWindow.h"
#include "ExitCode.hpp"
#include "ExitStatus.hpp"
#include "JobSubmission.hpp"
#include "Language.hpp"
#include "OptionConflicts.hpp"
#include "OptionList.hpp"
#include "PasswordQuestion.hpp"
#include "Phrases.hpp"
#import "PlatformLanguage.h"
#import "PlatformProcess.h"
#import "Pool.h"
#import "PrintSession.h"
#include "PrivateDisplay.hpp"
#include "ProgramTexts.hpp"
#include "SetupTexts.hpp"
#include "StandardDescriptors.hpp"
#include "StartTexts.hpp"
#include "Ticket.hpp"
#include "VisibleText.hpp"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <unistd.h>
#include <utility>

using namespace imageposition;

namespace {

void checkDocument(const std::string &path) {
  std::error_code ignored;
  const bool isFolder = std::filesystem::is_directory(path, ignored);
  if (isFolder || access(path.c_str(), R_OK) != 0)
    throw Failure(ExitCode::Usage,
                  messages::documentUnreadable(path, systemReason(isFolder ? EISDIR : errno)));
}

/// For every thread: what CUPS is told by its own calls, it keeps for one thread.
void takeOverEnvironment(const Arguments &arguments) {
  const std::pair<const char *, std::string> variables[] = {
      {"CUPS_SERVER", arguments.server},
      {"CUPS_USER", arguments.user},
      {"CUPS_ENCRYPTION", arguments.isEncrypted ? "Required" : ""},
      {"PRINT_DIALOG_APPEARANCE", arguments.appearance},
      {"PRINT_DIALOG_TEXT_SCALE", arguments.textScale}};
  for (const auto &[name, value] : variables)
    if (!value.empty())
      setenv(name, value.c_str(), 1);
}

ExitCode runInBatch(const Arguments &arguments, PrintJob &job) {
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
  if (session.panels().panels().empty())
    throw Failure(ExitCode::NoPanel, messages::noPanel(job.printer().name(), session.plugins()));
  const auto summary = runBatch(session.panels(), job.printer().ppd(), arguments.batch, std::cerr);
  if (const auto submission =
          job.print(job.isSubmitted() ? readDestinations() : DestinationList(), arguments.ticket))
    job.report(submission->result(), std::cout, std::cerr);
  if (arguments.batch.summary)
    std::cout << writeSummary(summary);
  return ExitCode::Done;
}

/// `done`: what has been written elsewhere, in a sentence; may be empty.
void requireOutput(const std::string &done = {}) {
  if (!std::cout.flush())
    throw Failure(ExitCode::Ticket, messages::outputUnwritable(done));
}

/// A job that CUPS has is no failure, whatever becomes of the words about it: a script would print
/// it again.
void requireOutputUnlessSent(const PrintJob &job) {
  if (job.sentName().empty())
    requireOutput(job.done());
  else if (!std::cout.flush())
    std::cerr << messages::kProgram << messages::jobSentUnsaid(job.sentName()) << '\n';
}

ExitCode listOptions(PrintJob &job) {
  std::cout << writeOptionList(PrinterOptions(job.printer(), job.settings()).all());
  constexpr std::size_t kMostConflicts = 20;
  OptionConflicts conflicts(job.printer(), job.settings());
  for (const std::string &sentence : conflicts.sentences(kMostConflicts))
    std::cerr << messages::kProgram << sentence << '\n';
  requireOutput();
  return ExitCode::Done;
}

ExitCode runInWindow(PrintJob &job) {
  const Arguments &arguments = job.arguments();
  if (!arguments.ticket.empty())
    checkTicketPlace(arguments.ticket); // before the person has set anything that would be lost
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

ExitCode run(const std::vector<std::string> &words) {
  const auto request = readCommandLine(words);
  if (const auto *answer = std::get_if<Answer>(&request)) {
    std::cout << answer->text;
    requireOutput();
    return ExitCode::Done;
  }
  const Arguments &arguments = std::get<Arguments>(request);
  takeOverEnvironment(arguments);
  const TerminalWarning warning(std::cerr);
  for (const std::string &path : arguments.documents)
    if (path != "-")
      checkDocument(path);
  PrintJob job(arguments);
  if (arguments.isListingOptions)
    return listOptions(job);
  setPlatformDefaults();
  std::signal(SIGPIPE, SIG_IGN); // a reader that has gone must not end it amid a job
  const ExitCode code = arguments.isBatch ? runInBatch(arguments, job) : runInWindow(job);
  requireOutputUnlessSent(job);
  return code;
}

ExitCode runInPool(const std::vector<std::string> &words) {
  const Pool pool;
  agreeOnLanguage();
  return run(words);
}

ExitCode runProgram(int argc, char **argv) {
  leaveOutForeignVariables(argv);
  const std::string catalogues = catalogueFolder();
  // Before the platform, which cannot be asked for its own default while an argument is no text.
  speak(chosenLanguage(wantedLanguages(std::getenv), catalogues), catalogues);
  const std::vector<std::string> words(argv + 1, argv + argc);
  refuseForeignArguments(words);
  if (const auto part = leaveOutPlatformVariables())
    std::cerr << messages::kProgram << messages::configurationUntrusted(part->path) << '\n';
  hideArgumentsFromPlatform();
  refuseUntrustedBundles();
  return runInPool(words);
}

} // namespace

int main(int argc, char **argv) {
  keepStandardDescriptors();
  const VisibleStream output(std::cout), errors(std::cerr);
  // A write beyond the limit for files fails, then, instead of ending the program. Programs that it
  // starts are ended as ever, since they do not inherit the handler.
  std::signal(SIGXFSZ, [](int) {});
  return static_cast<int>(exitCodeOf([=] { return runProgram(argc, argv); }, std::cerr));
}
