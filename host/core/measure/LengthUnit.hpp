/// Lengths as people enter them and as CUPS's option values carry them: a number with a unit.
#ifndef IMAGEPOSITION_HOST_LENGTHUNIT_HPP
#define IMAGEPOSITION_HOST_LENGTHUNIT_HPP

#include "Units.hpp"

#include <functional>
#include <optional>
#include <string>

namespace imageposition {

/// In the order in which a person is offered them.
enum class LengthUnit { Millimetre, Inch, Point };

struct Length {
  double number = 0;
  LengthUnit unit = LengthUnit::Millimetre;
};

Point toPoints(Length length) noexcept;

/// Exact but for floating point; nothing is rounded.
Length convert(Length length, LengthUnit unit) noexcept;

/// "100mm", "4.5in", "30", as CUPS reads them in any language: without a unit it is points. Also
/// "cm", "m" and "ft", which become millimetres and inches. None unless the whole text is one.
std::optional<Length> readLength(const std::string &text, LengthUnit otherwise = LengthUnit::Point);

/// As `readLength` reads it back, with the decimals that `decimalsOf` the unit gives.
std::string writeLength(Length length);

/// What CUPS writes behind the number; nothing for points.
std::string unitSuffix(LengthUnit unit);

/// 2 for millimetres and points, 3 for inches: finer than any printer is.
int decimalsOf(LengthUnit unit) noexcept;

/// The number as CUPS reads it, rounded to so many decimals, half away from zero, without zeros at
/// its end.
std::string plainNumber(double number, int decimals);

/// A number in the way of either this language or CUPS: "2.5" and "2,5". None unless the whole text
/// is one that is finite.
std::optional<double> readNumber(const std::string &text);

/// A number of CUPS's with the decimal sign of the person's language.
std::string numberInWords(const std::string &plain);

/// "mm", "in", "pt", as people read them behind a number.
std::string inUnit(const std::string &number, LengthUnit unit);

/// Inches where the locale's country uses them, else millimetres. `environment` is `getenv`, or a
/// test's.
LengthUnit usualUnit(const std::function<const char *(const char *)> &environment);

} // namespace imageposition

#endif
