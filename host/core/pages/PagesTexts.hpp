/// Strings about the pages in the picture.
#ifndef IMAGEPOSITION_CORE_PAGES_PAGESTEXTS_HPP
#define IMAGEPOSITION_CORE_PAGES_PAGESTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

/// "Sheet 2 of 7 (pages 3 and 4)". `pages` may be empty.
std::string sheetOf(int sheet, int sheets, const std::string &pages, bool isOnePage);
extern const Text kPagesAreLoaded;
extern const Text kPagesNotShown;

} // namespace imageposition::messages

#endif
