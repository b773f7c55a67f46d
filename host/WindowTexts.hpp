/// Every text of the dialog's window that is not a picture's, a printer's or a failure's.
#ifndef IMAGEPOSITION_HOST_WINDOWTEXTS_HPP
#define IMAGEPOSITION_HOST_WINDOWTEXTS_HPP

#include "host/Text.hpp"

#include <string>

namespace imageposition::messages {

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
extern const Text kPrinterTitle;
extern const Text kDocumentTitle;
extern const Text kCopiesTitle;
extern const Text kPagesTitle;
/// A title with what it has before a control or a value: "Paper:".
std::string asLabel(const std::string &title);
/// CUPS's own name for the options that stand in no group.
extern const Text kGeneralGroup;
extern const Text kCollate;
extern const Text kAllPages;
extern const Text kOddPages;
extern const Text kEvenPages;
extern const Text kPageRange;
extern const Text kSaveAsTicket;
extern const Text kEnterValue;
extern const Text kUnitRow;
extern const Text kMillimetres;
extern const Text kInches;
extern const Text kPoints;
extern const Text kNotOffered; ///< In a pop-up of what the printer has no choice of.
extern const Text kOptionsPane;
extern const Text kSummaryTitle;
extern const Text kJobSection;
extern const Text kSentSection;     ///< The summary's list of options as CUPS gets them.
extern const Text kDifferingLegend; ///< What the mark beside some lines of the summary means.
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
/// A summary's value that is not the printer's default.
std::string differingValue(const std::string &value, const std::string &usual);
std::string copiesNotUnderstood(const std::string &typed);
extern const Text kNothingToPrint;
std::string sending(const std::string &sent, const std::string &total);
/// lp's own words, which scripts read.
std::string jobSent(const std::string &printer, int id, std::size_t files);
std::string andMore(const std::string &document, std::size_t others);
extern const Text kSendingCancelled;
/// "Value" as a person reads a number of bytes.
std::string byteCount(unsigned long long bytes);

} // namespace imageposition::messages

#endif
