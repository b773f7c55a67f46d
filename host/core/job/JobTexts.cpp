#include "JobTexts.hpp"

#include "Copies.hpp"
#include "Phrases.hpp"
#include "Strings.hpp"

namespace imageposition::messages {

const Text kNothingToSummarize = text("Not available with the current settings.");
std::string ticketUnreadable(const std::string &path, const std::string &reason) {
  return text("Cannot read the ticket \"{1}\": {2}. Check its name and permissions.")
      .with(path, reason);
}
std::string ticketMalformed(const std::string &source, const std::string &reason) {
  return text("\"{1}\" is not a valid ticket: {2}. Correct it, or delete it to start from the "
              "printer's defaults.")
      .with(source, reason);
}
std::string ticketNotJson(const std::string &reason) {
  return text("it is not JSON ({1})").with(reason);
}
std::string ticketMemberNotText(const std::string &name) {
  return text("\"{1}\" is not a string").with(name);
}
std::string ticketValueNotText(const std::string &name) {
  return text("the setting \"{1}\" is neither a string nor a whole number").with(name);
}
std::string ticketEntryUnusable(const std::string &name) {
  return text("the setting \"{1}\" has a name or value that a print job cannot hold").with(name);
}
std::string ticketNameRepeated(const std::string &name) {
  return text("\"{1}\" appears twice").with(name);
}
std::string ticketMemberNotList(const std::string &name) {
  return text("\"{1}\" is not a list of strings").with(name);
}
const Text kTicketWithoutSettings = text("the object \"settings\" is missing");
std::string fileUnwritable(const std::string &path, const std::string &reason) {
  return text("Cannot write \"{1}\": {2}. Choose another location.").with(path, reason);
}
std::string fileWrittenAlready(const std::string &path) {
  return text("\"{1}\" has already been written.").with(path);
}
std::string unusableOption(const std::string &name) {
  return text("The option \"{1}\" has a name or value that a print job cannot hold. Change it.")
      .with(name);
}
std::string filtersRead(const std::string &word) { return "filters read: " + word; }
std::string queueGone(const std::string &queue) {
  return text("CUPS no longer has a printer \"{1}\". Nothing was printed. Choose another printer.")
      .with(queue);
}
std::string queueRefuses(const std::string &queue) {
  return text("The printer \"{1}\" is not accepting jobs. Choose another printer, or let it accept "
              "jobs again: cupsaccept {2}")
      .with(queue, shellWord(queue));
}
std::string notAllowed(const std::string &queue, const std::string &reason) {
  return text("You are not allowed to print on \"{1}\"{2}. Print as another user, choose another "
              "printer, or ask the CUPS administrator.")
      .with(queue, because(reason));
}
std::string optionRefused(const std::string &queue, const std::string &reason) {
  return text("\"{1}\" does not accept one of the job's settings{2}. Change it and print again.")
      .with(queue, because(reason));
}
std::string documentEmpty(const std::string &name) {
  return text("The document \"{1}\" is empty. Choose another document.").with(name);
}
const Text kInputEmpty = text("Standard input is empty. Nothing was printed.");
std::string documentShrank(const std::string &name) {
  return text("The document \"{1}\" became shorter while it was being sent. Nothing was printed. "
              "Print it again when it is complete.")
      .with(name);
}
std::string documentNotRead(const std::string &name, const std::string &reason) {
  return text("Cannot read the document \"{1}\"{2}. Nothing was printed. Check its name and "
              "permissions.")
      .with(name, because(reason));
}
std::string formatRefused(const std::string &name, const std::string &reason) {
  return text("CUPS cannot print \"{1}\": it does not support this type of file{2}. Convert it to "
              "PDF and print that.")
      .with(name, because(reason));
}
std::string spoolRefuses(const std::string &reason) {
  return text("CUPS has no space for the document{1}. Wait until other jobs have printed, free "
              "some disk space, or print fewer pages at a time.")
      .with(because(reason));
}
const Text kDocumentBrokenOff =
    text("CUPS closed the connection before it had the whole document, probably because the "
         "document is too large for it or for its disk. Nothing was printed. Free some disk space, "
         "or print fewer pages at a time.");
std::string connectionLost(const std::string &server, const std::string &reason) {
  return text("CUPS at {1} stopped before it had the whole document{2}. Nothing was printed. Start "
              "CUPS (systemctl start cups) and print again.")
      .with(server, because(reason));
}
std::string noAnswerToJob(const std::string &server) {
  return text("CUPS at {1} did not respond in time.").with(server);
}
std::string jobNotTaken(const std::string &queue, const std::string &reason) {
  return text("CUPS did not accept the job for \"{1}\"{2}. Nothing was printed. See the CUPS error "
              "log.")
      .with(queue, because(reason));
}
std::string noRoomToSend(const std::string &reason) {
  return text("The system has too few resources to send the job{1}. Nothing was printed. Close "
              "other programs and print again.")
      .with(because(reason));
}
std::string jobLeftBehind(const std::string &message, const std::string &queue, int job) {
  const std::string name = queue + "-" + std::to_string(job);
  return text("{1} The unfinished job {2} could not be removed. To remove it: cancel {3}")
      .with(message, name, shellWord(name));
}
std::string jobTakenBack(const std::string &message, const std::string &queue, int job) {
  const std::string name = queue + "-" + std::to_string(job);
  return text("{1} Job {2} was cancelled. Print again.").with(message, name);
}
std::string jobCancelled(const std::string &queue, int job) {
  const std::string name = queue + "-" + std::to_string(job);
  return text(
             "Job {1} was cancelled after CUPS had all of it. Check the printer for printed pages.")
      .with(name);
}
std::string waitingJobCancelled(const std::string &queue, int job) {
  return text("Job {1} was cancelled.").with(queue + "-" + std::to_string(job));
}
std::string jobNotCancelled(const std::string &queue, int job, const std::string &reason) {
  const std::string name = queue + "-" + std::to_string(job);
  return text("Job {1} could not be cancelled{2}. To try again: cancel {3}")
      .with(name, because(reason), shellWord(name));
}
const Text kStandardInput = text("standard input");
std::string waitsForPrinter(const std::string &queue, const std::string &state) {
  return text("CUPS keeps the job, because the printer \"{1}\" is not printing. Its state: {2}. To "
              "resume it: cupsenable {3}")
      .with(queue, state, shellWord(queue));
}
std::string waitsForRelease(const std::string &queue, int job, const std::string &until) {
  const std::string name = shellWord(queue + "-" + std::to_string(job));
  if (until == "indefinite")
    return text("The job is on hold. To print it now: lp -i {1} -H resume").with(name);
  return text("The job is on hold until {2}. To print it now: lp -i {1} -H resume")
      .with(name, until);
}
std::string localTime(const std::string &time) {
  // Translators: {1} is a time such as 18:30.
  return text("{1} (local time)").with(time);
}
std::string copiesNotUnderstood() {
  return text("Enter a number of copies from 1 to {1}.").with(kMostCopies);
}
const Text kNoPages = text("The page range is empty. Use, for example, 1-3, 7.");
std::string pagesNotUnderstood(const std::string &part) {
  return text("\"{1}\" is not a page range. Use, for example, 1-3, 7.").with(part);
}
const Text kPagesWithoutNumber = text("A hyphen needs a page number on at least one side. Use, for "
                                      "example, 5- for page 5 and all following pages.");
const Text kPageZero = text("Page numbers start at 1. Use, for example, 1-3.");
std::string pageTooLarge(const std::string &number) {
  return text("Page number {1} is too large. Use, for example, 5- for page 5 and all following "
              "pages.")
      .with(number);
}
std::string pagesBackwards(int first, int last) {
  return text("{1}-{2} is in the wrong order. Use {2}-{1}.").with(first, last);
}
const Text kPrinterTitle = textIn("summary", "Printer");
const Text kDocumentTitle = textIn("summary", "Document");
const Text kCopiesTitle = textIn("summary", "Copies");
const Text kPagesTitle = textIn("summary", "Pages");
const Text kAllPages = text("All");
const Text kOddPages = text("Odd");
const Text kEvenPages = text("Even");
const Text kOptionsPane = text("Printer options");
const Text kJobSection = text("Job");
const Text kOtherSection = text("Other settings");
std::string differingValue(const std::string &value, const std::string &usual) {
  return text("{1}  (usually {2})").with(value, usual);
}
std::string andMore(const std::string &document, std::size_t others) {
  // Translators: {2} is the first of several documents, {1} how many others there are.
  return counted(static_cast<long>(others), "{2} and {1} more", "{2} and {1} more", {document});
}

} // namespace imageposition::messages
