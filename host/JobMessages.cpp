#include "host/JobMessages.hpp"

#include "host/Messages.hpp"

namespace imageposition::messages {

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
  return text("CUPS does not answer at {1}{2}. Start it (systemctl start cups) and try again, or "
              "save the job's settings as a ticket.")
      .with(server, because(reason));
}
const Text kNoAnswer = text("no answer in time");
std::string printersNotListed(const std::string &reason) {
  return text("CUPS does not say which printers it has{1}. Ask its administrator, or save the "
              "job's settings as a ticket.")
      .with(because(reason));
}

std::string badCopies(int copies) {
  return counted(copies, "{1} copy cannot be printed. Choose 1 or more.",
                 "{1} copies cannot be printed. Choose 1 or more.");
}
std::string badPriority(int priority) {
  return text("A job's priority is 1 to 100, and not {1}.").with(priority);
}
std::string badNumberUp(int pages) {
  return counted(pages, "{1} page does not fit on one side. Choose 1, 2, 4, 6, 9 or 16.",
                 "{1} pages do not fit on one side. Choose 1, 2, 4, 6, 9 or 16.");
}
const Text kBadHold = text("The time until which to hold the job is empty. Write \"indefinite\", "
                           "\"no-hold\" or a time such as 18:30.");
std::string unusableOption(const std::string &name) {
  return text("The option \"{1}\" has a name or value that no print job can carry. Change it.")
      .with(name);
}

std::string filtersRead(const std::string &word) { return "filters read: " + word; }

std::string queueGone(const std::string &queue) {
  return text("CUPS has no printer \"{1}\" any more. Choose another printer; nothing was printed.")
      .with(queue);
}
std::string queueRefuses(const std::string &queue) {
  return text("The printer \"{1}\" takes no jobs at present. Choose another printer, or have it "
              "take jobs again (cupsaccept {1}).")
      .with(queue);
}
std::string notAllowed(const std::string &queue, const std::string &reason) {
  return text("CUPS does not let you print on \"{1}\"{2}. Print as another user, choose another "
              "printer, or ask the administrator of CUPS.")
      .with(queue, because(reason));
}
std::string optionRefused(const std::string &queue, const std::string &reason) {
  return text("\"{1}\" does not take a setting of the job{2}. Change it and print again.")
      .with(queue, because(reason));
}
std::string documentEmpty(const std::string &name) {
  return text("The document \"{1}\" is empty. Choose one with pages in it.").with(name);
}
std::string documentShrank(const std::string &name) {
  return text(
             "The document \"{1}\" became shorter while it was sent. Nothing was printed; print it "
             "again when it is complete.")
      .with(name);
}
std::string documentNotRead(const std::string &name, const std::string &reason) {
  return text("The document \"{1}\" cannot be read{2}. Check the name and its rights; nothing was "
              "printed.")
      .with(name, because(reason));
}
std::string formatRefused(const std::string &name, const std::string &reason) {
  return text("CUPS cannot print \"{1}\", a file of a kind that it does not know{2}. Convert it to "
              "PDF and print that.")
      .with(name, because(reason));
}
std::string spoolRefuses(const std::string &reason) {
  return text("CUPS has no room for the document{1}. Wait until other jobs are printed, free space "
              "on its disk, or print fewer pages at a time.")
      .with(because(reason));
}
const Text kDocumentBrokenOff = text(
    "CUPS broke off before it had the whole document, as it does with one that is too large for it "
    "or for its disk. Nothing was printed; free space there, or print fewer pages at a time.");
std::string connectionLost(const std::string &server, const std::string &reason) {
  return text("CUPS at {1} went away before it had the whole document{2}. Nothing was printed; "
              "start CUPS (systemctl start cups) and print again.")
      .with(server, because(reason));
}
std::string noAnswerToJob(const std::string &server) {
  return text("CUPS at {1} did not answer in time.").with(server);
}
std::string jobNotTaken(const std::string &queue, const std::string &reason) {
  return text("CUPS did not take the job for \"{1}\"{2}. Its error log tells more; nothing was "
              "printed.")
      .with(queue, because(reason));
}
std::string passwordExposed(const std::string &server) {
  return text("The connection to CUPS at {1} is not encrypted: others on the network can read the "
              "password on its way. To encrypt it, cancel and start print-dialog with -E.")
      .with(server);
}
std::string noRoomToSend(const std::string &reason) {
  return text("This computer has no room to send the job{1}. Nothing was printed; close other "
              "programs and print again.")
      .with(because(reason));
}
std::string jobLeftBehind(const std::string &message, const std::string &queue, int job) {
  const std::string name = queue + "-" + std::to_string(job);
  return text("{1} The unfinished job {2} could not be removed; \"cancel {2}\" removes it.")
      .with(message, name);
}
std::string jobTakenBack(const std::string &message, const std::string &queue, int job) {
  const std::string name = queue + "-" + std::to_string(job);
  return text("{1} The job {2} was cancelled; print again.").with(message, name);
}
std::string jobCancelled(const std::string &queue, int job) {
  const std::string name = queue + "-" + std::to_string(job);
  return text("The job {1} was cancelled after CUPS had all of it; look at the printer for pages "
              "that came out.")
      .with(name);
}
const Text kSubmissionCancelled = text("Cancelled; nothing was printed.");
const Text kStandardInput = text("standard input");
std::string waitsForPrinter(const std::string &queue, const std::string &state) {
  return text("The printer \"{1}\" does not print at present ({2}). CUPS keeps the job and prints "
              "it when the printer is resumed (cupsenable {1}).")
      .with(queue, state);
}
std::string waitsForRelease(const std::string &queue, int job, const std::string &until) {
  const std::string name = queue + "-" + std::to_string(job);
  if (until == "indefinite")
    return text("The job is held until it is released; \"lp -i {1} -H resume\" prints it before.")
        .with(name);
  return text("The job is held until {2}; \"lp -i {1} -H resume\" prints it before.")
      .with(name, until);
}

} // namespace imageposition::messages
