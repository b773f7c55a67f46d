/// The appearance of the dialog: a GNUstep theme, light or dark.
#ifndef IMAGEPOSITION_GUI_THEME_THEME_H
#define IMAGEPOSITION_GUI_THEME_THEME_H

#include "Appearance.hpp"

#ifdef __OBJC__
#import <AppKit/AppKit.h>
#endif

namespace imageposition {

/// Scales fonts and all measurements of windows by this factor; 1 is the usual size. Call it before
/// the application object exists.
void setTextScale(double scale);

/// Applies the theme to every control. Call it after the application object exists, and preferably
/// before the first window: existing windows have to be redrawn.
void installTheme(Appearance appearance);

#ifdef __OBJC__
/// Colours for the dialog's own drawing, once the theme is installed.
NSColor *accentColor();        ///< Marks the selection and the focus.
NSColor *secondaryTextColor(); ///< For explanations beside a control; contrast at least 4.5 to 1.
NSColor *warningTextColor();   ///< For errors and conflicts; contrast at least 4.5 to 1.
NSColor *outlineColor();       ///< For edges of controls and paper, and for separators.

/// Draws the mark of a chosen item or of a checkbox that is on; `flipped` is the view's
/// `isFlipped`.
void drawTick(NSRect box, bool flipped, NSColor *color);
#endif

} // namespace imageposition

#endif
