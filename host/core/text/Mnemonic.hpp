/// The letter in a control's text that, with Alt, reaches the control.
#ifndef IMAGEPOSITION_HOST_MNEMONIC_HPP
#define IMAGEPOSITION_HOST_MNEMONIC_HPP

#include <cstddef>
#include <string>
#include <string_view>

namespace imageposition {

/// A text as it is shown. A marker "&" stands before the letter: "&Printer:"; where the script has
/// no letters for a keyboard one is added in parentheses: "プリンタ(&P):". "&&" is an ampersand,
/// and so is one with no letter or digit behind it. The first marker counts, later ones only
/// disappear.
struct MnemonicText {
  std::string text;      ///< UTF-8, without markers.
  std::string key;       ///< One UTF-8 character as in the text; empty when none is marked.
  std::size_t keyAt = 0; ///< Bytes before the key in the text.
};

MnemonicText readMnemonic(std::string_view marked);

/// A text of somebody else's with a marker before the first ASCII letter or digit that is not among
/// `used`, to which it is added; behind a text that has none a digit is added in parentheses.
std::string withKey(std::string_view text, std::string &used);

/// A text of somebody else's, to be shown as it is.
std::string withoutKey(std::string_view text);

} // namespace imageposition

#endif
