/// The ink on a page, as it can be laid over the ink on the other side.
#ifndef IMAGEPOSITION_CORE_PAGES_PAGEINK_HPP
#define IMAGEPOSITION_CORE_PAGES_PAGEINK_HPP

#include "PageRenderer.hpp"

#include <cstdint>
#include <vector>

namespace imageposition {

struct PageInk {
  int width = 0, height = 0; ///< In pixels; 0 for a page that could not be rendered.
  Point pageWidth, pageHeight;
  /// In memory, each pixel is four bytes: red, green, blue, all multiplied by the opacity, and the
  /// opacity. Rows from the top, `width` times `height` pixels. Paper is transparent.
  std::vector<std::uint32_t> pixels;
};

/// Reuses the page's memory. On white paper, the least of the three colours is what the ink
/// lets through of all of them.
PageInk inkOn(RenderedPage page);

} // namespace imageposition

#endif
