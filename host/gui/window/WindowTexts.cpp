#include "WindowTexts.hpp"

#include "Copies.hpp"
#include "Phrases.hpp"

namespace imageposition::messages {

const Text kNoPanelHere = text(
    "No plug-in has a panel for this printer. You can print with everything that is shown here. To "
    "move the image, choose a printer that supports it, or name a plug-in with --plugin BUNDLE.");
const Text kCopyAndPaste = text("Copy and paste");
std::string pasteboardFolderOfOthers(const std::string &path) {
  return text("Copy and paste do not work: the folder \"{1}\" belongs to another user. Ask the "
              "system's administrator to remove it.")
      .with(path);
}
std::string pasteboardFolderUnusable(const std::string &path) {
  return text("Copy and paste do not work: \"{1}\" is not a folder that you may write to. Name "
              "another folder in the variable TEMP.")
      .with(path);
}
std::string pasteboardUnreachable(const std::string &reason) {
  return text("Copy and paste do not work: GNUstep's pasteboard server (gpbs) cannot be "
              "reached{1}. It is part of the package gnustep-gui-runtime; log in again once it is "
              "installed.")
      .with(because(reason));
}
std::string presetsNotListed(std::size_t count) {
  // Translators: the last, grey item of a menu of presets.
  return counted(static_cast<long>(count), "{1} more preset", "{1} more presets");
}
const Text kPrintWindow = text("Print");
const Text kPrinterRow = text("&Printer:");
const Text kDocumentRow = text("Document:");
const Text kPresetsRow = text("P&reset:");
const Text kCopiesRow = text("&Copies:");
const Text kPagesRow = text("P&ages:");
const Text kTwoSidedRow = text("&Two-sided:");
const Text kMediaRow = text("&Media:");
const Text kPaneRow = text("&Settings:");
const Text kCollate = text("C&ollate");
const Text kPageRange = text("Range");
const Text kSaveAsTicket = text("Save as ticket");
const Text kUnitRow = text("&Unit:");
const Text kMillimetres = text("Millimetres");
const Text kInches = text("Inches");
const Text kPoints = text("Points");
const Text kNotOffered = text("Not offered");
const Text kSummaryTitle = text("Summary");
const Text kResolve = text("Resol&ve");
const Text kCancel = text("Cancel");
const Text kPrint = text("Print");
const Text kOk = text("OK");
const Text kNoPresetChosen = text("None");
const Text kSavePreset = text("Save as preset…");
const Text kRenamePreset = text("Rename this preset…");
const Text kDeletePreset = text("Delete this preset");
const Text kPresetNameQuestion = text("Name of the preset:");
std::string presetSaved(const std::string &lpName) {
  return text("The preset is saved; lp -d {1} prints with it too.").with(lpName);
}
const Text kTicketQuestion = text("File for the job's settings:");
const Text kSave = text("Save");
const Text kReplace = text("Replace");
std::string ticketExists(const std::string &path) {
  return text("\"{1}\" is there already. Replace it?").with(path);
}
const Text kJobWaits = text("The job waits");
const Text kPasswordWindow = text("Password");
const Text kWrongPasswordWindow = text("Wrong password");
const Text kUserRow = text("&User name:");
const Text kPasswordRow = text("&Password:");
std::string passwordWanted(const std::string &printer) {
  return text("CUPS prints on \"{1}\" for users that it knows. Enter your name and password there.")
      .with(printer);
}
std::string wrongPassword(const std::string &printer) {
  return text("CUPS did not take that name and password for \"{1}\". Try again, or cancel to go "
              "back "
              "to the settings.")
      .with(printer);
}
const Text kStateUnknown = text("Asking for the printers…");
std::string printerState(const std::string &state, const std::string &location) {
  return location.empty() ? state : state + " · " + location;
}
std::string copiesNotUnderstood(const std::string &typed) {
  return text("\"{1}\" is no number of copies. Enter a number from 1 to {2}.")
      .with(typed, kMostCopies);
}
const Text kNothingToPrint = text(
    "There is no document to print. Name one: print-dialog FILE. Or choose \"Save as ticket\".");
std::string sending(const std::string &sent, const std::string &total) {
  return total.empty() ? text("Sending: {1}").with(sent)
                       : text("Sending: {1} of {2}").with(sent, total);
}
std::string byteCount(unsigned long long bytes) {
  constexpr unsigned long long kTenthOfMegabyte = 100000;
  if (bytes < 10 * kTenthOfMegabyte)
    return text("{1} kB").with(std::to_string((bytes + 999) / 1000));
  const unsigned long long tenths = (bytes + kTenthOfMegabyte / 2) / kTenthOfMegabyte;
  return text("{1} MB").with(
      decimalNumber(std::to_string(tenths / 10), std::to_string(tenths % 10)));
}

} // namespace imageposition::messages
