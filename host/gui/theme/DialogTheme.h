/// The GNUstep theme that draws the dialog; `installTheme` in Theme.h installs it.
#ifndef IMAGEPOSITION_GUI_THEME_DIALOGTHEME_H
#define IMAGEPOSITION_GUI_THEME_DIALOGTHEME_H

#import "ThemeColors.h"

#import <GNUstepGUI/GSTheme.h>

/// Each kind of control has a category in a separate file.
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

/// Fills a rectangle with round corners and draws an edge inside it. `rect` is in whole points.
void drawRoundRect(NSRect rect, CGFloat radius, Rgb fill, Rgb edge, CGFloat lineWidth = 1);
/// Marks the view that has the keyboard focus.
void drawFocusRing(NSRect rect, CGFloat radius, Rgb color);
/// Draws two lines that meet in a point at the top or the bottom. `flipped` is the view's
/// `isFlipped`.
void drawChevron(NSPoint centre, CGFloat halfWidth, bool up, bool flipped, Rgb color);

constexpr CGFloat kCornerRadius = 4;

/// Replaces the drawing that GNUstep does not leave to a theme: text colours, and the images of
/// switches and pop-up buttons. Call it once per process.
void replacePlatformDrawing();

/// Gives GNUstep's images that this theme draws or never shows to GNUstep by their names, so that
/// it does not look for their files. Call it once per process, when the theme is in use.
void replacePlatformImages();

} // namespace imageposition

#endif
