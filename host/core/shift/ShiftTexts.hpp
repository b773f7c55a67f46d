/// Messages about the offsets and the resulting shift of the image.
#ifndef IMAGEPOSITION_CORE_SHIFT_SHIFTTEXTS_HPP
#define IMAGEPOSITION_CORE_SHIFT_SHIFTTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// What to do about it.
extern const Text kChooseTwoSided;
extern const Text kSwitchBannerPagesOff;

// Why the adjustment is not available.
extern const Text kTwoSidedOff;
extern const Text kBannerPagesOn;

// Descriptions of the preview.
extern const Text kPreviewSizeUnknown;
extern const Text kPreviewImageableUnknown;
extern const Text kPreviewNothingMoved;
std::string previewFrontMoved(const std::string &directions);
std::string previewBackMoved(const std::string &directions);
std::string previewBothMoved(const std::string &directions);
std::string previewBackAgainstFront(const std::string &directions);
extern const Text kPreviewSidesTogether;
std::string previewFrontLoses(const std::string &edges);
std::string previewBackLoses(const std::string &edges);
/// For landscape pages on an upright sheet. Also a line in the picture.
extern const Text kPreviewUprightSheet;

/// For example "2.5 mm to the right"; `length` includes its unit.
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
