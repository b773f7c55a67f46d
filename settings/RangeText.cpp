#include "RangeText.hpp"

#include "IntegerText.hpp"

namespace imageposition {
namespace {

std::string replaceAll(std::string_view text, std::string_view mark, std::string_view replacement) {
  if (mark.empty())
    return std::string{text};
  std::string result;
  std::size_t from = 0;
  for (std::size_t at = text.find(mark); at != std::string_view::npos; at = text.find(mark, from)) {
    result.append(text.substr(from, at - from)).append(replacement);
    from = at + mark.size();
  }
  return result.append(text.substr(from));
}

} // namespace

std::string composeRangeText(std::string_view localizedTemplate, std::string_view maxMark,
                             std::string_view minMark, const ValueRange &range) {
  const std::string withMax = replaceAll(localizedTemplate, maxMark, writeInteger(range.max));
  return replaceAll(withMax, minMark, writeInteger(range.min));
}

} // namespace imageposition
