/// Every text of the picture beside the panel, and of why its offsets cannot be used.
#ifndef IMAGEPOSITION_HOST_PREVIEWTEXTS_HPP
#define IMAGEPOSITION_HOST_PREVIEWTEXTS_HPP

#include "host/Text.hpp"

#include <string>
#include <vector>

namespace imageposition::messages {

// Why the adjustment is not available.
extern const Text kTwoSidedOff;
extern const Text kBannerPagesOn;

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

// In words.
extern const Text kPreviewSizeUnknown;
extern const Text kPreviewImageableUnknown;
extern const Text kPreviewNothingMoved;
std::string previewFrontMoved(const std::string &directions);
std::string previewBackMoved(const std::string &directions);
std::string previewBothMoved(const std::string &directions);
std::string previewBackAgainstFront(const std::string &directions);
extern const Text kPreviewSidesCoincide;
std::string previewFrontLoses(const std::string &edges);
std::string previewBackLoses(const std::string &edges);

/// "2.5 mm to the right" and its like; the length has its unit.
std::string toTheRight(const std::string &length);
std::string toTheLeft(const std::string &length);
std::string downwards(const std::string &length);
std::string upwards(const std::string &length);
std::string atTheRight(const std::string &length);
std::string atTheLeft(const std::string &length);
std::string atTheBottom(const std::string &length);
std::string atTheTop(const std::string &length);

/// Sentences after each other, without the empty ones.
std::string sentences(const std::vector<std::string> &parts);

/// "2.5" of "2" and "5".
std::string decimalNumber(const std::string &whole, const std::string &tenths);
std::string inMillimetres(const std::string &number);

} // namespace imageposition::messages

#endif
