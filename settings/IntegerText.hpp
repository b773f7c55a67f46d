/// Integers as strings: everything that reads or writes a setting's value uses these functions.
#ifndef IMAGEPOSITION_SETTINGS_INTEGERTEXT_HPP
#define IMAGEPOSITION_SETTINGS_INTEGERTEXT_HPP

#include <cstdint>
#include <string>
#include <string_view>

namespace imageposition {

/// Reads a decimal integer: skips leading Unicode white space, then reads an optional sign and
/// digits up to the first other character. Returns 0 if there are no digits, and the nearest limit
/// if the number does not fit into 32 bits. (Foundation's `intValue` wraps on some systems, so the
/// plug-in does not use it.) Accepts any UTF-16.
std::int32_t readInteger(std::u16string_view text) noexcept;

/// The same for UTF-8; malformed bytes count as other characters.
std::int32_t readInteger(std::string_view text);

/// Formats the value as "%d" does: a minus for negatives, no plus, no padding, no grouping.
std::string writeInteger(std::int32_t value);

} // namespace imageposition

#endif
