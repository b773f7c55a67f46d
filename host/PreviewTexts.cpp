#include "host/PreviewTexts.hpp"

namespace imageposition::messages {

const Text kTwoSidedOff = text("Two-sided printing is off.");
const Text kBannerPagesOn = text("Banner pages are on.");

const Text kPreviewFront = text("Front");
const Text kPreviewBack = text("Back");
const Text kPreviewAgainstLight = text("Against the light");
const Text kPreviewToScale = text("to scale");
const Text kPreviewNotShifted = text("not shifted");
const Text kPreviewPrintable = text("printable area");
const Text kPreviewLost = text("cannot be printed");
const Text kPreviewLongEdge = text("turned: long edge");
const Text kPreviewShortEdge = text("turned: short edge");
const Text kPreviewMarksCoincide = text("Back lies exactly behind front");

const Text kPreviewEnlarged = text("Against the light, enlarged");

std::string previewSquare(const std::string &length) { return "1 square = " + length; }

std::string previewMarksApart(const std::string &arrows) { return "Back behind front: " + arrows; }

const Text kPreviewSizeUnknown =
    text("The printer does not say how large the page is; A4 is shown.");
const Text kPreviewImageableUnknown =
    text("The printer does not say where on the page it can print; the whole page is assumed.");
const Text kPreviewNothingMoved = text("Neither side is moved.");

std::string previewFrontMoved(const std::string &directions) {
  return "The front is moved " + directions + ".";
}

std::string previewBackMoved(const std::string &directions) {
  return "The back is moved " + directions + " as its reader sees it.";
}

std::string previewBothMoved(const std::string &directions) {
  return "Each side is moved " + directions + " as its reader sees it.";
}

std::string previewBackAgainstFront(const std::string &directions) {
  return "Held against the light, the back is moved " + directions + " against the front.";
}

const Text kPreviewSidesCoincide =
    text("Held against the light, the back lies exactly behind the front.");

std::string previewFrontLoses(const std::string &edges) {
  return "A front that fills its printable area loses " + edges + ".";
}

std::string previewBackLoses(const std::string &edges) {
  return "A back that fills its printable area loses " + edges + ".";
}

std::string toTheRight(const std::string &length) { return length + " to the right"; }
std::string toTheLeft(const std::string &length) { return length + " to the left"; }
std::string downwards(const std::string &length) { return length + " down"; }
std::string upwards(const std::string &length) { return length + " up"; }
std::string atTheRight(const std::string &length) { return length + " at the right"; }
std::string atTheLeft(const std::string &length) { return length + " at the left"; }
std::string atTheBottom(const std::string &length) { return length + " at the bottom"; }
std::string atTheTop(const std::string &length) { return length + " at the top"; }

std::string listed(const std::vector<std::string> &items) {
  std::string text;
  for (const std::string &item : items)
    text += (text.empty() ? "" : " and ") + item;
  return text;
}

} // namespace imageposition::messages
