/// The picture of a sheet's two sides beside a panel.
#ifndef IMAGEPOSITION_GUI_PICTURE_PREVIEWVIEW_H
#define IMAGEPOSITION_GUI_PICTURE_PREVIEWVIEW_H

#import <AppKit/AppKit.h>

#import "PageImage.h"
#include "PreviewGeometry.hpp"
#include "PreviewLayout.hpp"

#include <optional>
#include <string>

namespace imageposition {
struct PreviewViewState;
}

/// What the user does with the mouse in the picture.
@protocol PreviewViewTarget
- (void)pageClicked:(imageposition::PreviewLayout::Place)place;
/// The wheel was turned up (-1) or down (1) where nothing scrolls.
- (void)turnBy:(int)sheets;
@end

/// Shows both sides to scale at the top, with the back as it lies behind the front. Below, shows
/// the marks of both sides enlarged on a millimetre grid, because a shift of tenths of a millimetre
/// is invisible to scale. The sides are the document's, or sample pages. Accepts any frame;
/// everything is legible at `preferredSize` or larger.
@interface PreviewView : NSView {
  imageposition::PreviewViewState *state; ///< Owned.
  id<PreviewViewTarget> target;           ///< Not owned; may be null.
}

+ (NSSize)preferredSize;

/// Redraws only when the preview differs from the one shown. Updates the tooltip, too.
- (void)showPreview:(const imageposition::Preview &)preview;

/// Shows a sheet's sides, either of which may be null; without a value, sample pages. `sheet` names
/// the sheet, for the description.
- (void)showSheet:(const std::optional<imageposition::SheetSideImages> &)sides
            named:(const std::string &)sheet;
/// The size of the images that fit the pages; 0 before the first preview.
- (double)pixelsPerPoint;
- (void)setTarget:(id<PreviewViewTarget>)theTarget;

/// Describes the picture.
- (NSString *)accessibilityLabel;

/// The same for the tooltip, computed only when the pointer rests on the picture.
- (NSString *)view:(NSView *)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void *)data;

@end

#endif
