/// The theme's colours, one set for each appearance.
#ifndef IMAGEPOSITION_HOST_THEMECOLORS_H
#define IMAGEPOSITION_HOST_THEMECOLORS_H

#include "Appearance.hpp"
#include "Rgb.hpp"

#import <AppKit/AppKit.h>

namespace imageposition {

/// Texts have a contrast of at least 4.5 to 1 to what they stand on, edges and marks that tell a
/// control's state at least 3 to 1.
struct ThemeColors {
  Rgb window;
  Rgb text;
  Rgb secondaryText;
  Rgb disabledText;
  Rgb warningText;
  Rgb field;           ///< What is typed into, and lists.
  Rgb disabledControl; ///< Fields and buttons that cannot be used.
  Rgb button;
  Rgb pressedButton;
  Rgb outline;         ///< Edges of what can be used.
  Rgb disabledOutline; ///< Edges of what cannot, and lines between things.
  Rgb accent;          ///< The default button, a tick, the focus.
  Rgb pressedAccent;
  Rgb onAccent; ///< Texts and marks on the accent colour.
  Rgb focusRing;
  Rgb selection; ///< Behind selected text.
  Rgb menu;
  Rgb scrollerKnob;
};

const ThemeColors &themeColors(Appearance appearance);

NSColor *toColor(Rgb rgb, double opacity = 1);

/// The platform's own colours by their names, so that what it draws by itself agrees. Not owned by
/// the caller.
NSColorList *makeSystemColors(const ThemeColors &colors);

} // namespace imageposition

#endif
