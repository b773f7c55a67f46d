/// The range of a setting's value.
#ifndef IMAGEPOSITION_SETTINGS_VALUERANGE_HPP
#define IMAGEPOSITION_SETTINGS_VALUERANGE_HPP

#include <cstdint>
#include <optional>
#include <string_view>

namespace imageposition {

/// Both bounds are inclusive. Printer data may give a minimum above the maximum.
struct ValueRange {
  std::int32_t min = 0;
  std::int32_t max = 0;

  /// The nearest allowed value. Tests the maximum first, so with inverted bounds a value above
  /// `max` becomes `max` and every other value becomes `min`.
  std::int32_t clamp(std::int32_t value) const noexcept;

  /// False for every value when the bounds are inverted.
  bool contains(std::int32_t value) const noexcept;
};

/// Reads "lower:upper". Ignores parts after the second, and reads a part without digits as 0.
/// Returns nothing if there is no ":".
std::optional<ValueRange> readInterval(std::string_view text);

} // namespace imageposition

#endif
