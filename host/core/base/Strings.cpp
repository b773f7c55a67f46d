#include "Strings.hpp"

#include <algorithm>
#include <cctype>
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

std::string shellWord(const std::string &string) {
  constexpr std::string_view kPlain = "%+-./:=@_,";
  const auto isPlain = [=](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || std::isalnum(byte) != 0 || kPlain.find(c) != std::string_view::npos;
  };
  if (!string.empty() && std::all_of(string.begin(), string.end(), isPlain))
    return string;
  std::string word = "'";
  for (const char c : string)
    word += c == '\'' ? "'\\''" : std::string(1, c);
  return word + '\'';
}

bool isSame(std::string_view left, std::string_view right) noexcept {
  return left.size() == right.size() && strncasecmp(left.data(), right.data(), left.size()) == 0;
}

bool contains(const std::vector<std::string> &names, std::string_view name) noexcept {
  return std::any_of(names.begin(), names.end(),
                     [=](const std::string &other) { return isSame(other, name); });
}

bool isTrue(std::string_view value) noexcept {
  return isSame(value, "true") || isSame(value, "yes") || isSame(value, "on");
}

bool IgnoringCase::operator()(std::string_view left, std::string_view right) const noexcept {
  const int order = strncasecmp(left.data(), right.data(), std::min(left.size(), right.size()));
  return order != 0 ? order < 0 : left.size() < right.size();
}

} // namespace imageposition
