/// Texts in the picture, where there is little room.
#ifndef IMAGEPOSITION_HOST_PICTURETEXTS_HPP
#define IMAGEPOSITION_HOST_PICTURETEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// In the picture, where there is little room.
extern const Text kPreviewFront;
extern const Text kPreviewBack;
extern const Text kPreviewAgainstLight;
extern const Text kPreviewToScale;
extern const Text kPreviewNotShifted;
extern const Text kPreviewPrintable;
extern const Text kPreviewLost;
extern const Text kPreviewLongEdge;
extern const Text kPreviewShortEdge;
extern const Text kPreviewMarksCoincide;
extern const Text kPreviewEnlarged;
std::string previewSquare(const std::string &length);
std::string previewMarksApart(const std::string &arrows);

} // namespace imageposition::messages

#endif
