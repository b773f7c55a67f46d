#include "WindowTexts.hpp"

#include "Copies.hpp"
#include "NumberText.hpp"
#include "Phrases.hpp"
#include "Strings.hpp"

namespace imageposition::messages {

std::string presetsNotListed(std::size_t count) {
  // Translators: the last, grey item of a menu of presets.
  return counted(static_cast<long>(count), "{1} more preset", "{1} more presets");
}
const Text kPrintWindow = text("Print");
std::string printWindowOf(const std::string &title) { return text("Print – {1}").with(title); }
const Text kPrinterRow = text("&Printer:");
const Text kDocumentRow = text("Document:");
const Text kNoDocument = text("No document");
const Text kDocumentOfApplication = text("From the application");
// Translators: a button that opens a window to choose a document.
const Text kOpen = text("Op&en…");
// Translators: a button that lists all documents of the job.
const Text kListDocuments = text("&List…");
const Text kDocumentsWindow = text("Documents");
const Text kPresetsRow = text("P&reset:");
const Text kCopiesRow = text("&Copies:");
const Text kPagesRow = text("P&ages:");
const Text kTwoSidedRow = text("&Two-sided:");
const Text kMediaRow = text("&Media:");
const Text kPaneRow = text("&Settings:");
const Text kCollate = text("C&ollate");
const Text kPageRange = text("Range");
const Text kNotOffered = text("Not available");
const Text kSummaryTitle = text("Summary");
const Text kResolve = text("Resol&ve");
const Text kPrint = text("Print");
const Text kAlign = text("Ali&gn…");
// Translators: a button that shows a sheet of the document in the size of the window.
const Text kEnlarge = text("E&nlarge");
const Text kNoPrinterToAlign = text("Choose a printer to align it.");
const Text kDryRunPrintsNothing = text("Nothing was printed: this is a dry run.");
std::string sheetsSent(const std::string &job) {
  // Translators: {1} is CUPS's name of a job, as "office-12".
  return text("The sheets were sent as job {1}.").with(job);
}
const Text kNoPresetChosen = text("None");
const Text kPrintersDefaults = text("The settings are the printer's defaults.");
const Text kSavePreset = text("Save as preset…");
const Text kRenamePreset = text("Rename this preset…");
const Text kDeletePreset = text("Delete this preset…");
const Text kDefaultPreset = text("Make this the default for this printer");
const Text kNotDefaultPreset = text("Do not start with this preset");
const Text kDefaultNotStored = text("The default could not be stored.");
std::string presetIsDefault(const std::string &preset, const std::string &printer) {
  return text("This window now starts with the preset \"{1}\" for \"{2}\".").with(preset, printer);
}
const Text kPresetNameWindow = text("Name of the preset");
const Text kPresetNameQuestion = text("Name of the preset:");
std::string presetSuggestion(std::size_t number) {
  // Translators: a name without blanks, for a preset that is to be saved.
  return text("Preset-{1}").with(std::to_string(number));
}
const Text kDelete = text("Delete");
std::string deleteQuestion(const std::string &preset) {
  return text("Delete the preset \"{1}\"?").with(preset);
}
std::string presetSaved(const std::string &lpName, bool isMovedHere) {
  return (isMovedHere ? text("The preset is saved. print-dialog --batch -d {1} prints with it too.")
                      : text("The preset is saved. lp -d {1} prints with it too."))
      .with(shellWord(lpName));
}
const Text kJobWaits = text("The job is waiting");
const Text kCancelJob = text("Cancel the job");
const Text kStateUnknown = text("Looking for printers…");
std::string numberChange(const std::string &typed, const std::string &shown, bool isEnd,
                         bool isOffset) {
  const bool isNumber = isWholeNumber(typed);
  const bool isBeginning = typed.empty() || (!isEnd && (typed == "-" || typed == "+"));
  if (isBeginning || (isNumber && isSameNumber(typed, shown)))
    return {};
  const auto tenths = isOffset && isEnd ? tenthsIn(typed) : std::nullopt;
  if (tenths)
    return text("\"{1}\" is not a whole number. {2} is kept. The unit is 0.1 mm: for {1} mm, enter "
                "{3}.")
        .with(typed, shown, *tenths);
  if (!isNumber)
    return isEnd ? text("\"{1}\" is not a whole number. {2} is kept.").with(typed, shown)
                 : text("\"{1}\" is not a whole number.").with(typed);
  return (isEnd ? text("\"{1}\" was changed to {2}, the nearest number that is allowed.")
                : text("\"{1}\" was changed to {2}."))
      .with(typed, shown);
}
std::string otherThanLastPrinter(const std::string &missing, const std::string &printer) {
  return text("\"{1}\", the printer of the last job, is not available. This is \"{2}\".")
      .with(missing, printer);
}
std::string numbersNow(NumbersNow numbers, const std::string &printer) {
  switch (numbers) {
  case NumbersNow::Defaults:
    return text("The offsets are now the defaults of \"{1}\".").with(printer);
  case NumbersNow::Remembered:
    return text("The printer options and offsets of the last job on \"{1}\" are back.")
        .with(printer);
  default:
    return {};
  }
}
const Text kNothingToPrint =
    text("There is no document to print. Choose one with Open…, or drop a file on this window.");
const Text kPrintAnywayWindow = text("Print anyway?");
const Text kPrintAnyway = text("Print anyway");
const Text kGoBack = text("Go back");
const Text kPrintUnmovedWindow = text("Print unmoved?");
const Text kPrintUnmovedButton = text("Print unmoved");
const Text kPrintAsItIsWindow = text("Print as it is?");
const Text kPrintAsItIs = text("Print as it is");

} // namespace imageposition::messages
