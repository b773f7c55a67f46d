/// Where a job's content will be on the sheet: what the picture beside the panel shows.
#ifndef IMAGEPOSITION_HOST_PREVIEWGEOMETRY_HPP
#define IMAGEPOSITION_HOST_PREVIEWGEOMETRY_HPP

#include "Availability.hpp"
#include "PrintSettingsStore.hpp"
#include "Units.hpp"

#include <cups/ppd.h>

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// How far an image is moved, as the reader of that side sees it.
struct Offset {
  TenthMillimetre right;
  TenthMillimetre down;
};

/// On a page, from its upper left corner, downwards.
struct PageRectangle {
  Point left;
  Point top;
  Point right;
  Point bottom;
};

/// The edge about which the sheet is turned between its two sides. That edge runs down the page or
/// across it depending on the page's own shape.
enum class Turning { OneSided, LongEdge, ShortEdge };

/// A page, unshifted.
struct PageShape {
  Point width;
  Point height;
  PageRectangle imageable;      ///< Where the printer can print; inside the page.
  bool isSizeKnown = true;      ///< Otherwise an A4 page stands in.
  bool isImageableKnown = true; ///< Otherwise `imageable` is the whole page.
};

/// All that the picture depends on.
struct PreviewRequest {
  PageShape page;
  Turning turning = Turning::LongEdge;
  Offset front;
  Offset back; ///< The front's unless the job gives the back offsets of its own.
  Availability availability;
};

/// One side, in the coordinates of whoever looks at it.
struct SidePreview {
  Offset offset;
  PageRectangle imageable;
  /// What fills the imageable area of an unshifted page, where it really comes to lie; it can reach
  /// beyond the page.
  PageRectangle content;
  /// The parts of `content` outside `imageable`; they do not overlap.
  std::vector<PageRectangle> lost;
};

struct Preview {
  PageShape page;
  Turning turning = Turning::LongEdge;
  Availability availability;
  SidePreview front;
  /// As the reader of the back sees it. None for one-sided printing.
  std::optional<SidePreview> back;
  /// The back as it lies behind the front when the sheet is held against the light, front towards
  /// the reader: mirrored left-right or top-bottom. None for one-sided printing.
  std::optional<SidePreview> backSeenThrough;
};

bool operator==(const Offset &a, const Offset &b) noexcept;
bool operator==(const PageRectangle &a, const PageRectangle &b) noexcept;
bool operator==(const SidePreview &a, const SidePreview &b) noexcept;
bool operator==(const Preview &a, const Preview &b) noexcept;
inline bool operator!=(const Preview &a, const Preview &b) noexcept { return !(a == b); }

/// Reads the job's settings and the printer's marked choices. A missing offset, or a text that is
/// no number, is 0; the back has offsets of its own only with the enable flag "True". Without a
/// usable "Duplex" choice the sheet is taken to be turned about its long edge. `ppd` may be null.
PreviewRequest readPreviewRequest(const PrintSettingsStore &job, ppd_file_t *ppd);

/// While the adjustment is not available nothing is shifted.
Preview makePreview(const PreviewRequest &request);

/// Both steps.
Preview makePreview(const PrintSettingsStore &job, ppd_file_t *ppd);

/// Whether the edge about which the sheet is turned runs down the page, so that the back is
/// mirrored left-right. The long edges of a page that is wider than high run across it.
bool turnsAboutVerticalAxis(const PageShape &page, Turning turning) noexcept;

/// How far the back lies from where it would be exactly behind the front, as the reader of the
/// front sees it through the sheet. Zero for one-sided printing.
Offset backAgainstFront(const Preview &preview);

/// The picture in sentences, one an element, for whoever cannot see it and for the tool tip.
std::vector<std::string> describePreview(const Preview &preview);

} // namespace imageposition

#endif
