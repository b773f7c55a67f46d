/// The theme's colours, one set for each appearance.
#ifndef IMAGEPOSITION_GUI_THEME_THEMECOLORS_H
#define IMAGEPOSITION_GUI_THEME_THEMECOLORS_H

#include "Appearance.hpp"
#include "Rgb.hpp"

#import <AppKit/AppKit.h>

namespace imageposition {

/// Text has a contrast of at least 4.5 to 1 against its background; edges and marks that show a
/// control's state have at least 3 to 1.
struct ThemeColors {
  Rgb window;
  Rgb text;
  Rgb secondaryText;
  Rgb disabledText;
  Rgb warningText;
  Rgb field;           ///< The background of entry fields and lists.
  Rgb disabledControl; ///< The background of disabled fields and buttons.
  Rgb button;
  Rgb pressedButton;
  Rgb outline;         ///< Edges of enabled controls.
  Rgb disabledOutline; ///< Edges of disabled controls, and separators.
  Rgb accent;          ///< The default button, a tick, the focus.
  Rgb pressedAccent;
  Rgb onAccent; ///< Text and marks on the accent colour.
  Rgb focusRing;
  Rgb selection; ///< Behind selected text.
  Rgb menu;
  Rgb scrollerKnob;
};

const ThemeColors &themeColors(Appearance appearance);

NSColor *toColor(Rgb rgb, double opacity = 1);

/// The system colours by name, so that GNUstep's own drawing matches the theme. The caller does not
/// own the list.
NSColorList *makeSystemColors(const ThemeColors &colors);

} // namespace imageposition

#endif
