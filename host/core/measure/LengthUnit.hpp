/// Lengths with a unit, as users enter them and as CUPS's options contain them.
#ifndef IMAGEPOSITION_CORE_MEASURE_LENGTHUNIT_HPP
#define IMAGEPOSITION_CORE_MEASURE_LENGTHUNIT_HPP

#include "Units.hpp"

#include <functional>
#include <optional>
#include <string>

namespace imageposition {

/// In the order of the user interface.
enum class LengthUnit { Millimetre, Inch, Point };

struct Length {
  double number = 0;
  LengthUnit unit = LengthUnit::Millimetre;
};

Point toPoints(Length length) noexcept;

/// Does not round.
Length convert(Length length, LengthUnit unit) noexcept;

/// Parses "100mm", "4.5in" or "30", as CUPS does in any language. A number without a unit is in
/// `otherwise`. Converts "cm" and "m" to millimetres, and "ft" to inches. Returns nullopt unless
/// the whole string is a length.
std::optional<Length> readLength(const std::string &text, LengthUnit otherwise = LengthUnit::Point);

/// Formats a length for `readLength`, with up to `decimalsOf` decimals.
std::string writeLength(Length length);

/// The unit as CUPS writes it after the number; empty for points.
std::string unitSuffix(LengthUnit unit);

/// 2 for millimetres and points, 3 for inches: more precise than any printer.
int decimalsOf(LengthUnit unit) noexcept;

/// Formats a number for CUPS, rounded half away from zero to `decimals` decimals, without trailing
/// zeros.
std::string plainNumber(double number, int decimals);

/// Parses a number with a decimal point or a decimal comma: "2.5" or "2,5". Returns nullopt unless
/// the whole string is a finite number.
std::optional<double> readNumber(const std::string &text);

/// Converts a number in CUPS's format to the decimal separator of the user's language.
std::string numberInWords(const std::string &plain);

/// Appends the translated "mm", "in" or "pt" to a number.
std::string inUnit(const std::string &number, LengthUnit unit);

/// Inches if the locale's country uses them, otherwise millimetres. `environment` works like
/// `getenv`.
LengthUnit usualUnit(const std::function<const char *(const char *)> &environment);

} // namespace imageposition

#endif
