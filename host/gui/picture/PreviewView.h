/// The picture of a sheet's two sides beside a panel.
#ifndef IMAGEPOSITION_GUI_PICTURE_PREVIEWVIEW_H
#define IMAGEPOSITION_GUI_PICTURE_PREVIEWVIEW_H

#import <AppKit/AppKit.h>

#include "PreviewGeometry.hpp"

namespace imageposition {
struct PreviewViewState;
}

/// Shows both sides to scale at the top, with the back as it lies behind the front. Below, shows
/// the marks of both sides enlarged on a millimetre grid, because a shift of tenths of a millimetre
/// is invisible to scale. Accepts any frame; everything is legible from `preferredSize` on.
@interface PreviewView : NSView {
  imageposition::PreviewViewState *state; ///< Owned.
}

+ (NSSize)preferredSize;

/// Redraws only when the preview differs from the one shown. Updates the tooltip, too.
- (void)showPreview:(const imageposition::Preview &)preview;

/// Describes the picture.
- (NSString *)accessibilityLabel;

/// The same for the tooltip, computed only when the pointer rests on the picture.
- (NSString *)view:(NSView *)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void *)data;

@end

#endif
