/// The look of the dialog: a platform theme of our own, light and dark.
#ifndef IMAGEPOSITION_HOST_THEME_H
#define IMAGEPOSITION_HOST_THEME_H

#include "Appearance.hpp"

#ifdef __OBJC__
#import <AppKit/AppKit.h>
#endif

namespace imageposition {

/// Before the application object is made: fonts and everything that a window measures grow by this
/// factor (1 is the usual size).
void setTextScale(double scale);

/// Makes every control look so from now on. After the application object is made; best before the
/// first window, as those that are there have to be drawn anew.
void installTheme(Appearance appearance);

#ifdef __OBJC__
/// For what the dialog draws itself, once the theme is installed.
NSColor *accentColor();        ///< Marks what is chosen or has the focus.
NSColor *secondaryTextColor(); ///< Explanations beside a control; contrast at least 4.5 to 1.
NSColor *warningTextColor();   ///< Troubles and conflicts; contrast at least 4.5 to 1.
NSColor *outlineColor();       ///< Edges of controls, sheets of paper, separators.
#endif

} // namespace imageposition

#endif
