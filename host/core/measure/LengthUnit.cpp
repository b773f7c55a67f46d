#include "LengthUnit.hpp"

#include "MeasureTexts.hpp"
#include "Phrases.hpp"
#include "Strings.hpp"

#include <cmath>
#include <locale>
#include <sstream>

namespace imageposition {

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kMillimetresPerInch = 25.4;
constexpr double kLargestWithDecimals = 1e15; // larger doubles have no reliable decimals

double pointsPer(LengthUnit unit) {
  switch (unit) {
  case LengthUnit::Millimetre:
    return kPointsPerInch / kMillimetresPerInch;
  case LengthUnit::Inch:
    return kPointsPerInch;
  case LengthUnit::Point:
    break;
  }
  return 1;
}

/// A unit that CUPS accepts, as a multiple of one in the user interface.
struct NamedUnit {
  const char *name;
  LengthUnit unit;
  double count;
};
constexpr NamedUnit kUnits[] = {
    {"mm", LengthUnit::Millimetre, 1},   {"cm", LengthUnit::Millimetre, 10},
    {"m", LengthUnit::Millimetre, 1000}, {"in", LengthUnit::Inch, 1},
    {"ft", LengthUnit::Inch, 12},        {"pt", LengthUnit::Point, 1}};

constexpr const char *kBlanks = " \t";

} // namespace

Point toPoints(Length length) noexcept { return {length.number * pointsPer(length.unit)}; }

Length convert(Length length, LengthUnit unit) noexcept {
  if (length.unit == unit)
    return length;
  return {toPoints(length).count / pointsPer(unit), unit};
}

std::optional<double> readNumber(const std::string &text) {
  std::string plain = trimmed(text, kBlanks);
  const std::size_t comma = plain.find(',');
  if (comma != std::string::npos)
    plain[comma] = '.';
  // The library would also accept "nan" and "0x10".
  if (plain.empty() || plain.find_first_not_of("+-.0123456789") != std::string::npos)
    return std::nullopt;
  if (plain.front() == '+' && plain.find_first_of("+-", 1) == std::string::npos)
    plain.erase(0, 1);
  std::istringstream stream(plain);
  stream.imbue(std::locale::classic());
  double number = 0;
  if (!(stream >> number) || stream.peek() != std::char_traits<char>::eof() ||
      !std::isfinite(number))
    return std::nullopt;
  return number;
}

std::optional<Length> readLength(const std::string &text, LengthUnit otherwise) {
  const std::string whole = trimmed(text, kBlanks);
  const std::size_t digits = whole.find_last_of("0123456789.,");
  if (digits == std::string::npos)
    return std::nullopt;
  const auto number = readNumber(whole.substr(0, digits + 1));
  const std::string name = trimmed(whole.substr(digits + 1), kBlanks);
  if (!number)
    return std::nullopt;
  if (name.empty())
    return Length{*number, otherwise};
  for (const NamedUnit &known : kUnits)
    if (isSame(known.name, name) && std::isfinite(*number * known.count))
      return Length{*number * known.count, known.unit};
  return std::nullopt;
}

std::string unitSuffix(LengthUnit unit) {
  switch (unit) {
  case LengthUnit::Millimetre:
    return "mm";
  case LengthUnit::Inch:
    return "in";
  case LengthUnit::Point:
    break;
  }
  return {};
}

int decimalsOf(LengthUnit unit) noexcept { return unit == LengthUnit::Inch ? 3 : 2; }

std::string plainNumber(double number, int decimals) {
  const double scale = std::pow(10, decimals);
  const bool isWhole = std::abs(number) > kLargestWithDecimals;
  const double rounded = isWhole ? number : std::round(number * scale) / scale;
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream.setf(std::ios::fixed);
  stream.precision(decimals);
  stream << (rounded == 0 ? 0.0 : rounded); // no "-0"
  std::string text = stream.str();
  if (text.find('.') != std::string::npos) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
      text.pop_back();
  }
  return text;
}

std::string writeLength(Length length) {
  return plainNumber(length.number, decimalsOf(length.unit)) + unitSuffix(length.unit);
}

std::string numberInWords(const std::string &plain) {
  const std::size_t point = plain.find('.');
  if (point == std::string::npos)
    return plain;
  return messages::decimalNumber(plain.substr(0, point), plain.substr(point + 1));
}

std::string inUnit(const std::string &number, LengthUnit unit) {
  switch (unit) {
  case LengthUnit::Millimetre:
    return messages::inMillimetres(number);
  case LengthUnit::Inch:
    return messages::inInches(number);
  case LengthUnit::Point:
    break;
  }
  return messages::inPoints(number);
}

LengthUnit usualUnit(const std::function<const char *(const char *)> &environment) {
  for (const char *name : {"LC_ALL", "LC_MEASUREMENT", "LANG"}) {
    const char *const value = environment(name);
    if (value == nullptr || *value == '\0')
      continue;
    const std::string locale = value;
    const std::string country = locale.size() >= 5 && locale[2] == '_' ? locale.substr(3, 2) : "";
    return country == "US" || country == "LR" ? LengthUnit::Inch : LengthUnit::Millimetre;
  }
  return LengthUnit::Millimetre;
}

} // namespace imageposition
