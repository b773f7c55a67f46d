#include "host/WindowTexts.hpp"

#include <cstdio>

namespace imageposition::messages {

const char *const kPrintWindow = "Print";
const char *const kPrinterRow = "Printer:";
const char *const kDocumentRow = "Document:";
const char *const kPresetsRow = "Preset:";
const char *const kCopiesRow = "Copies:";
const char *const kPagesRow = "Pages:";
const char *const kTwoSidedRow = "Two-sided:";
const char *const kMediaRow = "Media:";
const char *const kPaneRow = "Settings:";
const char *const kCollate = "Collate";
const char *const kAllPages = "All";
const char *const kOddPages = "Odd";
const char *const kEvenPages = "Even";
const char *const kPageRange = "Range";
const char *const kSaveAsTicket = "Save as ticket";
const char *const kNotOffered = "Not offered";
const char *const kOptionsPane = "Printer options";
const char *const kSummaryTitle = "Summary";
const char *const kJobSection = "Job";
const char *const kResolve = "Resolve";
const char *const kCancel = "Cancel";
const char *const kPrint = "Print";
const char *const kOk = "OK";

const char *const kNoPresetChosen = "None";
const char *const kSavePreset = "Save as preset\u2026";
const char *const kRenamePreset = "Rename this preset\u2026";
const char *const kDeletePreset = "Delete this preset";
const char *const kPresetNameQuestion = "Name of the preset:";
std::string presetSaved(const std::string &lpName) {
  return "The preset is saved; lp -d " + lpName + " prints with it too.";
}

const char *const kStateUnknown = "Asking for the printers\u2026";
std::string printerState(const std::string &state, const std::string &location) {
  return location.empty() ? state : state + " \u00B7 " + location;
}
std::string differingValue(const std::string &value, const std::string &usual) {
  return value + "  (usually " + usual + ")";
}
std::string copiesNotUnderstood(const std::string &typed) {
  return "\"" + typed + "\" is no number of copies. Enter a number from 1 to 9999.";
}
const char *const kNothingToPrint =
    "There is no document to print. Name one: print-dialog FILE. Or choose \"Save as ticket\".";
std::string sending(const std::string &sent, const std::string &total) {
  return total.empty() ? "Sending: " + sent : "Sending: " + sent + " of " + total;
}
std::string jobSent(const std::string &printer, int id) {
  return "request id is " + printer + "-" + std::to_string(id) + " (1 file(s))";
}
const char *const kSendingCancelled = "Nothing was printed: sending was cancelled.";
std::string byteCount(unsigned long long bytes) {
  char text[32];
  if (bytes < 1000000)
    std::snprintf(text, sizeof text, "%llu kB", (bytes + 999) / 1000);
  else
    std::snprintf(text, sizeof text, "%.1f MB", static_cast<double>(bytes) / 1e6);
  return text;
}

} // namespace imageposition::messages
