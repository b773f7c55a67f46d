/// fontconfig's patterns, which describe a font.
#ifndef IMAGEPOSITION_GUI_THEME_FONTPATTERN_HPP
#define IMAGEPOSITION_GUI_THEME_FONTPATTERN_HPP

#include <fontconfig/fontconfig.h>

#include <memory>

namespace imageposition {

struct FontconfigDeleter {
  void operator()(FcPattern *pattern) const noexcept { FcPatternDestroy(pattern); }
  void operator()(FcCharSet *characters) const noexcept { FcCharSetDestroy(characters); }
};

using FontPattern = std::unique_ptr<FcPattern, FontconfigDeleter>;
using FontCharacters = std::unique_ptr<FcCharSet, FontconfigDeleter>;

/// UTF-8 text as fontconfig takes it.
inline const FcChar8 *bytesOf(const char *text) { return reinterpret_cast<const FcChar8 *>(text); }

/// The installed font that comes closest to `wanted`; null if no font is installed.
inline FontPattern matchedFont(const FontPattern &wanted) {
  FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
  FcDefaultSubstitute(wanted.get());
  FcResult ignored;
  return FontPattern(FcFontMatch(nullptr, wanted.get(), &ignored));
}

} // namespace imageposition

#endif
