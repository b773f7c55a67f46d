/// Texts of the window.
#ifndef IMAGEPOSITION_GUI_WINDOW_WINDOWTEXTS_HPP
#define IMAGEPOSITION_GUI_WINDOW_WINDOWTEXTS_HPP

#include "PanelValues.hpp"
#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// The window.

std::string presetsNotListed(std::size_t count);

extern const Text kPrintWindow;
/// The same for a dialog that belongs to an application's window.
std::string printWindowOf(const std::string &title);
extern const Text kPrinterRow;
extern const Text kDocumentRow;
extern const Text kNoDocument;
extern const Text kDocumentOfApplication; ///< For a document that does not exist yet.
extern const Text kOpen;
extern const Text kListDocuments;
extern const Text kDocumentsWindow;
extern const Text kPresetsRow;
extern const Text kCopiesRow;
extern const Text kPagesRow;
extern const Text kTwoSidedRow;
extern const Text kMediaRow;
extern const Text kPaneRow;

extern const Text kCollate;
extern const Text kPageRange;
extern const Text kNotOffered; ///< In the pop-up of an option that the printer lacks.
extern const Text kSummaryTitle;
extern const Text kResolve;
extern const Text kPrint;
extern const Text kAlign;
extern const Text kEnlarge;
extern const Text kNoPrinterToAlign;    ///< Beside that button.
extern const Text kDryRunPrintsNothing; ///< In the window of that button.
std::string sheetsSent(const std::string &job);

extern const Text kNoPresetChosen;
extern const Text kPrintersDefaults; ///< Says that no preset is chosen.
extern const Text kSavePreset;
extern const Text kRenamePreset;
extern const Text kDeletePreset;
extern const Text kDefaultPreset;
extern const Text kNotDefaultPreset;
extern const Text kDefaultNotStored;
std::string presetIsDefault(const std::string &preset, const std::string &printer);
extern const Text kPresetNameWindow;
extern const Text kPresetNameQuestion;
std::string presetSuggestion(std::size_t number);
extern const Text kDelete;
std::string deleteQuestion(const std::string &preset);
/// `isMovedHere`: lp would print without the preset's offsets.
std::string presetSaved(const std::string &lpName, bool isMovedHere);
extern const Text kJobWaits;
extern const Text kCancelJob;
extern const Text kStateUnknown;
/// What the panel made of a number that was typed; empty if it is the same, or if the user has only
/// begun.
std::string numberChange(const std::string &typed, const std::string &shown, bool isEnd,
                         bool isOffset);
/// What became of the offsets after a change of the printer; empty if nothing did.
std::string otherThanLastPrinter(const std::string &missing, const std::string &printer);
std::string numbersNow(NumbersNow numbers, const std::string &printer);
extern const Text kNothingToPrint;
extern const Text kPrintAnywayWindow;
extern const Text kPrintAnyway;
extern const Text kGoBack;
/// When the image of a document cannot be moved.
extern const Text kPrintUnmovedWindow;
extern const Text kPrintUnmovedButton;
/// The same for a document whose image was moved before.
extern const Text kPrintAsItIsWindow;
extern const Text kPrintAsItIs;

} // namespace imageposition::messages

#endif
