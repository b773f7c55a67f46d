/// Mnemonics: letters in labels that, with Alt, activate a control.
#ifndef IMAGEPOSITION_CORE_TEXT_MNEMONIC_HPP
#define IMAGEPOSITION_CORE_TEXT_MNEMONIC_HPP

#include <cstddef>
#include <string>
#include <string_view>

namespace imageposition {

/// A label without its markers. "&" marks the letter that follows it: "&Printer:". Languages whose
/// letters are not on the keyboard add one in parentheses: "プリンタ(&P):". "&&" is a literal
/// ampersand, and so is "&" without a letter or digit after it. Only the first marker counts; later
/// ones are removed.
struct MnemonicText {
  std::string text;      ///< UTF-8, without markers.
  std::string key;       ///< One UTF-8 character, as in `text`; empty if none is marked.
  std::size_t keyAt = 0; ///< Byte offset of the key in `text`.
};

MnemonicText readMnemonic(std::string_view marked);

/// Marks the first ASCII letter or digit of a third-party label that is not in `used`, and adds it
/// to `used`. If there is none, appends an unused digit in parentheses.
std::string withKey(std::string_view text, std::string &used);

/// Escapes a third-party label that is to be shown as it is.
std::string withoutKey(std::string_view text);

} // namespace imageposition

#endif
