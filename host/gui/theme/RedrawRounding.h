/// Works around a GNUstep rounding error at fractional scales.
#ifndef IMAGEPOSITION_GUI_THEME_REDRAWROUNDING_H
#define IMAGEPOSITION_GUI_THEME_REDRAWROUNDING_H

namespace imageposition {

/// Makes GNUstep draw each view only once. GNUstep draws a transparent view together with its
/// superview. At a fractional scale, rounding makes the rectangle that it passes down slightly too
/// small; it then considers the remainder invalid and draws the view again over itself, which makes
/// text look bold. Call it once per process.
void drawOnceAtAnyScale();

} // namespace imageposition

#endif
