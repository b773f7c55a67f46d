#include "Availability.hpp"

#include "Phrases.hpp"
#include "SharedKeys.h"
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
  availability.oneSided = isMarked(ppd, IPA_OPTION_TWO_SIDED, IPA_CHOICE_ONE_SIDED);
  availability.bannerPages = isMarked(ppd, IPA_OPTION_BANNER_PAGES, IPA_CHOICE_BANNER_PAGES_ON);
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
