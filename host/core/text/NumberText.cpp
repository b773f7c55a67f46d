#include "NumberText.hpp"

#include "Strings.hpp"

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace imageposition {

namespace {

struct Substitute {
  std::string_view written;
  char meant;
};

constexpr Substitute kSubstitutes[] = {
    {"\u2212", '-'}, {"\u2010", '-'}, {"\u2011", '-'}, {"\u2012", '-'}, {"\u2013", '-'},
    {"\u2014", '-'}, {"\u2015", '-'}, {"\uFE63", '-'}, {"\uFF0D", '-'}, {"\u30FC", '-'},
    {"\uFF0B", '+'}, {"\uFF10", '0'}, {"\uFF11", '1'}, {"\uFF12", '2'}, {"\uFF13", '3'},
    {"\uFF14", '4'}, {"\uFF15", '5'}, {"\uFF16", '6'}, {"\uFF17", '7'}, {"\uFF18", '8'},
    {"\uFF19", '9'}, {"\u00A0", ' '}, {"\u2007", ' '}, {"\u2009", ' '}, {"\u202F", ' '},
    {"\u3000", ' '}};

constexpr std::string_view kBlanks = " \t\n\v\f\r";

/// Without the plus sign and leading zeros.
std::string normalized(std::string_view number) {
  const bool isNegative = startsWith(number, "-");
  number.remove_prefix(std::min(number.find_first_not_of("+-0"), number.size()));
  return (isNegative && !number.empty() ? "-" : "") + std::string(number);
}

} // namespace

std::string withAsciiDigits(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) {
    const auto *const substitute =
        std::find_if(std::begin(kSubstitutes), std::end(kSubstitutes),
                     [&](const Substitute &s) { return startsWith(utf8, s.written); });
    const bool isFound = substitute != std::end(kSubstitutes);
    text += isFound ? substitute->meant : utf8.front();
    utf8.remove_prefix(isFound ? substitute->written.size() : 1);
  }
  return text;
}

std::string asciiNumber(std::string_view utf8) { return trimmed(withAsciiDigits(utf8), kBlanks); }

bool isWholeNumber(std::string_view text) {
  if (startsWith(text, "-") || startsWith(text, "+"))
    text.remove_prefix(1);
  return !text.empty() && std::all_of(text.begin(), text.end(),
                                      [](unsigned char c) { return std::isdigit(c) != 0; });
}

std::optional<std::string> tenthsIn(std::string_view text) {
  for (const std::string_view point : {".", ",", "\uFF0E", "\uFF0C"}) {
    const std::size_t at = text.find(point);
    if (at == std::string_view::npos)
      continue;
    const std::string_view whole = text.substr(0, at), tenth = text.substr(at + point.size());
    const bool isNegative = !whole.empty() && whole.front() == '-';
    if (tenth.size() != 1 || !isWholeNumber(tenth) || !isWholeNumber(whole) || whole.size() > 4)
      return std::nullopt;
    const int tenths = 10 * std::abs(std::stoi(std::string(whole))) + (tenth.front() - '0');
    return std::to_string(isNegative ? -tenths : tenths);
  }
  return std::nullopt;
}

bool isSameNumber(std::string_view left, std::string_view right) {
  return normalized(left) == normalized(right);
}

} // namespace imageposition
