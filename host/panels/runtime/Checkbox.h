/// Telling checkboxes from push buttons: AppKit has one class for both.
#ifndef IMAGEPOSITION_PANELS_RUNTIME_CHECKBOX_H
#define IMAGEPOSITION_PANELS_RUNTIME_CHECKBOX_H

#import <AppKit/AppKit.h>

namespace imageposition {

/// A checkbox or a radio button: it shows its state by another image.
inline bool isCheckbox(NSButtonCell *cell) {
  return ([cell showsStateBy] & NSContentsCellMask) != 0;
}

} // namespace imageposition

#endif
