/// Fonts for languages that GNUstep's usual one cannot write.
#ifndef IMAGEPOSITION_HOST_FONTS_H
#define IMAGEPOSITION_HOST_FONTS_H

namespace imageposition {

/// Makes a font that can write the user's language the default for this program, unless the user
/// has chosen one; see `LanguageFonts.hpp`. Call it before the application is there, which looks at
/// the defaults.
void chooseFontsForLanguage();

} // namespace imageposition

#endif
