/// Texts of the window and of the small windows that ask.
#ifndef IMAGEPOSITION_HOST_WINDOWTEXTS_HPP
#define IMAGEPOSITION_HOST_WINDOWTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// The window.
extern const Text kNoPanelHere;

// Copy and paste.
extern const Text kCopyAndPaste;
std::string pasteboardFolderOfOthers(const std::string &path);
std::string pasteboardFolderUnusable(const std::string &path);
std::string pasteboardUnreachable(const std::string &reason);

// What a window has no room for.
std::string presetsNotListed(std::size_t count);

extern const Text kPrintWindow;
extern const Text kPrinterRow;
extern const Text kDocumentRow;
extern const Text kPresetsRow;
extern const Text kCopiesRow;
extern const Text kPagesRow;
extern const Text kTwoSidedRow;
extern const Text kMediaRow;
extern const Text kPaneRow;

// The same in the summary.
extern const Text kCollate;
extern const Text kPageRange;
extern const Text kSaveAsTicket;
extern const Text kUnitRow;
extern const Text kMillimetres;
extern const Text kInches;
extern const Text kPoints;
extern const Text kNotOffered; ///< In a pop-up of what the printer has no choice of.
extern const Text kSummaryTitle;
extern const Text kResolve;
extern const Text kCancel;
extern const Text kPrint;
extern const Text kOk;

extern const Text kNoPresetChosen;
extern const Text kSavePreset;
extern const Text kRenamePreset;
extern const Text kDeletePreset;
extern const Text kPresetNameQuestion;
std::string presetSaved(const std::string &lpName);
extern const Text kTicketQuestion;
extern const Text kSave;
extern const Text kReplace;
std::string ticketExists(const std::string &path);
extern const Text kJobWaits;
extern const Text kPasswordWindow;
extern const Text kWrongPasswordWindow;
extern const Text kUserRow;
extern const Text kPasswordRow;
std::string passwordWanted(const std::string &printer);
std::string wrongPassword(const std::string &printer);
extern const Text kStateUnknown;
std::string printerState(const std::string &state, const std::string &location);
std::string copiesNotUnderstood(const std::string &typed);
extern const Text kNothingToPrint;
std::string sending(const std::string &sent, const std::string &total);
/// "Value" as a person reads a number of bytes.
std::string byteCount(unsigned long long bytes);

} // namespace imageposition::messages

#endif
