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

std::string previewSquare(const std::string &length) { return text("1 square = {1}").with(length); }

std::string previewMarksApart(const std::string &arrows) {
  return text("Back behind front: {1}").with(arrows);
}

const Text kPreviewSizeUnknown =
    text("The printer does not say how large the page is; A4 is shown.");
const Text kPreviewImageableUnknown =
    text("The printer does not say where on the page it can print; the whole page is assumed.");
const Text kPreviewNothingMoved = text("Neither side is moved.");

std::string previewFrontMoved(const std::string &directions) {
  return text("The front is moved {1}.").with(directions);
}

std::string previewBackMoved(const std::string &directions) {
  return text("The back is moved {1} as its reader sees it.").with(directions);
}

std::string previewBothMoved(const std::string &directions) {
  return text("Each side is moved {1} as its reader sees it.").with(directions);
}

std::string previewBackAgainstFront(const std::string &directions) {
  return text("Held against the light, the back is moved {1} against the front.").with(directions);
}

const Text kPreviewSidesCoincide =
    text("Held against the light, the back lies exactly behind the front.");

std::string previewFrontLoses(const std::string &edges) {
  return text("A front that fills its printable area loses {1}.").with(edges);
}

std::string previewBackLoses(const std::string &edges) {
  return text("A back that fills its printable area loses {1}.").with(edges);
}

std::string toTheRight(const std::string &length) { return text("{1} to the right").with(length); }
std::string toTheLeft(const std::string &length) { return text("{1} to the left").with(length); }
std::string downwards(const std::string &length) { return text("{1} down").with(length); }
std::string upwards(const std::string &length) { return text("{1} up").with(length); }
std::string atTheRight(const std::string &length) { return text("{1} at the right").with(length); }
std::string atTheLeft(const std::string &length) { return text("{1} at the left").with(length); }
std::string atTheBottom(const std::string &length) {
  return text("{1} at the bottom").with(length);
}
std::string atTheTop(const std::string &length) { return text("{1} at the top").with(length); }

std::string sentences(const std::vector<std::string> &parts) {
  std::string whole;
  for (const std::string &part : parts) {
    if (whole.empty())
      whole = part;
    else if (!part.empty()) // Translators: two sentences after each other
      whole = text("{1} {2}").with(whole, part);
  }
  return whole;
}

std::string decimalNumber(const std::string &whole, const std::string &tenths) {
  // Translators: a number, such as 2.5, with the sign that separates its tenths.
  return text("{1}.{2}").with(whole, tenths);
}

std::string inMillimetres(const std::string &number) { return text("{1} mm").with(number); }

} // namespace imageposition::messages
