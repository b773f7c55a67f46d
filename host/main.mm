#import "host/Application.h"
#import "host/BatchRun.h"
#include "host/CommandLine.hpp"
#import "host/DialogWindow.h"
#include "host/ExitCode.hpp"
#include "host/Messages.hpp"
#include "host/OptionText.hpp"
#include "host/PluginFolders.hpp"
#include "host/PrivateDisplay.hpp"
#include "host/Ticket.hpp"

#include <cerrno>
#include <cstring>
#include <iostream>
#include <unistd.h>

using namespace imageposition;

namespace {

PrinterDescription openPrinter(const Arguments &arguments) {
  return arguments.ppd.empty() ? PrinterDescription::ofQueue(arguments.queue)
                               : PrinterDescription::fromFile(arguments.ppd);
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
    std::cerr << trouble << '\n';
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
  if (!arguments.document.empty() && access(arguments.document.c_str(), R_OK) != 0)
    throw Failure(ExitCode::Usage,
                  messages::documentUnreadable(arguments.document, std::strerror(errno)));
  PrinterDescription printer = openPrinter(arguments);
  Ticket ticket = openTicket(arguments, printer);
  printer.mark(ticket.settings);
  setPlatformDefaults();
  return arguments.isBatch ? runInBatch(arguments, printer, ticket)
                           : runInWindow(arguments, printer, ticket);
}

} // namespace

int main(int argc, char **argv) {
  NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
  ExitCode code = ExitCode::Done;
  try {
    code = run(std::vector<std::string>(argv + 1, argv + argc));
    std::cout.flush();
  } catch (const Failure &failure) {
    std::cerr << "print-dialog: " << failure.what() << '\n';
    code = failure.code();
  }
  [pool release];
  return static_cast<int>(code);
}
