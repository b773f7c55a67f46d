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
const Text kSaveAsTicket = text("Save as ticket");
const Text kTicketQuestion = text("File for the job's settings:");
const Text kSave = text("Save");
const Text kReplace = text("Replace");
std::string ticketExists(const std::string &path) {
  return text("\"{1}\" is there already. Replace it?").with(path);
}
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
const Text kUnitRow = text("&Unit:");
const Text kMillimetres = text("Millimetres");
const Text kInches = text("Inches");
const Text kPoints = text("Points");

} // namespace imageposition::messages
