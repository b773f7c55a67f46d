/// Filters what the user types or pastes into an entry field for a signed integer.
#ifndef IMAGEPOSITION_VIEW_ENTRYFILTER_HPP
#define IMAGEPOSITION_VIEW_ENTRYFILTER_HPP

#include "ValueRange.hpp"

#include <cstddef>
#include <string>
#include <string_view>

namespace imageposition {

/// Keeps the ASCII digits and all minus signs, in their order, and drops the rest. Accepts any
/// UTF-16, lone surrogates included.
std::string keepDigitsAndMinus(std::u16string_view text);

/// Returns the string that the field shows after an edit. The kept characters are read as an
/// integer. A number beyond a bound becomes the bound (the maximum is tested first), a lone "-" or
/// "-0" stays as the beginning of a negative number, and anything else becomes the formatted
/// integer.
std::string filterEntry(std::u16string_view text, const ValueRange &range);

/// Returns where the insertion point belongs in `shown`, the filtered form of `text`, if it was
/// before unit `caret` of `text`: before as many kept characters as then, if `shown` has so many.
std::size_t caretAfterFilter(std::u16string_view text, std::size_t caret, std::string_view shown);

} // namespace imageposition

#endif
