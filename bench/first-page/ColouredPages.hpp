/// Documents whose pages are found on the screen by their colour.
#ifndef IMAGEPOSITION_BENCH_COLOUREDPAGES_HPP
#define IMAGEPOSITION_BENCH_COLOUREDPAGES_HPP

#include "WatchedScreen.hpp"

#include <cstdint>
#include <string>

namespace imageposition::bench {

/// The colour of a rectangle on the page, 0xRRGGBB. Pages count from 0; the colours of eight pages
/// in succession differ, and no window has them.
std::uint32_t colourOfPage(int page);

/// Pages with about 3 kB of text each.
std::string colouredText(int pages);
/// Pages with an image of that many bytes each, which cannot be compressed.
std::string colouredImages(int pages, std::size_t bytes);

/// The smallest rectangle with all the pixels of the page's colour; empty if there are too few.
Rectangle placeOfPage(const Picture &picture, int page);

} // namespace imageposition::bench

#endif
