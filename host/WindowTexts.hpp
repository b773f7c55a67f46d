/// Every text of the dialog's window that is not a picture's, a printer's or a failure's.
#ifndef IMAGEPOSITION_HOST_WINDOWTEXTS_HPP
#define IMAGEPOSITION_HOST_WINDOWTEXTS_HPP

#include <string>

namespace imageposition::messages {

extern const char *const kPrintWindow;
extern const char *const kPrinterRow;
extern const char *const kDocumentRow;
extern const char *const kPresetsRow;
extern const char *const kCopiesRow;
extern const char *const kPagesRow;
extern const char *const kTwoSidedRow;
extern const char *const kMediaRow;
extern const char *const kPaneRow;
extern const char *const kCollate;
extern const char *const kAllPages;
extern const char *const kOddPages;
extern const char *const kEvenPages;
extern const char *const kPageRange;
extern const char *const kSaveAsTicket;
extern const char *const kNotOffered; ///< In a pop-up of what the printer has no choice of.
extern const char *const kOptionsPane;
extern const char *const kSummaryTitle;
extern const char *const kJobSection;
extern const char *const kResolve;
extern const char *const kCancel;
extern const char *const kPrint;
extern const char *const kOk;

extern const char *const kNoPresetChosen;
extern const char *const kSavePreset;
extern const char *const kRenamePreset;
extern const char *const kDeletePreset;
extern const char *const kPresetNameQuestion;
std::string presetSaved(const std::string &lpName);

extern const char *const kStateUnknown;
std::string printerState(const std::string &state, const std::string &location);
/// A summary's value that is not the printer's default.
std::string differingValue(const std::string &value, const std::string &usual);
std::string copiesNotUnderstood(const std::string &typed);
extern const char *const kNothingToPrint;
std::string sending(const std::string &sent, const std::string &total);
std::string jobSent(const std::string &printer, int id);
extern const char *const kSendingCancelled;
/// "Value" as a person reads a number of bytes.
std::string byteCount(unsigned long long bytes);

} // namespace imageposition::messages

#endif
