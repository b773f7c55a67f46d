/// Tells a click from a drag.
#ifndef IMAGEPOSITION_GUI_PICTURE_CLICK_H
#define IMAGEPOSITION_GUI_PICTURE_CLICK_H

#import <Foundation/Foundation.h>

#include <cmath>

namespace imageposition {

/// Whether the button was released where it was pressed, as steadily as a hand holds the mouse. The
/// coordinates are those of a view.
inline bool isClick(NSPoint pressed, NSPoint released) {
  constexpr double kUnsteadiness = 4; // points
  return std::hypot(released.x - pressed.x, released.y - pressed.y) <= kUnsteadiness;
}

} // namespace imageposition

#endif
