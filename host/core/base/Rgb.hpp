/// Colours.
#ifndef IMAGEPOSITION_HOST_RGB_HPP
#define IMAGEPOSITION_HOST_RGB_HPP

#include <cstdint>

namespace imageposition {

/// A colour as 0xRRGGBB.
using Rgb = std::uint32_t;

/// From 0 to 255.
constexpr int redOf(Rgb colour) { return static_cast<int>(colour >> 16 & 0xFF); }
constexpr int greenOf(Rgb colour) { return static_cast<int>(colour >> 8 & 0xFF); }
constexpr int blueOf(Rgb colour) { return static_cast<int>(colour & 0xFF); }

} // namespace imageposition

#endif
