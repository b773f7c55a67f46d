/// Fonts for languages that GNUstep's default font does not cover.
#ifndef IMAGEPOSITION_GUI_STARTUP_FONTS_H
#define IMAGEPOSITION_GUI_STARTUP_FONTS_H

namespace imageposition {

/// Makes a font that covers the user's language the default for this program, unless the user has
/// chosen one; see `LanguageFonts.hpp`. Call it before the application object exists, which reads
/// the defaults.
void chooseFontsForLanguage();

} // namespace imageposition

#endif
