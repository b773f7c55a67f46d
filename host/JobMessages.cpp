#include "host/JobMessages.hpp"

namespace imageposition::messages {

namespace {

/// In parentheses, without a full stop of its own; nothing for nothing.
std::string because(std::string reason) {
  while (!reason.empty() && (reason.back() == '.' || reason.back() == ' '))
    reason.pop_back();
  return reason.empty() ? reason : " (" + reason + ")";
}

} // namespace

const Text kPrinterIdle = text("Ready");
const Text kPrinterPrinting = text("Printing");
const Text kPrinterStopped = text("Stopped");
std::string stateBecause(const std::string &state, const std::string &reasons) {
  return text("{1}: {2}").with(state, reasons);
}
std::string refusesJobs(const std::string &state) { return text("{1}; takes no jobs").with(state); }
const Text kNoPrinters = text(
    "CUPS has no printers. Add one in the system's settings or with lpadmin, or save the job's "
    "settings as a ticket.");
std::string noCups(const std::string &server, const std::string &reason) {
  return "CUPS does not answer at " + server + because(reason) +
         ". Start it (systemctl start cups) and try again, or save the job's settings as a ticket.";
}
const Text kNoAnswer = text("no answer in time");
std::string printersNotListed(const std::string &reason) {
  return "CUPS does not say which printers it has" + because(reason) +
         ". Ask its administrator, or save the job's settings as a ticket.";
}

std::string badCopies(int copies) {
  return std::to_string(copies) + " copies cannot be printed. Choose 1 or more.";
}
std::string badPriority(int priority) {
  return "A job's priority is 1 to 100, and not " + std::to_string(priority) + ".";
}
std::string badNumberUp(int pages) {
  return std::to_string(pages) + " pages do not fit on one side. Choose 1, 2, 4, 6, 9 or 16.";
}
const Text kBadHold = text("The time until which to hold the job is empty. Write \"indefinite\", "
                           "\"no-hold\" or a time such as 18:30.");
std::string unusableOption(const std::string &name) {
  return "The option \"" + name + "\" has a name or value that no print job can carry. Change it.";
}

std::string filtersRead(const std::string &word) { return "filters read: " + word; }

std::string queueGone(const std::string &queue) {
  return "CUPS has no printer \"" + queue +
         "\" any more. Choose another printer; nothing was printed.";
}
std::string queueRefuses(const std::string &queue) {
  return "The printer \"" + queue +
         "\" takes no jobs at present. Choose another printer, or have it take jobs again "
         "(cupsaccept " +
         queue + ").";
}
std::string notAllowed(const std::string &queue, const std::string &reason) {
  return "CUPS does not let you print on \"" + queue + "\"" + because(reason) +
         ". Print as another user, choose another printer, or ask the administrator of CUPS.";
}
std::string optionRefused(const std::string &queue, const std::string &reason) {
  return "\"" + queue + "\" does not take a setting of the job" + because(reason) +
         ". Change it and print again.";
}
std::string documentEmpty(const std::string &name) {
  return "The document \"" + name + "\" is empty. Choose one with pages in it.";
}
std::string documentNotRead(const std::string &name, const std::string &reason) {
  return "The document \"" + name + "\" cannot be read" + because(reason) +
         ". Check the name and its rights; nothing was printed.";
}
std::string formatRefused(const std::string &name, const std::string &reason) {
  return "CUPS cannot print \"" + name + "\", a file of a kind that it does not know" +
         because(reason) + ". Convert it to PDF and print that.";
}
std::string spoolRefuses(const std::string &reason) {
  return "CUPS has no room for the document" + because(reason) +
         ". Wait until other jobs are printed, free space on its disk, or print fewer pages at a "
         "time.";
}
const Text kDocumentBrokenOff = text(
    "CUPS broke off before it had the whole document, as it does with one that is too large for it "
    "or for its disk. Nothing was printed; free space there, or print fewer pages at a time.");
std::string connectionLost(const std::string &server, const std::string &reason) {
  return "CUPS at " + server + " went away before it had the whole document" + because(reason) +
         ". Nothing was printed; start CUPS (systemctl start cups) and print again.";
}
std::string jobNotTaken(const std::string &queue, const std::string &reason) {
  return "CUPS did not take the job for \"" + queue + "\"" + because(reason) +
         ". Its error log tells more; nothing was printed.";
}
std::string jobLeftBehind(const std::string &message, const std::string &queue, int job) {
  const std::string name = queue + "-" + std::to_string(job);
  return message + " The unfinished job " + name + " could not be removed; \"cancel " + name +
         "\" removes it.";
}
const Text kSubmissionCancelled = text("Cancelled; nothing was printed.");
const Text kStandardInput = text("standard input");
std::string waitsForPrinter(const std::string &queue, const std::string &state) {
  return "The printer \"" + queue + "\" does not print at present (" + state +
         "). CUPS keeps the job and prints it when the printer is resumed (cupsenable " + queue +
         ").";
}
std::string waitsForRelease(const std::string &queue, int job, const std::string &until) {
  const std::string name = queue + "-" + std::to_string(job);
  const std::string when = until == "indefinite" ? "until it is released" : "until " + until;
  return "The job is held " + when + "; \"lp -i " + name + " -H resume\" prints it before.";
}

} // namespace imageposition::messages
