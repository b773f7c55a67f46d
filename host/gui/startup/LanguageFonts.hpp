/// Fonts for languages that GNUstep's default font does not cover.
#ifndef IMAGEPOSITION_GUI_STARTUP_LANGUAGEFONTS_HPP
#define IMAGEPOSITION_GUI_STARTUP_LANGUAGEFONTS_HPP

#include <optional>
#include <string>

namespace imageposition {

/// PostScript names, which GNUstep uses. Both are the same for a font without a bold face.
struct FontNames {
  std::string regular;
  std::string bold;
};

/// The fonts that fontconfig chooses for a language, named as catalogues are ("ja", "zh_CN"). None
/// for a language in Latin letters, or if no font covers both the language and Latin letters:
/// GNUstep draws a string in a single font.
std::optional<FontNames> fontsFor(const std::string &language);

} // namespace imageposition

#endif
