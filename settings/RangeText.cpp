#include "RangeText.hpp"

#include "IntegerText.hpp"

namespace imageposition {
namespace {

std::string replaceAll(std::string_view text, std::string_view placeholder,
                       std::string_view replacement) {
  if (placeholder.empty())
    return std::string{text};
  std::string result;
  std::size_t from = 0;
  for (std::size_t at = text.find(placeholder); at != std::string_view::npos;
       at = text.find(placeholder, from)) {
    result.append(text.substr(from, at - from)).append(replacement);
    from = at + placeholder.size();
  }
  return result.append(text.substr(from));
}

} // namespace

std::string composeRangeText(std::string_view localizedTemplate, std::string_view maxPlaceholder,
                             std::string_view minPlaceholder, const ValueRange &range) {
  const std::string withMax =
      replaceAll(localizedTemplate, maxPlaceholder, writeInteger(range.max));
  return replaceAll(withMax, minPlaceholder, writeInteger(range.min));
}

} // namespace imageposition
