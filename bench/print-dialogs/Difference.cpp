#include "Difference.hpp"

namespace imageposition::bench {

Difference difference(const Picture &now, const Picture &later, const Rectangle &where) {
  Difference found;
  for (int y = where.top + 1; y < where.top + where.height; y++)
    for (int x = where.left + 1; x < where.left + where.width; x++) {
      const auto pixel = later.at(x, y);
      const bool isEdge = pixel != later.at(x - 1, y) || pixel != later.at(x, y - 1);
      const bool differs = pixel != now.at(x, y);
      found.allEdges += isEdge;
      found.pixels += differs;
      found.edges += isEdge && differs;
    }
  return found;
}

} // namespace imageposition::bench
