/// The layout of the picture next to the panel, in pixels.
#ifndef IMAGEPOSITION_CORE_SHIFT_PREVIEWLAYOUT_HPP
#define IMAGEPOSITION_CORE_SHIFT_PREVIEWLAYOUT_HPP

#include "PreviewGeometry.hpp"

#include <array>
#include <cstddef>

namespace imageposition {

/// Measured from the picture's upper-left corner, downwards.
struct Pixel {
  double x = 0;
  double y = 0;
};

struct PixelRectangle {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  double right() const noexcept { return x + width; }
  double bottom() const noexcept { return y + height; }
  bool contains(const Pixel &pixel) const noexcept {
    return pixel.x >= x && pixel.x < right() && pixel.y >= y && pixel.y < bottom();
  }
};

struct PictureSize {
  double width = 0;
  double height = 0;
  double lineHeight = 0; ///< Of the small font.
};

/// The smallest size at which everything is legible.
PictureSize preferredPictureSize(double lineHeight);

/// One of the pages in the upper row.
struct PagePlace {
  PixelRectangle title;
  PixelRectangle page; ///< Aligned to whole pixels.
  PixelRectangle caption;
};

/// The pages, to scale, in a row, and below them an enlargement of the centre of the sheet.
struct PreviewLayout {
  enum Place : std::size_t { Front, Back, AgainstLight };

  std::array<PagePlace, 3> pages;
  double pixelsPerPoint = 0;
  PixelRectangle legend;
  PixelRectangle note; ///< About landscape pages; empty if there are none.
  PixelRectangle enlargedTitle;
  PixelRectangle grid; ///< Unshifted marks are at its centre.
  PixelRectangle relation;
  int squarePixels = 0;         ///< The side of a grid square on the screen ...
  TenthMillimetre squareLength; ///< ... and on paper. Grows in steps with the offsets.

  Pixel gridCentre() const noexcept;
  /// The interval between numbers on the axes: an even count that keeps numbers of that width
  /// apart.
  int squaresPerNumber(double width) const noexcept;
  /// Where to draw a mark that is shifted by `offset`.
  Pixel mark(const Offset &offset) const noexcept;
  /// Where to put a label of that size beside a mark: on the wanted side and, unless that covers a
  /// rectangle in `taken`, on another one. Inside the grid.
  PixelRectangle labelPlace(const Pixel &mark, const PixelRectangle &size, bool toTheLeft,
                            bool above, const std::vector<PixelRectangle> &taken) const;
  PixelRectangle onPage(Place place, const PageRectangle &rectangle) const noexcept;
  /// Where the image of a page of that size is printed: in the middle of the sheet, and shifted.
  /// Aligned to whole pixels.
  PixelRectangle imageOnPage(Place place, Point width, Point height,
                             const Offset &offset) const noexcept;
};

/// One of the pages alone, as large as fits into `room`; the other areas are empty.
PreviewLayout layOutOnePage(const Preview &preview, PreviewLayout::Place place,
                            const PixelRectangle &room);

/// If the picture is too small for its labels, areas become empty, never negative in size.
PreviewLayout layOutPreview(const Preview &preview, const PictureSize &size);

} // namespace imageposition

#endif
