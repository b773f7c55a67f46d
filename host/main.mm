#import "host/Application.h"
#import "host/BatchRun.h"
#include "host/CommandLine.hpp"
#import "host/DialogWindow.h"
#include "host/ExitCode.hpp"
#include "host/Messages.hpp"
#include "host/OptionText.hpp"
#include "host/PluginFolders.hpp"
#include "host/PrivateDisplay.hpp"
#include "host/StartTexts.hpp"
#include "host/Ticket.hpp"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <unistd.h>

using namespace imageposition;

namespace {

PrinterDescription openPrinter(const Arguments &arguments) {
  return arguments.ppd.empty() ? PrinterDescription::ofQueue(arguments.queue)
                               : PrinterDescription::fromFile(arguments.ppd);
}

void checkDocument(const std::string &path) {
  std::error_code ignored;
  const bool isFolder = std::filesystem::is_directory(path, ignored);
  if (isFolder || access(path.c_str(), R_OK) != 0)
    throw Failure(ExitCode::Usage,
                  messages::documentUnreadable(path, std::strerror(isFolder ? EISDIR : errno)));
}

/// The ticket that is there already, with the command line's options on top.
Ticket openTicket(const Arguments &arguments, const PrinterDescription &printer) {
  Ticket ticket;
  if (!arguments.ticket.empty())
    if (auto stored = readTicket(arguments.ticket))
      ticket = *stored;
  ticket.printer = printer.name();
  if (!arguments.document.empty())
    ticket.document = arguments.document;
  for (const std::string &option : arguments.options)
    readOptionArgument(option, ticket.settings);
  return ticket;
}

std::vector<std::string> pluginsFor(const Arguments &arguments, const PrinterDescription &printer) {
  return findPlugins({arguments.plugins, printer.attributeValues("APDialogExtension")},
                     pluginFolders());
}

void finish(const Arguments &arguments, const Ticket &ticket) {
  if (arguments.ticket.empty()) {
    std::cout << writeOptionText(ticket.settings);
    return;
  }
  writeTicket(ticket, arguments.ticket);
  std::cerr << messages::ticketWritten(arguments.ticket, optionTextPath(arguments.ticket)) << '\n';
}

ExitCode runInBatch(const Arguments &arguments, PrinterDescription &printer, Ticket &ticket) {
  if (!isDisplayNamed())
    startPrivateDisplay();
  leaveOutPasteboardDaemon();
  startApplication();
  const auto plugins = pluginsFor(arguments, printer);
  PanelSession session(printer, ticket.settings);
  session.load(plugins);
  for (const std::string &trouble : session.troubles())
    std::cerr << messages::kProgram << trouble << '\n';
  if (!session.troubles().empty())
    return ExitCode::Plugin;
  if (session.panels().empty())
    throw Failure(ExitCode::NoPanel, messages::noPanel(printer.name(), plugins));
  const auto summary = runBatch(session, arguments.batch, std::cerr);
  finish(arguments, ticket);
  if (arguments.batch.summary)
    std::cout << writeSummary(summary);
  return ExitCode::Done;
}

ExitCode runInWindow(const Arguments &arguments, PrinterDescription &printer, Ticket &ticket) {
  if (!arguments.ticket.empty())
    checkTicketPlace(arguments.ticket); // before the person has set anything that would be lost
  startApplication();
  PanelSession session(printer, ticket.settings);
  session.load(pluginsFor(arguments, printer));
  if (!runDialog(session, {printer.name(), ticket.document}, std::cerr)) {
    session.revert();
    std::cerr << messages::kCancelled << '\n';
    return ExitCode::Cancelled;
  }
  finish(arguments, ticket);
  return ExitCode::Done;
}

ExitCode run(const std::vector<std::string> &words) {
  const auto request = readCommandLine(withoutPlatformDefaults(words));
  if (const auto *answer = std::get_if<Answer>(&request)) {
    std::cout << answer->text;
    return ExitCode::Done;
  }
  const Arguments &arguments = std::get<Arguments>(request);
  if (!arguments.document.empty())
    checkDocument(arguments.document);
  PrinterDescription printer = openPrinter(arguments);
  Ticket ticket = openTicket(arguments, printer);
  printer.mark(ticket.settings);
  setPlatformDefaults();
  return arguments.isBatch ? runInBatch(arguments, printer, ticket)
                           : runInWindow(arguments, printer, ticket);
}

ExitCode runInPool(const std::vector<std::string> &words) {
  struct Pool {
    ~Pool() { [pool release]; }
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
  } const pool;
  const ExitCode code = run(words);
  if (!std::cout.flush())
    throw Failure(ExitCode::Ticket, messages::kOutputUnwritable);
  return code;
}

} // namespace

int main(int argc, char **argv) {
  leaveOutForeignVariables(argv);
  try {
    const std::vector<std::string> words(argv + 1, argv + argc);
    refuseForeignArguments(words);
    return static_cast<int>(runInPool(words));
  } catch (const Failure &failure) {
    std::cerr << messages::kProgram << failure.what() << '\n';
    return static_cast<int>(failure.code());
  }
}
