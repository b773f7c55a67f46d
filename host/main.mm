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

/// The user's default, or else the server's.
std::string defaultQueue() {
  cups_dest_t *const destination = cupsGetNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr);
  if (destination == nullptr)
    throw Failure(ExitCode::Printer, messages::kNoDefaultPrinter);
  std::string name = destination->name;
  if (destination->instance != nullptr)
    name += std::string("/") + destination->instance;
  cupsFreeDests(1, destination);
  return name;
}

PrinterDescription openPrinter(const Arguments &arguments) {
  if (!arguments.ppd.empty())
    return PrinterDescription::fromFile(arguments.ppd);
  return PrinterDescription::ofQueue(arguments.queue.empty() ? defaultQueue() : arguments.queue);
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
  if (arguments.copies > 0)
    ticket.settings.set("copies", std::to_string(arguments.copies));
  if (!arguments.pages.empty())
    ticket.settings.set("page-ranges", arguments.pages);
  if (arguments.priority > 0)
    ticket.settings.set("job-priority", std::to_string(arguments.priority));
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
  if (!arguments.server.empty())
    cupsSetServer(arguments.server.c_str());
  if (!arguments.document.empty() && arguments.document != "-" &&
      access(arguments.document.c_str(), R_OK) != 0)
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
