#include "ValueRange.hpp"

#include "IntegerText.hpp"

namespace imageposition {

std::int32_t ValueRange::clamp(std::int32_t value) const noexcept {
  if (value > max)
    return max;
  return value < min ? min : value;
}

bool ValueRange::contains(std::int32_t value) const noexcept {
  return max >= value && min <= value;
}

std::optional<ValueRange> readInterval(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos)
    return std::nullopt;
  // readInteger stops at a second colon.
  return ValueRange{readInteger(text.substr(0, colon)), readInteger(text.substr(colon + 1))};
}

} // namespace imageposition
