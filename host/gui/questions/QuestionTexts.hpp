/// Texts of the small windows that ask.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_QUESTIONTEXTS_HPP
#define IMAGEPOSITION_GUI_QUESTIONS_QUESTIONTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// Buttons.
extern const Text kCancel;
extern const Text kOk;

// Faults of the dialog.
extern const Text kDialogFault; ///< A window's title.
/// `what` is the exception in words.
std::string dialogFailed(const std::string &what);

// Copy and paste.
extern const Text kCopyAndPaste;
std::string pasteboardFolderOfOthers(const std::string &path);
std::string pasteboardFolderUnusable(const std::string &path);
std::string pasteboardUnreachable(const std::string &reason);

// Tickets.
extern const Text kSaveAsTicket;
extern const Text kSaveAsPdf;
extern const Text kPdfQuestion;
extern const Text kTicketQuestion;
extern const Text kSave;
extern const Text kReplace;
std::string alreadyExists(const std::string &name);

// Documents.
extern const Text kOpenWindow;
extern const Text kOpenButton;
extern const Text kFileRow;
std::string documentNotOpened(const std::string &path, const std::string &reason);

// Opening a printer.
extern const Text kPleaseWait; ///< A window's title.
std::string waitingForCups(const std::string &server);
extern const Text kNoPrinterWindow; ///< A window's title.
extern const Text kPrinterChoiceRow;
extern const Text kContinue;
extern const Text kTryAgain;

// Passwords.
extern const Text kPasswordWindow;
extern const Text kWrongPasswordWindow;
extern const Text kUserRow;
extern const Text kPasswordRow;
std::string passwordWanted(const std::string &printer);
std::string wrongPassword(const std::string &printer);

// Values.
extern const Text kUnitRow;
extern const Text kMillimetres;
extern const Text kInches;
extern const Text kPoints;

} // namespace imageposition::messages

#endif
