/// A scale of an alignment sheet, for the reader to compare with the paper.
#ifndef IMAGEPOSITION_GUI_PICTURE_SCALEVIEW_H
#define IMAGEPOSITION_GUI_PICTURE_SCALEVIEW_H

#import <AppKit/AppKit.h>

#include "VernierPicture.hpp"

/// Shows the scale on white paper, several times as large as it is printed. Needs `preferredSize`.
@interface ScaleView : NSView {
  imageposition::ScalePicture *picture; ///< Owned.
}

+ (NSSize)preferredSize;

/// Redraws only when the picture differs from the one shown.
- (void)showPicture:(const imageposition::ScalePicture &)thePicture;

@end

namespace imageposition {

/// The size of a millimetre, in points of the window. Whole lines of a scale are on whole pixels.
constexpr int kScalePointsPerMillimetre = 7;

} // namespace imageposition

#endif
