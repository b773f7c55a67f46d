// Lengths (a number, then a unit): compared with a regular expression; written and read back.
#include "LengthUnit.hpp"

#include "Check.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <map>
#include <regex>

using imageposition::Length;
using imageposition::LengthUnit;
using imageposition::readLength;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

struct Unit {
  LengthUnit unit;
  double count;
};

std::optional<Length> expectedLength(const std::string &text) {
  static const std::map<std::string, Unit> kUnits = {
      {"mm", {LengthUnit::Millimetre, 1}},
      {"cm", {LengthUnit::Millimetre, 10}},
      {"m", {LengthUnit::Millimetre, 1000}},
      {"in", {LengthUnit::Inch, 1}},
      {"ft", {LengthUnit::Inch, 12}},
      {"pt", {LengthUnit::Point, 1}},
      {"", {LengthUnit::Inch, 1}}}; // the default unit here
  static const std::regex kLength(
      "[ \\t]*([+-]?(?:[0-9]+[.,]?[0-9]*|[.,][0-9]+))[ \\t]*([A-Za-z]*)[ \\t]*");
  std::smatch match;
  if (!std::regex_match(text, match, kLength))
    return std::nullopt;
  std::string number = match[1], name = match[2];
  std::replace(number.begin(), number.end(), ',', '.');
  std::transform(name.begin(), name.end(), name.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  const auto unit = kUnits.find(name);
  if (unit == kUnits.end())
    return std::nullopt;
  const double value = std::strtod(number.c_str(), nullptr) * unit->second.count;
  return std::isfinite(value) ? std::optional(Length{value, unit->second.unit}) : std::nullopt;
}

void checkWritten(const Length &length) {
  const std::string written = imageposition::writeLength(length);
  const auto again = readLength(written);
  check(again && again->unit == length.unit, "a written length reads back with its unit");
  checkSame(imageposition::writeLength(*again), written, "and writes the same string again");
  const double step = std::pow(10, -imageposition::decimalsOf(length.unit));
  check(std::abs(again->number - length.number) <= step / 2 + std::abs(length.number) * 1e-12,
        "it differs only by rounding");
  check(std::isfinite(imageposition::toPoints(*again).count) || std::abs(length.number) > 1e300,
        "its number of points is finite");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const std::string text(reinterpret_cast<const char *>(data), std::min<std::size_t>(size, 400));
  const auto expected = expectedLength(text);
  const auto length = readLength(text, LengthUnit::Inch);
  check(length.has_value() == expected.has_value(), "a length is a number with a known unit");
  if (!length)
    return 0;
  check(length->unit == expected->unit && length->number == expected->number,
        "a length has its number and unit");
  checkWritten(*length);
  return 0;
}
