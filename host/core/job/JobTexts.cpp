#include "JobTexts.hpp"

#include "Phrases.hpp"

namespace imageposition::messages {

const Text kNothingToSummarize = text("Not available with the present settings.");
std::string ticketUnreadable(const std::string &path, const std::string &reason) {
  return text("The ticket \"{1}\" cannot be read: {2}. Check the name and its rights.")
      .with(path, reason);
}
std::string ticketMalformed(const std::string &source, const std::string &reason) {
  return text("\"{1}\" is not a usable ticket: {2}. Correct it, or remove it to start from the "
              "printer's defaults.")
      .with(source, reason);
}
std::string ticketNotJson(const std::string &reason) {
  return text("it is not JSON ({1})").with(reason);
}
std::string ticketMemberNotText(const std::string &name) {
  return text("\"{1}\" is not a text").with(name);
}
std::string ticketValueNotText(const std::string &name) {
  return text("the setting \"{1}\" is neither a text nor a whole number").with(name);
}
std::string ticketEntryUnusable(const std::string &name) {
  return text("the setting \"{1}\" has a name or value that no print job can carry").with(name);
}
std::string ticketNameRepeated(const std::string &name) {
  return text("\"{1}\" is there twice").with(name);
}
std::string ticketMemberNotList(const std::string &name) {
  return text("\"{1}\" is not a list of names").with(name);
}
const Text kTicketWithoutSettings = text("it has no object \"settings\"");
std::string fileUnwritable(const std::string &path, const std::string &reason) {
  return text("\"{1}\" cannot be written: {2}. Choose another place.").with(path, reason);
}
std::string fileWrittenAlready(const std::string &path) {
  return text("\"{1}\" is written already.").with(path);
}
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
const Text kNoPages = text("No pages are named. Write, for example, 1-3, 7.");
std::string pagesNotUnderstood(const std::string &part) {
  return text("\"{1}\" is no page number. Write pages as, for example, 1-3, 7.").with(part);
}
const Text kPagesWithoutNumber = text(
    "A hyphen needs a page number on one side at least. Write, for example, 5- for page 5 and all "
    "that follow.");
const Text kPageZero = text("Pages are counted from 1. Write, for example, 1-3.");
std::string pageTooLarge(const std::string &number) {
  return text("Page {1} is more than a document can have. Write, for example, 5- for page 5 and "
              "all that follow.")
      .with(number);
}
std::string pagesBackwards(int first, int last) {
  return text("{1}-{2} runs backwards. Write {2}-{1}.").with(first, last);
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
const Text kSentSection = text("As CUPS gets it");
std::string differingValue(const std::string &value, const std::string &usual) {
  return text("{1}  (usually {2})").with(value, usual);
}
std::string andMore(const std::string &document, std::size_t others) {
  // Translators: {2} is the first of several documents, {1} how many others there are.
  return counted(static_cast<long>(others), "{2} and {1} more", "{2} and {1} more", {document});
}

} // namespace imageposition::messages
