/// RGB colours.
#ifndef IMAGEPOSITION_CORE_BASE_RGB_HPP
#define IMAGEPOSITION_CORE_BASE_RGB_HPP

#include <cstdint>

namespace imageposition {

/// A colour as 0xRRGGBB.
using Rgb = std::uint32_t;

/// Components, from 0 to 255.
constexpr int redOf(Rgb colour) { return static_cast<int>(colour >> 16 & 0xFF); }
constexpr int greenOf(Rgb colour) { return static_cast<int>(colour >> 8 & 0xFF); }
constexpr int blueOf(Rgb colour) { return static_cast<int>(colour & 0xFF); }

} // namespace imageposition

#endif
