#include "Availability.hpp"

#include "Phrases.hpp"
#include "ShiftTexts.hpp"

#include <cstring>

namespace imageposition {
namespace {

bool isMarked(ppd_file_t *ppd, const char *option, const char *keyword) {
  const ppd_choice_t *const choice = ppdFindMarkedChoice(ppd, option);
  return choice != nullptr && std::strcmp(choice->choice, keyword) == 0;
}

} // namespace

Availability availabilityOf(ppd_file_t *ppd) {
  Availability availability;
  availability.oneSided = isMarked(ppd, "Duplex", "None");
  availability.bannerPages = isMarked(ppd, "MVBannerPagePrint", "True");
  return availability;
}

std::string reasonText(const Availability &availability) {
  return messages::sentences({availability.oneSided ? messages::kTwoSidedOff.str() : "",
                              availability.bannerPages ? messages::kBannerPagesOn.str() : ""});
}

std::string adviceText(const Availability &availability) {
  return messages::sentences(
      {availability.oneSided ? messages::kTwoSidedOff.str() : "",
       availability.oneSided ? messages::kChooseTwoSided.str() : "",
       availability.bannerPages ? messages::kBannerPagesOn.str() : "",
       availability.bannerPages ? messages::kSwitchBannerPagesOff.str() : ""});
}

} // namespace imageposition
