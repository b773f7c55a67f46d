/// Every text of the picture beside the panel, and of why its offsets cannot be used.
#ifndef IMAGEPOSITION_HOST_PREVIEWTEXTS_HPP
#define IMAGEPOSITION_HOST_PREVIEWTEXTS_HPP

#include <string>
#include <vector>

namespace imageposition::messages {

// Why the adjustment is not available.
extern const char *const kTwoSidedOff;
extern const char *const kBannerPagesOn;

// In the picture, where there is little room.
extern const char *const kPreviewFront;
extern const char *const kPreviewBack;
extern const char *const kPreviewAgainstLight;
extern const char *const kPreviewToScale;
extern const char *const kPreviewNotShifted;
extern const char *const kPreviewPrintable;
extern const char *const kPreviewLost;
extern const char *const kPreviewLongEdge;
extern const char *const kPreviewShortEdge;
extern const char *const kPreviewMarksCoincide;
extern const char *const kPreviewEnlarged;
std::string previewSquare(const std::string &length);
std::string previewMarksApart(const std::string &arrows);

// In words.
extern const char *const kPreviewSizeUnknown;
extern const char *const kPreviewImageableUnknown;
extern const char *const kPreviewNothingMoved;
std::string previewFrontMoved(const std::string &directions);
std::string previewBackMoved(const std::string &directions);
std::string previewBothMoved(const std::string &directions);
std::string previewBackAgainstFront(const std::string &directions);
extern const char *const kPreviewSidesCoincide;
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

/// "a and b"; one alone as it is.
std::string listed(const std::vector<std::string> &items);

} // namespace imageposition::messages

#endif
