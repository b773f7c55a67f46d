#include "PictureTexts.hpp"

namespace imageposition::messages {

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

} // namespace imageposition::messages
