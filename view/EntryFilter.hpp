/// What an entry field for a signed integer makes of the text that a person typed or pasted.
#ifndef IMAGEPOSITION_VIEW_ENTRYFILTER_HPP
#define IMAGEPOSITION_VIEW_ENTRYFILTER_HPP

#include "ValueRange.hpp"

#include <cstddef>
#include <string>
#include <string_view>

namespace imageposition {

/// The text that remains: the ASCII digits and all minus signs, in their order. Any UTF-16 is
/// accepted, lone surrogates included.
std::string keepDigitsAndMinus(std::u16string_view text);

/// The text that the field shows after an edit. The kept characters are read as an integer: beyond
/// a bound the bound is shown (the maximum is tested first), a lone "-" or "-0" stays as the
/// beginning of a negative number, and anything else becomes the integer's plain form.
std::string filterEntry(std::u16string_view text, const ValueRange &range);

/// Where the insertion point belongs in `shown`, the filtered form of `text`, when it stood before
/// unit `caret` of `text`: as many kept characters still follow it, as far as `shown` has them.
std::size_t caretAfterFilter(std::u16string_view text, std::size_t caret, std::string_view shown);

} // namespace imageposition

#endif
