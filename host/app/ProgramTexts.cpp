#include "ProgramTexts.hpp"

#include "Phrases.hpp"

namespace imageposition::messages {

std::string documentUnreadable(const std::string &path, const std::string &reason) {
  return text("Cannot read the document \"{1}\": {2}. Check its name and permissions.")
      .with(path, reason);
}
std::string configurationUntrusted(const std::string &part) {
  return text("Ignored GNUSTEP_CONFIG_FILE: another user could modify \"{1}\". Unset the variable, "
              "or set it to a file and folder that only you can modify.")
      .with(part);
}
std::string moduleMissing(const std::string &path) {
  return text("print-dialog's file \"{1}\" is missing. Reinstall print-dialog.").with(path);
}
std::string moduleUntrusted(const std::string &path) {
  return text("print-dialog's file \"{1}\" was not loaded: another user could modify it. Reinstall "
              "print-dialog.")
      .with(path);
}
std::string moduleNotLoadable(const std::string &path, const std::string &reason) {
  return text("print-dialog's file \"{1}\" could not be loaded{2}. Reinstall print-dialog and the "
              "packages that it depends on.")
      .with(path, because(reason));
}
const Text kCutShort = text("its end is missing");

std::string badReading(const std::string &reading) {
  return text("--reading requires four numbers from -10.5 to 10.5, for example "
              "1.7,-0.3,1.6,-0.2, not \"{1}\". Use a decimal point.")
      .with(reading);
}
std::string badCrease(const std::string &crease) {
  return text("--crease requires two numbers from -10.5 to 10.5, for example -0.5,1, not "
              "\"{1}\". Use a decimal point.")
      .with(crease);
}
const Text kCreaseNeedsReading = text("--crease requires --reading: the back follows the front.");
const Text kAlignNeedsQueue =
    text("Specify the printer to measure with -d QUEUE, or a file for the "
         "sheets with --sheet FILE.");
std::string readTheSheets(int sheets, const std::string &command) {
  return counted(sheets, "Read the sheet as its back says. Then enter what you have read: {2}",
                 "Read the {1} sheets as their backs say; the median of several is better than "
                 "one. Then enter what you have read, with --reading for each sheet: {2}",
                 {command});
}
std::string addCrease(const std::string &words) {
  return text("To place the front on the paper as well, add {1}.").with(words);
}
const Text kNothingMeasured = text("Nothing was measured yet. Use --align.");
std::string alignmentsImported(int count) {
  return counted(count, "{1} measurement was imported.", "{1} measurements were imported.");
}
std::string alignmentsNotImported(const std::string &path, const std::string &reason) {
  return text("Cannot import \"{1}\": {2}.").with(path, reason);
}
std::string alignmentsDeleted(int count, const std::string &queue) {
  if (count == 0)
    return text("Nothing was measured for \"{1}\".").with(queue);
  return counted(count, "{1} measurement of \"{2}\" was deleted.",
                 "{1} measurements of \"{2}\" were deleted.", {queue});
}

} // namespace imageposition::messages
