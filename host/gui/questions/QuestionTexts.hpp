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
extern const Text kSheetWindow;
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

// How far a job is.
/// cups-filters do not tell how far they are, so it stays at 0 % for a while.
std::string layingOut(int percent);
std::string sending(const std::string &sent, const std::string &total);
/// In kilobytes or megabytes.
std::string stillWaiting(const std::string &server);
std::string byteCount(unsigned long long bytes);

// Aligning.
extern const Text kAlignWindow;
extern const Text kPrintSheets;
extern const Text kReadSheets;
extern const Text kTakeOffsets;
extern const Text kBack;
std::string sheetRow(int sheet);
extern const Text kCreaseRow;
extern const Text kAsItShouldBe; ///< Above a drawing.
extern const Text kDrawingSheets;

// Values.
extern const Text kUnitRow;
extern const Text kMillimetres;
extern const Text kInches;
extern const Text kPoints;

} // namespace imageposition::messages

#endif
