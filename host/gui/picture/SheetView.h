/// One side of a sheet, or both against the light, enlarged.
#ifndef IMAGEPOSITION_GUI_PICTURE_SHEETVIEW_H
#define IMAGEPOSITION_GUI_PICTURE_SHEETVIEW_H

#import <AppKit/AppKit.h>

#import "PageImage.h"
#include "PreviewGeometry.hpp"
#include "PreviewLayout.hpp"

#import "SheetBar.h"

#include <optional>

namespace imageposition {
struct SheetViewState;
}

/// Draws a grid in millimetres over the sheet. Takes the focus, and the keys that turn sheets; a
/// click on the sheet closes its window like Escape.
@interface SheetView : NSView {
  imageposition::SheetViewState *state; ///< Owned.
}

- (id)initWithFrame:(NSRect)frame
             images:(const imageposition::SheetImages &)images
            preview:(const imageposition::Preview &)preview
             target:(id<SheetTurning>)target;
- (void)showPlace:(imageposition::PreviewLayout::Place)place;
/// Call when the images have changed.
- (void)refresh;
/// The size of the images that fit the view.
- (double)pixelsPerPoint;

@end

#endif
