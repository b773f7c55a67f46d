/// Drawing at scales at which the platform's rounding shows.
#ifndef IMAGEPOSITION_HOST_REDRAWROUNDING_H
#define IMAGEPOSITION_HOST_REDRAWROUNDING_H

namespace imageposition {

/// Has each view be drawn once where it has to be. A view that shows its superview's ground is
/// drawn with that; where the scale is no whole number, the rectangle comes down to it too small by
/// the last digit of a number, the platform takes the rest for still to be drawn, and draws the
/// view once more upon itself: its text looks bold. Once per process.
void drawOnceAtAnyScale();

} // namespace imageposition

#endif
