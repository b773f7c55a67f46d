/// What is said about the offsets and where they move the image.
#ifndef IMAGEPOSITION_HOST_SHIFTTEXTS_HPP
#define IMAGEPOSITION_HOST_SHIFTTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// Values.
extern const Text kChooseTwoSided;
extern const Text kSwitchBannerPagesOff;

// Why the adjustment is not available.
extern const Text kTwoSidedOff;
extern const Text kBannerPagesOn;

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

} // namespace imageposition::messages

#endif
