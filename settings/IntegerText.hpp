/// Whole numbers as text: how the values of settings are read and written everywhere.
#ifndef IMAGEPOSITION_SETTINGS_INTEGERTEXT_HPP
#define IMAGEPOSITION_SETTINGS_INTEGERTEXT_HPP

#include <cstdint>
#include <string>
#include <string_view>

namespace imageposition {

/// Reads a decimal integer: leading white space (any of Unicode's) is skipped, then comes an
/// optional sign and digits up to the first other character. Text without digits there reads 0; a
/// number beyond 32 bits reads as the nearest limit. Platform readers differ in the last point
/// (some wrap), which is why nothing else reads integers here. Any UTF-16 is accepted.
std::int32_t readInteger(std::u16string_view text) noexcept;

/// The same for UTF-8; malformed bytes count as other characters.
std::int32_t readInteger(std::string_view text);

/// Decimal text as "%d" makes it: a minus for negatives, no plus, no padding, no grouping.
std::string writeInteger(std::int32_t value);

} // namespace imageposition

#endif
