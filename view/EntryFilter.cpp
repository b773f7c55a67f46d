#include "EntryFilter.hpp"

#include "IntegerText.hpp"

#include <algorithm>

namespace imageposition {
namespace {

bool isKept(char16_t unit) { return (unit >= u'0' && unit <= u'9') || unit == u'-'; }

} // namespace

std::string keepDigitsAndMinus(std::u16string_view text) {
  std::string kept;
  for (const char16_t unit : text) {
    if (isKept(unit))
      kept += static_cast<char>(unit);
  }
  return kept;
}

std::string filterEntry(std::u16string_view text, const ValueRange &range) {
  std::string kept = keepDigitsAndMinus(text);
  const std::int32_t value = readInteger(kept);
  if (value > range.max)
    return writeInteger(range.max);
  if (value < range.min)
    return writeInteger(range.min);
  if (kept == "-" || kept == "-0")
    return kept;
  return writeInteger(value);
}

std::size_t caretAfterFilter(std::u16string_view text, std::size_t caret, std::string_view shown) {
  const std::u16string_view behind = text.substr(std::min(caret, text.size()));
  const auto keptBehind =
      static_cast<std::size_t>(std::count_if(behind.begin(), behind.end(), isKept));
  return shown.size() - std::min(keptBehind, shown.size());
}

} // namespace imageposition
