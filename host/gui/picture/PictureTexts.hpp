/// Strings in the picture, which has little room for them.
#ifndef IMAGEPOSITION_GUI_PICTURE_PICTURETEXTS_HPP
#define IMAGEPOSITION_GUI_PICTURE_PICTURETEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

extern const Text kPreviewFront;
extern const Text kPreviewBack;
extern const Text kPreviewAgainstLight;
extern const Text kPreviewToScale;
extern const Text kPreviewNotShifted;
extern const Text kPreviewPrintable;
extern const Text kPreviewLost;
extern const Text kPreviewLongEdge;
extern const Text kPreviewShortEdge;
extern const Text kPreviewEnlarged;
extern const Text kPreviousSheet;
extern const Text kNextSheet;
// What the settings do; where the sides really lie is unknown.
extern const Text kPreviewNothingMoves;
extern const Text kPreviewMovesTogether;
std::string previewSquare(const std::string &length);
/// `arrows` say how far the back moves against the front.
std::string previewMoves(const std::string &arrows);

} // namespace imageposition::messages

#endif
