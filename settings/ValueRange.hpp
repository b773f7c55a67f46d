/// The range of a setting's value.
#ifndef IMAGEPOSITION_SETTINGS_VALUERANGE_HPP
#define IMAGEPOSITION_SETTINGS_VALUERANGE_HPP

#include <cstdint>
#include <optional>
#include <string_view>

namespace imageposition {

/// Both bounds belong to the range. Nothing ties them: printer data may give them inverted.
struct ValueRange {
  std::int32_t min = 0;
  std::int32_t max = 0;

  /// The nearest allowed value. The maximum is tested first, so that with inverted bounds a value
  /// above `max` becomes `max` and every other value becomes `min`.
  std::int32_t clamp(std::int32_t value) const noexcept;

  /// False for every value when the bounds are inverted.
  bool contains(std::int32_t value) const noexcept;
};

/// Reads "lower:upper"; parts after the second are ignored, and a part without digits reads 0.
/// None when there is no ":".
std::optional<ValueRange> readInterval(std::string_view text);

} // namespace imageposition

#endif
