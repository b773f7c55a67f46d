#include "QuestionTexts.hpp"

#include "Phrases.hpp"

namespace imageposition::messages {

const Text kCancel = text("Cancel");
const Text kOk = text("OK");
const Text kDialogFault = text("A fault in the print dialog");
std::string dialogFailed(const std::string &what) {
  return text("A fault in the print dialog stopped what you were doing ({1}). Your settings are "
              "kept: "
              "you can go on, or save them as a ticket.")
      .with(what);
}
const Text kCopyAndPaste = text("Copy and paste");
std::string pasteboardFolderOfOthers(const std::string &path) {
  return text("Copy and paste do not work: another user owns the folder \"{1}\". Ask the system "
              "administrator to remove it.")
      .with(path);
}
std::string pasteboardFolderUnusable(const std::string &path) {
  return text("Copy and paste do not work: \"{1}\" is not a folder that you can write to. Set the "
              "variable TEMP to another folder.")
      .with(path);
}
std::string pasteboardUnreachable(const std::string &reason) {
  return text("Copy and paste do not work: cannot reach GNUstep's pasteboard server, gpbs{1}. "
              "Install the package gnustep-gui-runtime and log in again.")
      .with(because(reason));
}
const Text kSaveAsTicket = text("Save as ticket");
const Text kSaveAsPdf = text("Save as PDF");
const Text kPdfQuestion = text("File for the pages as they will be printed:");
const Text kTicketQuestion = text("File for the job's settings:");
const Text kSave = text("Save");
const Text kReplace = text("Replace");
std::string alreadyExists(const std::string &name) {
  return text("\"{1}\" already exists. Replace it?").with(name);
}
const Text kOpenWindow = text("Open a document");
const Text kOpenButton = text("Open");
const Text kFileRow = text("&File:");
std::string documentNotOpened(const std::string &path, const std::string &reason) {
  return text("Cannot read the document \"{1}\": {2}. Check its name and permissions.")
      .with(path, reason);
}
const Text kPasswordWindow = text("Password");
const Text kWrongPasswordWindow = text("Wrong password");
// Translators: the title of a window that shows a sheet of paper.
const Text kSheetWindow = text("Sheet");
const Text kPleaseWait = text("Please wait");
std::string waitingForCups(const std::string &server) {
  return text("Waiting for CUPS at {1}…").with(server);
}
const Text kNoPrinterWindow = text("The printer cannot be used");
const Text kPrinterChoiceRow = text("&Printer:");
const Text kContinue = text("Continue");
const Text kTryAgain = text("Try again");
const Text kUserRow = text("&User name:");
const Text kPasswordRow = text("&Password:");
std::string passwordWanted(const std::string &printer) {
  return text("Printing on \"{1}\" requires a user name and password.").with(printer);
}
std::string wrongPassword(const std::string &printer) {
  return text("The user name or password for \"{1}\" is wrong. Try again, or cancel to go back to "
              "the settings.")
      .with(printer);
}
std::string layingOut(int percent) {
  return percent == 0 ? text("Laying out the pages…").str()
                      : text("Laying out the pages: {1} %").with(std::to_string(percent));
}
std::string sending(const std::string &sent, const std::string &total) {
  return total.empty() ? text("Sending: {1}").with(sent)
                       : text("Sending: {1} of {2}").with(sent, total);
}
std::string stillWaiting(const std::string &server) {
  return text("CUPS at {1} is not responding. Still waiting; you can cancel.").with(server);
}
std::string byteCount(unsigned long long bytes) {
  constexpr unsigned long long kTenthOfMegabyte = 100000;
  if (bytes < 10 * kTenthOfMegabyte)
    return text("{1} kB").with(std::to_string((bytes + 999) / 1000));
  const unsigned long long tenths = (bytes + kTenthOfMegabyte / 2) / kTenthOfMegabyte;
  return text("{1} MB").with(
      decimalNumber(std::to_string(tenths / 10), std::to_string(tenths % 10)));
}
const Text kAlignWindow = text("Align front and back");
const Text kPrintSheets = text("Print 3 sheets");
const Text kReadSheets = text("Read printed sheets");
const Text kTakeOffsets = text("Use these offsets");
// Translators: a button: to the step before.
const Text kBack = textIn("button", "Back");
std::string sheetRow(int sheet) { return text("Sheet {1}").with(sheet); }
// Translators: where a sheet was folded, in the place of "Sheet 1".
const Text kCreaseRow = text("Creases");
const Text kAsItShouldBe = text("As it should look");
const Text kDrawingSheets = text("Drawing the sheets…");
const Text kUnitRow = text("&Unit:");
const Text kMillimetres = text("Millimetres");
const Text kInches = text("Inches");
const Text kPoints = text("Points");

} // namespace imageposition::messages
