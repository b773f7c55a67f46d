/// Fonts for languages that the platform's own choice cannot write.
#ifndef IMAGEPOSITION_HOST_FONTS_H
#define IMAGEPOSITION_HOST_FONTS_H

namespace imageposition {

/// The platform writes a text in one font, and its usual one has no Japanese or Chinese. For people
/// with such a language a font that has both theirs and Latin becomes the default, unless they have
/// chosen one. Call it before the application is there, which looks at the defaults.
void chooseFontsForLanguage();

} // namespace imageposition

#endif
