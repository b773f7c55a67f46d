/// The platform theme that draws the dialog; see host/Theme.h for how it comes into use.
#ifndef IMAGEPOSITION_HOST_DIALOGTHEME_H
#define IMAGEPOSITION_HOST_DIALOGTHEME_H

#import "ThemeColors.h"

#import <GNUstepGUI/GSTheme.h>

/// One category a kind of control, in files of their own.
@interface DialogTheme : GSTheme {
@public
  imageposition::ThemeColors palette;
  NSColorList *systemColors; ///< Owned.
}

- (id)initWithPalette:(const imageposition::ThemeColors &)thePalette;

/// The theme in use; null before it is installed.
+ (DialogTheme *)current;

@end

namespace imageposition {

/// A rectangle of whole points with round corners, filled and with a thin edge inside it.
void drawRoundRect(NSRect rect, CGFloat radius, Rgb fill, Rgb edge, CGFloat lineWidth = 1);
/// Around what has the keyboard's focus.
void drawFocusRing(NSRect rect, CGFloat radius, Rgb color);
/// Two lines that meet in a point, which looks up or down. `flipped` says which way the view
/// counts.
void drawChevron(NSPoint centre, CGFloat halfWidth, bool up, bool flipped, Rgb color);

constexpr CGFloat kCornerRadius = 4;

/// Replaces what platform classes do where a theme is not asked: the colours of texts, the images
/// of switches and of pop-up buttons. Once per process.
void replacePlatformDrawing();

} // namespace imageposition

#endif
