/// How two pictures of the screen differ.
#ifndef IMAGEPOSITION_BENCH_DIFFERENCE_HPP
#define IMAGEPOSITION_BENCH_DIFFERENCE_HPP

#include "WatchedScreen.hpp"

namespace imageposition::bench {

struct Difference {
  int pixels = 0; ///< Pixels that differ from the later picture.
  int edges = 0;  ///< Those among them that are edges (a change of colour) in the later picture.
  int allEdges = 0;

  /// Three quarters of the edges are there: most text and controls.
  bool isPainted() const { return edges * 4 <= allEdges; }
};

Difference difference(const Picture &now, const Picture &later, const Rectangle &where);

} // namespace imageposition::bench

#endif
