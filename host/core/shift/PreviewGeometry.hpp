/// Where a job's content will be on the sheet, for the picture next to the panel.
#ifndef IMAGEPOSITION_CORE_SHIFT_PREVIEWGEOMETRY_HPP
#define IMAGEPOSITION_CORE_SHIFT_PREVIEWGEOMETRY_HPP

#include "Availability.hpp"
#include "PrintSettingsStore.hpp"
#include "Units.hpp"

#include <cups/ppd.h>

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// The shift of an image, as seen by the reader of that side.
struct Offset {
  TenthMillimetre right;
  TenthMillimetre down;
};

/// On a page, measured from its upper-left corner, downwards.
struct PageRectangle {
  Point left;
  Point top;
  Point right;
  Point bottom;
};

/// The edge about which the sheet is turned between its two sides. It runs down or across the page,
/// depending on the page's shape.
enum class Turning { OneSided, LongEdge, ShortEdge };

/// A page, unshifted.
struct PageShape {
  Point width;
  Point height;
  PageRectangle imageable;      ///< Where the printer can print; inside the page.
  bool isSizeKnown = true;      ///< If false, the size is that of A4.
  bool isImageableKnown = true; ///< If false, `imageable` is the whole page.
};

/// Everything that the picture depends on.
struct PreviewRequest {
  PageShape page;
  Turning turning = Turning::LongEdge;
  Offset front;
  Offset back; ///< Equals `front` unless the job has separate back offsets.
  Availability availability;
  /// Whether the pages lie on their side on the sheet, of which the offsets are nevertheless.
  bool hasLandscapePages = false;
};

/// One side, as seen by its reader.
struct SidePreview {
  Offset offset;
  PageRectangle imageable;
  /// Where content that fills the imageable area of an unshifted page is printed; it can extend
  /// beyond the page.
  PageRectangle content;
  /// The parts of `content` outside `imageable`; they do not overlap.
  std::vector<PageRectangle> lost;
};

struct Preview {
  PageShape page;
  Turning turning = Turning::LongEdge;
  Availability availability;
  bool hasLandscapePages = false; ///< On an upright sheet.
  SidePreview front;
  /// As the reader of the back sees it. None for one-sided printing.
  std::optional<SidePreview> back;
  /// The front as it shines through the back when the sheet is held against the light, with the
  /// back towards the reader: mirrored left-right or top-bottom. None for one-sided printing.
  std::optional<SidePreview> frontSeenThrough;
};

bool operator==(const Offset &a, const Offset &b) noexcept;
bool operator==(const PageRectangle &a, const PageRectangle &b) noexcept;
bool operator==(const SidePreview &a, const SidePreview &b) noexcept;
bool operator==(const Preview &a, const Preview &b) noexcept;
inline bool operator!=(const Preview &a, const Preview &b) noexcept { return !(a == b); }

/// Reads the job's settings and the printer's marked choices. An offset that is missing or not a
/// number is 0. The back has separate offsets only if the enable flag is "True". Without a usable
/// "Duplex" choice, assumes that the sheet is turned about its long edge. `ppd` may be null.
PreviewRequest readPreviewRequest(const PrintSettingsStore &job, ppd_file_t *ppd);

/// Shifts nothing if the adjustment is not available.
Preview makePreview(const PreviewRequest &request);

/// Combines `readPreviewRequest` and `makePreview`.
Preview makePreview(const PrintSettingsStore &job, ppd_file_t *ppd);

/// Whether the edge about which the sheet is turned runs down the page, which mirrors the front
/// left-right. The long edges of a page that is wider than high run across it.
bool turnsAboutVerticalAxis(const PageShape &page, Turning turning) noexcept;

/// How far the settings move the back relative to the front, as the reader of the back sees it
/// against the light. Zero for one-sided printing.
Offset backAgainstFront(const Preview &preview);

/// Says by how much each side moves, in sentences.
std::vector<std::string> describeOffsets(const Offset &front, const Offset &back);

/// Says what content that fills the printable area loses: a sentence for each side that does.
std::vector<std::string> describeLosses(const Preview &preview);

/// Describes the picture, one sentence per element, for screen readers and the tool tip.
std::vector<std::string> describePreview(const Preview &preview);

} // namespace imageposition

#endif
