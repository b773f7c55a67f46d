#include "PageInk.hpp"

#include <algorithm>
#include <cstring>
#include <utility>

namespace imageposition {

PageInk inkOn(RenderedPage page) {
  for (std::uint32_t &pixel : page.pixels) {
    const auto red = static_cast<unsigned char>(pixel >> 16);
    const auto green = static_cast<unsigned char>(pixel >> 8);
    const auto blue = static_cast<unsigned char>(pixel);
    const unsigned char paper = std::min({red, green, blue});
    const unsigned char ink[] = {
        static_cast<unsigned char>(red - paper), static_cast<unsigned char>(green - paper),
        static_cast<unsigned char>(blue - paper), static_cast<unsigned char>(255 - paper)};
    std::memcpy(&pixel, ink, sizeof pixel);
  }
  return {page.width, page.height, page.pageWidth, page.pageHeight, std::move(page.pixels)};
}

} // namespace imageposition
