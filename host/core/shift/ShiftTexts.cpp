#include "ShiftTexts.hpp"

namespace imageposition::messages {

const Text kChooseTwoSided = text("Turn it on, for example with -o Duplex=DuplexNoTumble.");
const Text kSwitchBannerPagesOff = text("Turn them off with -o MVBannerPagePrint=False.");
const Text kTwoSidedOff = text("Two-sided printing is off.");
const Text kBannerPagesOn = text("Banner pages are on.");
const Text kPreviewSizeUnknown = text("The printer does not report the page size. A4 is shown.");
const Text kPreviewImageableUnknown =
    text("The printer does not report its printable area. The whole page is assumed.");
const Text kPreviewNothingMoved = text("Neither side moves.");
std::string previewFrontMoved(const std::string &directions) {
  return text("The front moves {1}.").with(directions);
}
std::string previewBackMoved(const std::string &directions) {
  return text("The back moves {1}, as you look at the back.").with(directions);
}
std::string previewBothMoved(const std::string &directions) {
  return text("Each side moves {1}, as you look at that side.").with(directions);
}
std::string previewBackAgainstFront(const std::string &directions) {
  return text("Against the light, with the back towards you, the back moves {1} relative to the "
              "front.")
      .with(directions);
}
const Text kPreviewSidesTogether = text("Against the light, both sides move together.");
std::string previewFrontLoses(const std::string &edges) {
  return text("A front that fills its printable area loses {1}.").with(edges);
}
std::string previewBackLoses(const std::string &edges) {
  return text("A back that fills its printable area loses {1}.").with(edges);
}
const Text kPreviewUprightSheet = text("The offsets are those of the upright sheet.");
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

} // namespace imageposition::messages
