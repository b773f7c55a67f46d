/// Fonts for text in any script. GNUstep draws a string in a single font.
#ifndef IMAGEPOSITION_GUI_WIDGETS_TEXTFONT_HPP
#define IMAGEPOSITION_GUI_WIDGETS_TEXTFONT_HPP

#include <string>

namespace imageposition {

/// The PostScript name of the font that shows the UTF-8 text: `current` if it has all characters,
/// or else the font that fontconfig chooses for them. If no font has all of them, one that has
/// some. Takes about a millisecond for text that is not ASCII.
std::string fontFor(const std::string &text, const std::string &current);

} // namespace imageposition

#endif
