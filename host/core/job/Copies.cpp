#include "Copies.hpp"

#include "NumberText.hpp"

#include <algorithm>
#include <cstdlib>

namespace imageposition {

std::optional<int> readCopies(const std::string &typed) {
  const std::string text = asciiNumber(typed);
  char *end = nullptr;
  const long number = std::strtol(text.c_str(), &end, 10);
  if (text.empty() || *end != '\0' || number < 1 || number > kMostCopies)
    return std::nullopt;
  return static_cast<int>(number);
}

int nearestCopies(const std::string &text) {
  // Clamp before converting to int, which would truncate a large number.
  return static_cast<int>(std::clamp<long>(std::strtol(text.c_str(), nullptr, 10), 1, kMostCopies));
}

} // namespace imageposition
