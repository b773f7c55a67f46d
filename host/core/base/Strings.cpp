#include "Strings.hpp"

#include <algorithm>
#include <strings.h>

namespace imageposition {

bool startsWith(std::string_view string, std::string_view start) noexcept {
  return string.substr(0, start.size()) == start;
}

bool endsWith(std::string_view string, std::string_view end) noexcept {
  return string.size() >= end.size() && string.substr(string.size() - end.size()) == end;
}

std::string trimmed(std::string_view string, std::string_view blanks) {
  const std::size_t first = string.find_first_not_of(blanks);
  if (first == std::string_view::npos)
    return {};
  return std::string(string.substr(first, string.find_last_not_of(blanks) - first + 1));
}

bool isSame(std::string_view left, std::string_view right) noexcept {
  return left.size() == right.size() && strncasecmp(left.data(), right.data(), left.size()) == 0;
}

bool contains(const std::vector<std::string> &names, std::string_view name) noexcept {
  return std::any_of(names.begin(), names.end(),
                     [=](const std::string &other) { return isSame(other, name); });
}

bool IgnoringCase::operator()(std::string_view left, std::string_view right) const noexcept {
  const int order = strncasecmp(left.data(), right.data(), std::min(left.size(), right.size()));
  return order != 0 ? order < 0 : left.size() < right.size();
}

} // namespace imageposition
