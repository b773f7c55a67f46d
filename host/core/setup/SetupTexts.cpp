#include "SetupTexts.hpp"

#include "Strings.hpp"

namespace imageposition::messages {

std::string ticketWritten(const std::string &path, const std::string &optionPath) {
  return text("The job's settings are in {1} and {2}.")
      .with(shellWord(path), shellWord(optionPath));
}
std::string wouldNotPrint(const std::string &printer, const std::string &state) {
  return text("The printer \"{1}\" would not print now: {2}").with(printer, state);
}
std::string pdfIsDocument(const std::string &path) {
  return text("\"{1}\" is the document itself. Choose another name for the PDF file.").with(path);
}
std::string pdfWritten(const std::string &path) {
  return text("The pages are in {1}.").with(shellWord(path));
}
const Text kPdfIsMoved = text("The offsets have been applied: print that file without any.");
const Text kNoDocumentForPdf = text("Name a document to save as PDF.");
const Text kOneDocumentForPdf =
    text("A PDF file has one document. Save the documents one after the other.");
std::string outputUnwritable(const std::string &done) {
  if (done.empty())
    return text(
        "Cannot write to standard output. Redirect it elsewhere, or specify a file with --ticket.");
  return text("Cannot write to standard output. {1}").with(done);
}
std::string jobSentWithoutOutput(const std::string &job) {
  return text("CUPS has accepted job {1}, but writing to standard output failed. Do not print it "
              "again.")
      .with(job);
}
const Text kBackIgnored =
    text("The back's offsets have no effect, because the back follows the front. To "
         "separate them, add --back on.");
std::string printsNothing(const std::string &document, DocumentDefect defect) {
  switch (defect) {
  case DocumentDefect::Password:
    return text("\"{1}\" is protected by a password: CUPS accepts it, but prints nothing. Save a "
                "copy without it, and print that.")
        .with(document);
  case DocumentDefect::Forbidden:
    return text("\"{1}\" does not allow printing: CUPS accepts it, but prints nothing.")
        .with(document);
  case DocumentDefect::Damaged:
    break;
  }
  return text(
             "\"{1}\" is damaged: CUPS accepts it, but may print nothing. Save the document again, "
             "then print it.")
      .with(document);
}
// lp's English output, which scripts parse.
std::string jobSent(const std::string &printer, int id, std::size_t files) {
  return "request id is " + printer + "-" + std::to_string(id) + " (" + std::to_string(files) +
         " file(s))";
}

} // namespace imageposition::messages
