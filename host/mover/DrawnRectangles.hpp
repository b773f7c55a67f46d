/// Finds what a page draws without rendering it.
#ifndef IMAGEPOSITION_MOVER_DRAWNRECTANGLES_HPP
#define IMAGEPOSITION_MOVER_DRAWNRECTANGLES_HPP

#include "FileContent.hpp"
#include "PreviewGeometry.hpp"

#include <vector>

namespace imageposition {

struct DrawnPage {
  Point width; ///< As shown, so after its rotation.
  Point height;
  /// In the order of drawing. A rectangle rotated by anything but a multiple of 90 degrees is
  /// replaced by its bounding box.
  std::vector<PageRectangle> rectangles;
};

/// Reads the rectangles ("re") in the contents of all pages and of the forms that they draw, up to
/// a few thousand. Throws a `PdfTrouble`.
std::vector<DrawnPage> drawnRectangles(const Descriptor &file);

} // namespace imageposition

#endif
