/// Where the picture beside the panel draws what, in pixels.
#ifndef IMAGEPOSITION_HOST_PREVIEWLAYOUT_HPP
#define IMAGEPOSITION_HOST_PREVIEWLAYOUT_HPP

#include "PreviewGeometry.hpp"

#include <array>
#include <cstddef>

namespace imageposition {

/// From the picture's upper left corner, downwards.
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
  double lineHeight = 0; ///< Of the small texts.
};

/// From this size on everything is legible.
PictureSize preferredPictureSize(double lineHeight);

/// One of the pages in the upper row.
struct PagePlace {
  PixelRectangle title;
  PixelRectangle page; ///< At whole pixels.
  PixelRectangle caption;
};

/// The pages to scale, in a row, and below them the centre of the sheet enlarged.
struct PreviewLayout {
  enum Place : std::size_t { Front, Back, AgainstLight };

  std::array<PagePlace, 3> pages;
  double pixelsPerPoint = 0;
  PixelRectangle legend;
  PixelRectangle enlargedTitle;
  PixelRectangle grid; ///< Its centre is where the marks are when nothing is shifted.
  PixelRectangle relation;
  int squarePixels = 0;         ///< A square of the grid: its side on the screen ...
  TenthMillimetre squareLength; ///< ... and on paper. Grows in steps with the offsets.

  Pixel gridCentre() const noexcept;
  /// From one number on the axes to the next: an even count, so that numbers of that width stay
  /// apart.
  int squaresPerNumber(double width) const noexcept;
  /// Where a mark that is moved by `offset` is drawn.
  Pixel mark(const Offset &offset) const noexcept;
  PixelRectangle onPage(Place place, const PageRectangle &rectangle) const noexcept;
};

/// A picture that is too small for its texts gets empty places, never ones of negative size.
PreviewLayout layOutPreview(const Preview &preview, const PictureSize &size);

} // namespace imageposition

#endif
