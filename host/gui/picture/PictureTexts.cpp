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
const Text kPreviewNothingMoves = text("As set: nothing moves");
const Text kPreviewMovesTogether = text("As set: both sides move together");
const Text kPreviewEnlarged = text("Back towards you, enlarged");
const Text kPreviousSheet = text("Previous sheet");
const Text kNextSheet = text("Next sheet");
std::string previewSquare(const std::string &length) { return text("1 square = {1}").with(length); }
std::string previewMoves(const std::string &arrows) {
  return text("As set: the back moves {1}").with(arrows);
}

} // namespace imageposition::messages
