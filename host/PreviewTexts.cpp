#include "host/PreviewTexts.hpp"

namespace imageposition::messages {

const char *const kTwoSidedOff = "Two-sided printing is off.";
const char *const kBannerPagesOn = "Banner pages are on.";

const char *const kPreviewFront = "Front";
const char *const kPreviewBack = "Back";
const char *const kPreviewAgainstLight = "Against the light";
const char *const kPreviewToScale = "to scale";
const char *const kPreviewNotShifted = "not shifted";
const char *const kPreviewPrintable = "printable area";
const char *const kPreviewLost = "cannot be printed";
const char *const kPreviewLongEdge = "turned: long edge";
const char *const kPreviewShortEdge = "turned: short edge";
const char *const kPreviewMarksCoincide = "Back lies exactly behind front";

const char *const kPreviewEnlarged = "Against the light, enlarged";

std::string previewSquare(const std::string &length) { return "1 square = " + length; }

std::string previewMarksApart(const std::string &arrows) { return "Back behind front: " + arrows; }

const char *const kPreviewSizeUnknown =
    "The printer does not say how large the page is; A4 is shown.";
const char *const kPreviewImageableUnknown =
    "The printer does not say where on the page it can print; the whole page is assumed.";
const char *const kPreviewNothingMoved = "Neither side is moved.";

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

const char *const kPreviewSidesCoincide =
    "Held against the light, the back lies exactly behind the front.";

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
