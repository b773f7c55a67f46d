#include "AlignmentTexts.hpp"

#include "MeasureTexts.hpp"
#include "Phrases.hpp"

namespace imageposition::messages {

std::string alignmentsUnreadable(const std::string &path, const std::string &reason) {
  return text("Cannot read the measurements in \"{1}\": {2}. Jobs start without them.")
      .with(path, reason);
}
std::string alignmentsUnwritable(const std::string &path, const std::string &reason) {
  return text("Cannot save the measurements in \"{1}\": {2}.").with(path, reason);
}
// Translators: a reason, after a colon.
const Text kNotAlignments = text("print-dialog did not write this file");
const Text kNoHomeForAlignments =
    text("Cannot save the measurements: HOME is not set. Set it to your home folder.");

std::string turningInWords(Turning turning) {
  // Translators: how the printer turns a sheet between its two sides.
  return turning == Turning::ShortEdge ? text("turned about the short edge")
                                       : text("turned about the long edge");
}
std::string offsetInWords(const Offset &offset) {
  // Translators: how far the image moves; negative lengths are to the left and up.
  return text("right {1}, down {2}").with(lengthText(offset.right), lengthText(offset.down));
}
std::string offsetsInWords(const SideOffsets &offsets) {
  return text("front: {1}; back: {2}")
      .with(offsetInWords(offsets.front), offsetInWords(offsets.back));
}
std::string alignment(const std::string &key, const std::string &offsets, const std::string &date) {
  // Translators: {1} paper, tray and turning, {2} offsets, {3} a date.
  return text("{1}: {2} (measured on {3})").with(key, offsets, date);
}
std::string measuredOn(const std::string &date, const std::string &key, bool isOfOtherTurning) {
  if (isOfOtherTurning)
    return text("The offsets were measured on {1} for the long edge, and are turned for the short "
                "edge ({2}).")
        .with(date, key);
  return text("The offsets were measured on {1} with these settings ({2}).").with(date, key);
}

std::string numberNotOnScale(TenthMillimetre lowest, TenthMillimetre highest) {
  return text("Enter a number from {1} to {2}.").with(numberText(lowest), numberText(highest));
}
const Text kSheetIncomplete = text("Enter all four numbers of the sheet, or none.");
const Text kCreaseIncomplete = text("Enter both numbers, or none.");
const Text kNothingRead = text("Enter the four numbers of at least one sheet.");

const Text kSheetTitle = text("Alignment sheet");
const Text kFrontOfSheet = textIn("alignment sheet", "Front");
const Text kBackOfSheet = textIn("alignment sheet", "Back");
std::string sheetNumber(int number, int count) {
  return text("Sheet {1} of {2}. This edge is up.").with(number, count);
}
std::string sheetPrinter(const std::string &name) { return text("Printer: {1}").with(name); }
std::string sheetPaper(const std::string &paper) { return text("Paper: {1}").with(paper); }
std::string sheetTray(const std::string &tray) { return text("Tray: {1}").with(tray); }
std::string sheetTurning(Turning turning) {
  return text("Two-sided: {1}").with(turningInWords(turning));
}
std::string sheetDate(const std::string &date) { return text("Printed on {1}").with(date); }
std::string sheetOffsets(const Offset &offset) {
  return text("Offsets of this side: {1}").with(offsetInWords(offset));
}
std::string sheetExample() {
  // Translators: below a drawing of a vernier.
  return text("Example: {1} and {2} make {3}")
      .with(std::string("2"),
            std::string("\xe2\x88\x92"
                        "3"),
            decimalNumber("1", "7"));
}
const std::array<Text, 2> kFrontAdvice = {
    text("The combs are mirrored on this side. Read them from the back, against the light."),
    text(
        "To place the front on the paper as well, fold the sheet left edge on right edge, and then "
        "top on bottom. Each crease crosses a ruler in the middle: note the two numbers there.")};
const std::array<Text, 4> kBackAdvice = {
    text("Hold the sheet against the light, with this side towards you and this edge up. The "
         "front's combs shine through and meet the combs of this side."),
    text("Whole millimetres: to which line of the front's comb, from \xe2\x88\x92"
         "10 to 10, is "
         "the line with the triangle nearest?"),
    text("Tenths: which line of this side's comb, from \xe2\x88\x92"
         "5 to 5, continues a line of "
         "the front's comb? Add that many tenths. The lines at both ends, 5 and \xe2\x88\x92"
         "5, "
         "mean half a millimetre between two whole ones."),
    text("Note the four numbers in this order: A\xc2\xa0\xe2\x86\x92, A\xc2\xa0\xe2\x86\x93, "
         "B\xc2\xa0\xe2\x86\x92, B\xc2\xa0\xe2\x86\x93.")};

} // namespace imageposition::messages
