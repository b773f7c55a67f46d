/// Whether a printer can shift a job's image as the job stands, and if not, why.
#ifndef IMAGEPOSITION_HOST_AVAILABILITY_HPP
#define IMAGEPOSITION_HOST_AVAILABILITY_HPP

#include <cups/ppd.h>

#include <string>

namespace imageposition {

/// What stands in the way of shifting the image. The same two choices as the panel asks for, with
/// the same exact comparison; an option that the printer lacks stands in nobody's way.
struct Availability {
  bool oneSided = false;    ///< The marked "Duplex" is "None".
  bool bannerPages = false; ///< The marked "MVBannerPagePrint" is "True".

  bool isAvailable() const noexcept { return !oneSided && !bannerPages; }
};

inline bool operator==(const Availability &a, const Availability &b) noexcept {
  return a.oneSided == b.oneSided && a.bannerPages == b.bannerPages;
}
inline bool operator!=(const Availability &a, const Availability &b) noexcept { return !(a == b); }

/// From the marked choices; `ppd` may be null, and then nothing is in the way.
Availability availabilityOf(ppd_file_t *ppd);

/// One sentence for each thing that is in the way; empty when nothing is.
std::string reasonText(const Availability &availability);

/// The same with what to do about it on the command line.
std::string adviceText(const Availability &availability);

} // namespace imageposition

#endif
