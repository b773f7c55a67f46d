#include "AlignerTexts.hpp"

namespace imageposition::messages {

std::string paperTooSmall(const std::string &paper) {
  return text("The paper \"{1}\" is too small for an alignment sheet. Choose A6 or larger.")
      .with(paper);
}
const Text kChooseLargerPaper = text("For example, use -o PageSize=A4.");
std::string sheetProgramMissing(const std::string &program) {
  return text("print-dialog's file \"{1}\" is missing. Reinstall print-dialog.").with(program);
}
const Text kSheetsNotDrawn = text("The alignment sheets could not be drawn. Install a font, for "
                                  "example the package fonts-dejavu-core, and try again.");
std::string sheetsNotKept(const std::string &reason) {
  return text(
             "Cannot create a temporary file for the alignment sheets: {1}. Set TMPDIR to a folder "
             "with enough space.")
      .with(reason);
}

std::string displacement(const std::string &directions) {
  // Translators: {1} is as "1.7 mm to the right and 0.3 mm up".
  return text("Against the light, with the back towards you, the back is off by {1}.")
      .with(directions);
}
const Text kNotDisplaced = text("The back lies exactly on the front.");
std::string spread(int sheets, const std::string &right, const std::string &down) {
  return counted(sheets,
                 "The sheet differs by {2} across and {3} down: no offset can do better than "
                 "that.",
                 "The {1} sheets differ by up to {2} across and {3} down: no offset can do better "
                 "than that.",
                 {right, down});
}
const Text kOneSheetOnly =
    text("One sheet does not show how much the printer varies. Read all three.");
std::string newOffsets(const std::string &offsets) { return text("Offsets: {1}.").with(offsets); }
std::string cornersApart(const std::string &angle, const std::string &stretch, bool isSmaller,
                         const std::string &left) {
  return (isSmaller
              ? text("The corners disagree: the back is turned by {1} degrees, and {2} percent "
                     "smaller. Offsets correct neither, and leave up to {3} at the sheet's "
                     "corners. Paper from a fresh pack, and guides that touch it, may help.")
              : text("The corners disagree: the back is turned by {1} degrees, and {2} percent "
                     "larger. Offsets correct neither, and leave up to {3} at the sheet's "
                     "corners. Paper from a fresh pack, and guides that touch it, may help."))
      .with(angle, stretch, left);
}
std::string readAgain(int sheet) {
  return text(
             "Sheet {1} differs from the others by more than 2 mm. Check its numbers and signs, or "
             "leave it out.")
      .with(std::to_string(sheet));
}
std::string outOfRange(const std::string &most) {
  return text("The offsets are limited to {1}. An error this large usually comes from a wrong "
              "paper size, tray, or edge to turn about: check these settings first.")
      .with(most);
}

std::string printsSheets(int sheets, const std::string &printer) {
  return counted(sheets, "This prints {1} sheet on both sides, on \"{2}\".",
                 "This prints {1} sheets on both sides, on \"{2}\". Printers feed no two sheets "
                 "exactly alike; several sheets show how much they vary.",
                 {printer});
}
std::string sheetSettings(const std::string &settings) {
  // Translators: {1} is as "A4, Tray 1, turned about the long edge".
  return text("The measurement applies to these settings: {1}.").with(settings);
}
std::string presentOffsets(const std::string &offsets) {
  return text("The sheets are moved by the current offsets: {1}.").with(offsets);
}
std::string printedBefore(const std::string &offsets) {
  return text("Sheets were printed before, with these offsets: {1}. If you have them, read them.")
      .with(offsets);
}
const Text kHowToRead =
    text("Hold each sheet against the light, with the back towards you. Enter what you read, in "
         "millimetres, or press Up and Down until the drawing looks like the sheet.");
const Text kHowToReadCreases =
    text("To place the front on the paper as well, fold a sheet left edge on right edge, and then "
         "top on bottom. Enter where each crease crosses the ruler on the front. Without these "
         "numbers, the front stays where it is.");
std::string alignmentStored(const std::string &settings) {
  return text("The next jobs with these settings start with the offsets: {1}. To check, print the "
              "sheets again: the lines at 0 should meet.")
      .with(settings);
}

} // namespace imageposition::messages
