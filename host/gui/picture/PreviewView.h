/// The picture of a sheet's two sides beside a panel.
#ifndef IMAGEPOSITION_HOST_PREVIEWVIEW_H
#define IMAGEPOSITION_HOST_PREVIEWVIEW_H

#import <AppKit/AppKit.h>

#include "PreviewGeometry.hpp"

namespace imageposition {
struct PreviewViewState;
}

/// Above, both sides to scale, the back as it lies behind the front; below, the marks of both sides
/// enlarged on a grid of millimetres, because a shift of tenths of a millimetre cannot be seen to
/// scale. Takes any frame; from `preferredSize` on everything is legible.
@interface PreviewView : NSView {
  imageposition::PreviewViewState *state; ///< Owned.
}

+ (NSSize)preferredSize;

/// Redraws only when the preview differs from the one shown. The tool tip follows.
- (void)showPreview:(const imageposition::Preview &)preview;

/// The picture in words.
- (NSString *)accessibilityLabel;

/// The same, for the tool tip: asked for only when the pointer rests on the picture.
- (NSString *)view:(NSView *)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void *)data;

@end

#endif
