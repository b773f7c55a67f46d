#include "Units.hpp"

#include "MeasureTexts.hpp"
#include "Phrases.hpp"

#include <cmath>

namespace imageposition {

TenthMillimetre toTenthMillimetres(Point length) noexcept {
  return {std::llround(length.count * kTenthMillimetresPerPoint)};
}

std::string numberText(TenthMillimetre length) {
  constexpr std::int64_t kPerMillimetre = 10;
  const bool negative = length.count < 0;
  const std::int64_t magnitude = negative ? -length.count : length.count;
  std::string text = negative ? "-" : "";
  text += std::to_string(magnitude / kPerMillimetre);
  if (const std::int64_t tenths = magnitude % kPerMillimetre)
    return messages::decimalNumber(text, std::to_string(tenths));
  return text;
}

std::string lengthText(TenthMillimetre length) {
  return messages::inMillimetres(numberText(length));
}

} // namespace imageposition
