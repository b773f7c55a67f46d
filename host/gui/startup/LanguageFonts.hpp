/// Fonts for languages that GNUstep's usual one cannot write.
#ifndef IMAGEPOSITION_HOST_LANGUAGEFONTS_HPP
#define IMAGEPOSITION_HOST_LANGUAGEFONTS_HPP

#include <optional>
#include <string>

namespace imageposition {

/// PostScript names, as GNUstep names its fonts. Both are the same where a font has no bold face.
struct FontNames {
  std::string regular;
  std::string bold;
};

/// What fontconfig chooses for a language, named as catalogues are ("ja", "zh_CN"). None for a
/// language in Latin letters, and where no font has the language's letters and Latin ones: GNUstep
/// writes a string in one font.
std::optional<FontNames> fontsFor(const std::string &language);

} // namespace imageposition

#endif
