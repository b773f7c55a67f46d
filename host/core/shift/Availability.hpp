/// Whether the image of a job can be shifted with its current settings, and why not.
#ifndef IMAGEPOSITION_CORE_SHIFT_AVAILABILITY_HPP
#define IMAGEPOSITION_CORE_SHIFT_AVAILABILITY_HPP

#include <cups/ppd.h>

#include <string>

namespace imageposition {

/// The settings that prevent shifting the image. Checks the same two choices as the panel, with the
/// same case-sensitive comparison; an option that the printer lacks prevents nothing.
struct Availability {
  bool oneSided = false;    ///< The marked "Duplex" is "None".
  bool bannerPages = false; ///< The marked "MVBannerPagePrint" is "True".

  bool isAvailable() const noexcept { return !oneSided && !bannerPages; }
};

inline bool operator==(const Availability &a, const Availability &b) noexcept {
  return a.oneSided == b.oneSided && a.bannerPages == b.bannerPages;
}
inline bool operator!=(const Availability &a, const Availability &b) noexcept { return !(a == b); }

/// From the marked choices. If `ppd` is null, the shift is available.
Availability availabilityOf(ppd_file_t *ppd);

/// One sentence for each obstacle; empty if there is none.
std::string reasonText(const Availability &availability);

/// The same, with the command-line option that removes each obstacle.
std::string adviceText(const Availability &availability);

} // namespace imageposition

#endif
