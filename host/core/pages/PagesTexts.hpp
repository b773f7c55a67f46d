/// Strings about the pages in the picture.
#ifndef IMAGEPOSITION_CORE_PAGES_PAGESTEXTS_HPP
#define IMAGEPOSITION_CORE_PAGES_PAGESTEXTS_HPP

#include "MoverTask.hpp"
#include "Text.hpp"

#include <string>

namespace imageposition::messages {

/// "Sheet 2 of 7 (pages 3 and 4)". `pages` may be empty.
std::string sheetOf(int sheet, int sheets, const std::string &pages, bool isOnePage);
extern const Text kPagesAreLoaded;
const Text &pagesNotShown(MoveProblem problem);

} // namespace imageposition::messages

#endif
